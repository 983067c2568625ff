// SPDX-License-Identifier: MIT
#include "settings/SheetVisibility.h"

#include "controls/TamselModeControl.h"
#include "controls/TamselSettingsView.h"
#include "controls/TamselSettingsWindow.h"
#include "controls/TamselToggle.h"
#include "controls/ViewAlpha.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "platform/Clocks.h"
#include "prefs/Variants.h"
#include "settings/SettingsSheet.h"
#include "settings/SheetLayout.h"
#include "settings/TamselClockPreviewView.h"

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

SheetVisibility::SheetVisibility(const SettingsSheet &sheet, const platform::Clocks &clocks)
    : m_sheet(sheet), m_clocks(clocks)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout([this] { move(); });
}

void SheetVisibility::updateCustomControlsVisibility(const QString &variant)
{
    const bool custom = variant == "custom"_L1;
    const bool night = m_sheet.nightSwitch->isChecked();
    const bool animate = m_wasLaidOut && m_sheet.configurationSheet->isVisible() &&
                         !appearanceOf(m_sheet.configurationSheet).reducedMotion();
    m_sheet.previewMode->setVisible(night, animate);
    m_sheet.customPreviewView->setShowsModeSelector(night);
    m_sheet.themeName->setText(variantLabels().value(variant));

    m_timer.stop();
    const SheetState start{rowsState(m_sheet.themeGroup, m_sheet.dayColorControls),
                           rowsState(m_sheet.nightGroup, m_sheet.nightControls)};
    const SheetTransition transition(start, custom, night);
    m_wasLaidOut = true;
    m_began.reset();
    if (animate && transition.isNeeded()) {
        m_transition = transition;
        m_timer.start(kTickInterval);
        return;
    }
    m_transition.reset();
    apply(sheetAtRest(custom, night));
}

void SheetVisibility::move()
{
    const double now = m_clocks.monotonicSeconds();
    if (!m_began)
        m_began = now;
    const double t = now - *m_began;
    apply(m_transition->at(t));
    if (t >= m_transition->duration())
        m_timer.stop();
}

void SheetVisibility::stop()
{
    m_timer.stop();
    m_wasLaidOut = false;
}

void SheetVisibility::apply(const SheetState &state) const
{
    applyRows(state.day, m_sheet.dayColorControls);
    applyRows(state.night, m_sheet.nightControls);
    layoutSettingsDayHeight(state.day.groupHeight, state.night.groupHeight);
}

void SheetVisibility::layoutSettingsDayHeight(double dayHeight, double nightHeight) const
{
    const SheetLayout layout = sheetLayout(dayHeight, nightHeight);
    m_sheet.themeGroup->setGeometry(layout.themeGroup.toRect());
    m_sheet.calendarGroup->setGeometry(layout.calendarGroup.toRect());
    m_sheet.nightGroup->setGeometry(layout.nightGroup.toRect());
    m_sheet.settingsActions->setGeometry(layout.settingsActions.toRect());

    QWidget *window = m_sheet.configurationSheet;
    const QRect frame =
        sheetFrame(window->geometry(), layout.contentHeight, window->screen()->availableGeometry())
            .toRect();
    m_sheet.settingsScroll->widget()->resize(frame.width(), qRound(layout.contentHeight));
    // Before the window is shown, only its size matters; the window system chooses the position.
    if (window->isVisible())
        window->setGeometry(frame);
    else
        window->resize(frame.size());
    m_sheet.settingsScroll->resize(frame.size());
    m_sheet.settingsScroll->verticalScrollBar()->setValue(0);
}
