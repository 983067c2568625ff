// SPDX-License-Identifier: MIT
#include "saver/TamselClockSaverView.h"

#include "calendar/TamselCalendarFont.h"
#include "calendar/TamselCalendarLayout.h"
#include "platform/Clocks.h"
#include "platform/DistributedNotifications.h"
#include "platform/FramePresenter.h"
#include "platform/LoginSession.h"
#include "saver/FrameDamage.h"
#include "settings/SettingsSheet.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>

namespace {
constexpr double kFrameInterval = 1.0 / 30.0;
} // namespace

TamselClockSaverView::TamselClockSaverView(const platform::Desktop &desktop, bool isPreview,
                                           QWidget *parent)
    : ScreenSaverView(*desktop.clocks, isPreview, parent), m_desktop(desktop),
      m_stored(PreferenceStores(desktop.preferencesFolder, QCoreApplication::applicationName())),
      m_writer(m_stored.stores())
{
    TamselRegisterCalendarFonts(m_desktop.bundle);
    setAnimationTimeInterval(kFrameInterval);
    if (desktop.session) {
        connect(desktop.session, &platform::LoginSession::becameActive, this, [this] {
            screenSaverPreferencesMayHaveChanged();
            // Not startAnimation(), which would pick another random palette.
            if (isAnimating())
                ScreenSaverView::startAnimation();
        });
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
    if (rests())
        return;
    if (presenter()) {
        presentFrame();
        return;
    }
    const double ratio = devicePixelRatioF();
    ClockFrame next = nextFrame(ratio);
    // A surface of another density is empty, and nothing asks to paint it whole.
    if (m_shownRatio != ratio)
        update();
    else
        update(pointsCovering(frameDamage(m_shown, next, ratio), ratio));
    m_shownRatio = ratio;
    m_shown = std::move(next);
}

/// Makes the presented picture show this moment and puts what was exposed anew. While the last
/// frame has not been taken over this is left to the next.
void TamselClockSaverView::presentFrame()
{
    if (!presenter()->isReady())
        return;
    const double ratio = presenter()->ratio();
    const QTransform toDevice = QTransform::fromScale(ratio, ratio);
    platform::FrameMemory &memory =
        presenter()->memory(toDevice.mapRect(QRectF(rect())).toAlignedRect().size());
    if (memory.picture.isNull()) {
        dropPresenter();
        return;
    }
    m_shown = nextFrame(ratio);
    QRegion changed = m_surfaces.show(memory, m_shown, toDevice);
    if (!m_exposed.isEmpty())
        changed += pixelsTouched(m_exposed, toDevice) & memory.picture.rect();
    m_exposed = {};
    presenter()->present(m_surfaces.blocks(memory, changed));
}

bool TamselClockSaverView::isSeen() const
{
    return ScreenSaverView::isSeen() && (!m_desktop.session || m_desktop.session->isActive());
}

ClockFrame TamselClockSaverView::nextFrame(double ratio)
{
    ClockFrame frame;
    frame.bounds = QRectF(rect());
    frame.background = displayedBackgroundColor();
    frame.tinted = paletteTransitionProgress() < 1.0;
    if (frame.tinted || m_settings.calendarEnabled)
        frame.mark = displayedMarkColor();
    if (!frame.tinted)
        m_transition = {};
    frame.artwork = m_palette.artwork;
    const QDateTime now = clocks().now();
    const CalendarLayoutRects rects = places(now);
    frame.clockRect = rects.clock;
    frame.angles = TamselClockAnglesForDate(now);
    if (m_settings.calendarEnabled)
        frame.calendar = {rects.calendar,
                          {now.date(), calendarIsPortrait(frame.bounds.size()), QLocale::system()}};
    return withDriftHeld(m_shown, std::move(frame), ratio);
}

void TamselClockSaverView::drawRect(QPainter &painter, const QRectF &)
{
    drawFrame(painter, nextFrame(devicePixelRatioF()), m_scratch);
}

void TamselClockSaverView::showEvent(QShowEvent *event)
{
    ScreenSaverView::showEvent(event);
    m_surfaces.forget();
}

/// A part that is painted belongs to the frame on screen, which began with painting the whole.
void TamselClockSaverView::paintEvent(QPaintEvent *event)
{
    if (presenter()) {
        m_exposed += event->region();
        presenter()->poll();
        presentFrame();
        return;
    }
    if (covers(event->region(), rect()) || m_shown.bounds != QRectF(rect()))
        m_shown = nextFrame(devicePixelRatioF());
    QPainter painter(this);
    m_painter.paint(painter, m_shown, event->region());
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
