// SPDX-License-Identifier: MIT
// What of the options sheet is shown, and how it moves when that changes.
#include "saver/TamselClockSaverView.h"

#include "controls/TamselModeControl.h"
#include "controls/TamselSettingsView.h"
#include "controls/TamselToggle.h"
#include "controls/ViewAlpha.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "platform/Clocks.h"
#include "saver/TamselClockPreviewView.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetLayout.h"

#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds kTickInterval(1000 / 60);

RowsState rowsState(const QWidget *group, const QWidget *rows)
{
    return {double(group->height()), rows->isHidden(), alphaValue(rows)};
}

void applyRows(const RowsState &state, QWidget *rows)
{
    setAlphaValue(rows, state.alpha);
    rows->setVisible(!state.hidden);
}

} // namespace

void TamselClockSaverView::updateCustomControlsVisibility()
{
    SettingsSheet &s = *m_sheet;
    const QString variant = selectedVariantFromRadioButtons();
    const bool custom = variant == "custom"_L1;
    const bool night = s.nightSwitch->isChecked();
    const bool animate = s.settingsLayoutInitialized && s.configurationSheet->isVisible() &&
                         !appearanceOf(s.configurationSheet).reducedMotion();
    s.previewMode->setVisible(night, animate);
    s.customPreviewView->setShowsModeSelector(night);
    s.themeName->setText(variantLabels().value(variant));

    s.settingsLayoutTimer.stop();
    const SheetState start{rowsState(s.themeGroup, s.dayColorControls),
                           rowsState(s.nightGroup, s.nightControls)};
    const SheetTransition transition(start, custom, night);
    s.settingsLayoutInitialized = true;
    s.settingsTransitionStart.reset();
    if (animate && transition.isNeeded()) {
        s.settingsTransition = transition;
        s.settingsLayoutTimer.start(kTickInterval);
        return;
    }
    s.settingsTransition.reset();
    applySheetState(sheetAtRest(custom, night));
}

void TamselClockSaverView::moveSheet()
{
    SettingsSheet &s = *m_sheet;
    const double now = clocks().monotonicSeconds();
    if (!s.settingsTransitionStart)
        s.settingsTransitionStart = now;
    const double t = now - *s.settingsTransitionStart;
    applySheetState(s.settingsTransition->at(t));
    if (t >= s.settingsTransition->duration())
        s.settingsLayoutTimer.stop();
}

void TamselClockSaverView::applySheetState(const SheetState &state)
{
    applyRows(state.day, m_sheet->dayColorControls);
    applyRows(state.night, m_sheet->nightControls);
    layoutSettingsDayHeight(state.day.groupHeight, state.night.groupHeight);
}

void TamselClockSaverView::layoutSettingsDayHeight(double dayHeight, double nightHeight)
{
    SettingsSheet &s = *m_sheet;
    const SheetLayout layout = sheetLayout(dayHeight, nightHeight);
    s.themeGroup->setGeometry(layout.themeGroup.toRect());
    s.calendarGroup->setGeometry(layout.calendarGroup.toRect());
    s.nightGroup->setGeometry(layout.nightGroup.toRect());
    s.settingsActions->setGeometry(layout.settingsActions.toRect());

    QWidget *window = s.configurationSheet;
    const QRect frame =
        sheetFrame(window->geometry(), layout.contentHeight, window->screen()->availableGeometry())
            .toRect();
    s.settingsScroll->widget()->resize(frame.width(), qRound(layout.contentHeight));
    // A sheet that is not on screen yet has no place to keep.
    if (window->isVisible())
        window->setGeometry(frame);
    else
        window->resize(frame.size());
    s.settingsScroll->resize(frame.size());
    s.settingsScroll->verticalScrollBar()->setValue(0);
}
