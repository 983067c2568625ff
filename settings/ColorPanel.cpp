// SPDX-License-Identifier: MIT
#include "settings/ColorPanel.h"

#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QPointer>

namespace {

QPointer<QColorDialog> &panel()
{
    static QPointer<QColorDialog> panel;
    return panel;
}

/// While there still is an application for its window.
void destroyPanel()
{
    delete panel();
}

} // namespace

QColorDialog &sharedColorPanel()
{
    if (!panel()) {
        auto *dialog = new QColorDialog;
        dialog->setOptions(QColorDialog::DontUseNativeDialog | QColorDialog::NoButtons);
        dialog->setModal(false);
        dialog->setWindowTitle(QStringLiteral("Colors"));
        followAppearance(dialog, [dialog] { dialog->setPalette(appearanceOf(dialog).palette()); });
        panel() = dialog;
        qAddPostRoutine(destroyPanel);
    }
    return *panel();
}

bool sharedColorPanelExists()
{
    return !panel().isNull();
}
