// SPDX-License-Identifier: MIT
#include "saver/TamselClockSaverView.h"

#include "calendar/TamselCalendarFont.h"
#include "calendar/TamselCalendarLayout.h"
#include "platform/Clocks.h"
#include "platform/DistributedNotifications.h"
#include "platform/LoginSession.h"
#include "settings/SettingsSheet.h"

#include <QCoreApplication>
#include <QPainter>

namespace {
constexpr double kFrameInterval = 1.0 / 30.0;
} // namespace

TamselClockSaverView::TamselClockSaverView(const platform::Desktop &desktop, bool isPreview,
                                           QWidget *parent)
    : ScreenSaverView(*desktop.clocks, isPreview, parent), m_desktop(desktop),
      m_stored(PreferenceStores(desktop.preferencesFolder, QCoreApplication::applicationName()))
{
    TamselRegisterCalendarFonts(m_desktop.bundle);
    setAnimationTimeInterval(kFrameInterval);
    if (desktop.session) {
        connect(desktop.session, &platform::LoginSession::becameActive, this,
                &TamselClockSaverView::screenSaverPreferencesMayHaveChanged);
    }
    if (desktop.notifications) {
        desktop.notifications->observe(kVariantChangedNotification, this,
                                       [this] { screenSaverPreferencesMayHaveChanged(); });
    }
    loadSelectedVariant();
}

TamselClockSaverView::~TamselClockSaverView()
{
    if (m_sheet)
        closeColorPanel();
    m_sheet.reset();
}

void TamselClockSaverView::startAnimation()
{
    ScreenSaverView::startAnimation();
    loadSelectedVariant();
    update();
}

void TamselClockSaverView::animateOneFrame()
{
    reloadVariantIfNeeded();
    update();
}

ClockFrame TamselClockSaverView::nextFrame()
{
    ClockFrame frame;
    frame.bounds = QRectF(rect());
    frame.background = displayedBackgroundColor();
    frame.mark = displayedMarkColor();
    frame.clockRect = clockRect();
    frame.tinted = paletteTransitionProgress() < 1.0;
    if (!frame.tinted)
        m_transition = {};
    frame.artwork = m_palette.artwork;
    const QDateTime now = clocks().now();
    frame.angles = TamselClockAnglesForDate(now);
    if (m_settings.calendarEnabled)
        frame.calendar = {calendarRect(), now.date(), calendarIsPortrait(frame.bounds.size()),
                          QLocale::system()};
    return frame;
}

void TamselClockSaverView::drawRect(QPainter &painter, const QRectF &)
{
    drawFrame(painter, nextFrame(), m_scratch);
}

void TamselClockSaverView::screenSaverPreferencesMayHaveChanged()
{
    reloadVariantIfNeeded();
}

void TamselClockSaverView::resizeEvent(QResizeEvent *event)
{
    ScreenSaverView::resizeEvent(event);
    update();
}
