// SPDX-License-Identifier: MIT
#include "settings/ColorPanel.h"

#include "controls/ControlFont.h"
#include "controls/TamselInputFill.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "settings/OptionsSheet.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QPointer>

namespace {

QPointer<QColorDialog> &panel()
{
    static QPointer<QColorDialog> panel;
    return panel;
}

/// The sheet's palette, with the sheet's background for input fields.
QPalette panelPaletteOf(const QWidget *dialog)
{
    QPalette colors = paletteOf(dialog);
    colors.setColor(QPalette::Base, TamselInputFill(dialog));
    return colors;
}

/// A post routine: runs before the application object, which the window needs, is gone.
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
        dialog->setWindowTitle(OptionsSheet::tr("Colors"));
        dialog->setFont(controlFont());
        followAppearance(dialog, [dialog] { dialog->setPalette(panelPaletteOf(dialog)); });
        panel() = dialog;
        qAddPostRoutine(destroyPanel);
    }
    return *panel();
}

bool sharedColorPanelExists()
{
    return !panel().isNull();
}
