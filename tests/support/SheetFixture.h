// SPDX-License-Identifier: MIT
#pragma once

#include "controls/PushButton.h"
#include "controls/TamselColorPopover.h"
#include "controls/TamselHexField.h"
#include "controls/TamselModeControl.h"
#include "controls/TamselSettingsView.h"
#include "controls/TamselSettingsWindow.h"
#include "controls/TamselSwatchButton.h"
#include "controls/TamselToggle.h"
#include "controls/TimePicker.h"
#include "platform/HexColor.h"
#include "settings/OptionsSheet.h"
#include "settings/TamselClockPreviewView.h"
#include "tests/support/SaverFixture.h"

#include <QApplication>
#include <QTest>

/// Beeps so far. The test program's QApplication::beep() overrides the toolkit's.
inline int g_beeps = 0;

/// A view of class \p View whose options sheet is on screen.
template <typename View>
struct SheetFixture : SaverFixture
{
    std::unique_ptr<View> view;

    /// Opens the sheet on the stored settings.
    bool open()
    {
        if (!view)
            view = std::make_unique<View>(desktop(), false);
        QWidget *window = view->configureSheet();
        window->show();
        window->activateWindow();
        return QTest::qWaitForWindowActive(window);
    }

    const SettingsSheet &sheet() const { return *view->settingsSheet(); }
    ColorEditing &colors() const { return view->optionsSheet()->colors(); }
    SheetVisibility &visibility() const { return view->optionsSheet()->visibility(); }
    QWidget *window() const { return sheet().configurationSheet; }

    void chooseVariant(const QString &variant) const
    {
        click(sheet().variantRadioButtons.value(variant));
    }

    QString draft(const QString &colorKey) const
    {
        return hexStringForColor(view->draftColorForKey(colorKey));
    }

    /// What the field of \p colorKey shows.
    QString shown(const QString &colorKey) const
    {
        return view->fieldForColorKey(colorKey)->text();
    }

    QString previewGround() const
    {
        return hexStringForColor(sheet().customPreviewView->backgroundColor());
    }

    /// Types \p text into the field of \p colorKey, from an empty one.
    void type(const QString &colorKey, const QString &text) const
    {
        TamselHexField *field = view->fieldForColorKey(colorKey);
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
    }

    static void click(QWidget *control) { QTest::mouseClick(control, Qt::LeftButton); }
};
