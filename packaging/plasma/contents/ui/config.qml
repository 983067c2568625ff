// SPDX-License-Identifier: MIT
// The options belong to every clock of the user, so they are in one place only: the sheet that this opens.
import QtQuick
import QtQuick.Controls as Controls
import org.kde.kirigami as Kirigami
import org.tamsel.clock

Kirigami.FormLayout {
    id: root
    twinFormLayouts: parentLayout
    property alias formLayout: root

    Controls.Button {
        text: TamselClockOptions.title
        icon.name: "configure"
        onClicked: failure.visible = !TamselClockOptions.open()
    }
    Controls.Label {
        id: failure
        visible: false
        text: TamselClockOptions.failure
    }
}
