// SPDX-License-Identifier: MIT
#include "saver/TamselClockSaverView.h"

#include "calendar/TamselCalendarFont.h"
#include "clock/FrameDamage.h"
#include "platform/FramePresenter.h"
#include "platform/LoginSession.h"
#include "saver/FrameOnScreen.h"
#include "settings/TimeRows.h"

#include <QPaintEvent>
#include <QPainter>

namespace {
constexpr double kFrameInterval = 1.0 / 30.0;
} // namespace

TamselClockSaverView::TamselClockSaverView(const platform::Desktop &desktop, bool isPreview,
                                           QWidget *parent)
    : TamselClockSaverView(desktop, isPreview, parent, std::make_unique<ClockSchedule>())
{
}

TamselClockSaverView::TamselClockSaverView(const platform::Desktop &desktop, bool isPreview,
                                           QWidget *parent, std::unique_ptr<NightSchedule> schedule)
    : ScreenSaverView(*desktop.clocks, isPreview, parent), m_desktop(desktop),
      m_preferences(m_desktop), m_schedule(std::move(schedule)),
      m_palette(m_desktop, m_preferences, *m_schedule)
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
    connect(&m_preferences, &SaverPreferences::changed, this,
            &TamselClockSaverView::screenSaverPreferencesMayHaveChanged);
    connect(&m_palette, &PaletteOnScreen::changed, this, qOverload<>(&QWidget::update));
    m_palette.loadSelectedVariant();
}

/// Destroying the sheet destroys its window, whose signal resets the pointer again.
TamselClockSaverView::~TamselClockSaverView()
{
    m_options.reset();
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
    m_palette.endFinishedTransition();
    if (rests())
        return;
    if (presenter()) {
        presentFrame();
        return;
    }
    const double ratio = devicePixelRatioF();
    ClockFrame next = frameAt(clocks().now(), ratio);
    // After a change of density the surface is empty, but no paint event asks for the whole view.
    if (m_staleBuffers.drop(*window()) || m_shownRatio != ratio)
        update();
    else
        update(pointsCovering(frameDamage(m_shown, next, ratio), ratio));
    m_shownRatio = ratio;
    m_shown = std::move(next);
}

/// Brings the presented picture up to date and presents the damage, with what was exposed
/// meanwhile. Skips the frame while the window system may still read the last one.
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
    m_shown = frameAt(clocks().now(), ratio);
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

/// The slow drift advances only in visible steps from the frame on screen.
ClockFrame TamselClockSaverView::frameAt(const QDateTime &now, double ratio) const
{
    return withDriftHeld(m_shown, frameOnScreen(m_palette, now, rect(), drifts()), ratio);
}

QRectF TamselClockSaverView::clockRect() const
{
    return placesOnScreen(clocks().now(), rect(), m_palette.applied().calendarEnabled, drifts())
        .clock;
}

QRectF TamselClockSaverView::calendarRect() const
{
    return placesOnScreen(clocks().now(), rect(), true, drifts()).calendar;
}

void TamselClockSaverView::drawRect(QPainter &painter, const QRectF &)
{
    FrameScratch scratch;
    drawFrame(painter, frameAt(clocks().now(), devicePixelRatioF()), scratch);
}

void TamselClockSaverView::showEvent(QShowEvent *event)
{
    ScreenSaverView::showEvent(event);
    m_surfaces.forget();
}

/// A partial repaint shows the frame on screen; a repaint of the whole view begins a new frame.
void TamselClockSaverView::paintEvent(QPaintEvent *event)
{
    if (presenter()) {
        m_exposed += event->region();
        presenter()->poll();
        presentFrame();
        return;
    }
    if (covers(event->region(), rect()) || m_shown.bounds != QRectF(rect()))
        m_shown = frameAt(clocks().now(), devicePixelRatioF());
    QPainter painter(this);
    m_painter.paint(painter, m_shown, event->region());
}

void TamselClockSaverView::resizeEvent(QResizeEvent *event)
{
    ScreenSaverView::resizeEvent(event);
    update();
}

QWidget *TamselClockSaverView::configureSheet()
{
    if (!m_options) {
        m_options = std::make_unique<OptionsSheet>(m_desktop, m_preferences, *m_schedule);
        connect(m_options.get(), &OptionsSheet::stored, &m_palette,
                &PaletteOnScreen::loadSelectedVariantAnew);
        connect(m_options.get(), &OptionsSheet::ended, this,
                &TamselClockSaverView::configurationEnded);
        // A host may reparent the window into one of its own and destroy both.
        connect(m_options->window(), &QObject::destroyed, this, [this] { m_options.reset(); });
    }
    return m_options->configureSheet();
}

void TamselClockSaverView::storeCalendarEnabled(bool enabled)
{
    m_preferences.storeCalendarEnabled(enabled);
    m_palette.applyCalendarEnabled(enabled);
}

void TamselClockSaverView::storeNightSettings(const QVariantMap &record)
{
    const TimeRows *rows = m_options ? m_options->timeRows() : nullptr;
    m_preferences.storeNightSettings(
        m_schedule->recordToStore(record, rows ? rows->timeModes() : QStringList()));
}
