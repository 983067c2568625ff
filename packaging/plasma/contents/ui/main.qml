// SPDX-License-Identifier: MIT
import QtQuick
import org.kde.plasma.plasmoid
import org.tamsel.clock

WallpaperItem {
    TamselClock {
        anchors.fill: parent
        Accessible.role: Accessible.Clock
        Accessible.name: "Tamsel Clock"
    }
}
