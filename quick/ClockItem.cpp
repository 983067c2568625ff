// SPDX-License-Identifier: MIT
#include "quick/ClockItem.h"

#include "calendar/TamselCalendarFont.h"
#include "clock/FrameDamage.h"
#include "platform/Clocks.h"
#include "platform/DistributedNotifications.h"
#include "platform/LoginSession.h"
#include "quick/ClockNode.h"
#include "quick/Installation.h"
#include "saver/FrameOnScreen.h"

#include <QQuickRenderControl>
#include <QQuickWindow>

#include <chrono>
#include <cmath>

namespace {

constexpr double kFrameInterval = 1.0 / 30.0;
/// Between two looks whether somebody can see the item again.
constexpr std::chrono::milliseconds kUnseenInterval(250);

/// The window that shows the scene, which may be drawn into a window of another toolkit.
QWindow *shownWindow(QQuickWindow *window)
{
    QWindow *around = window ? QQuickRenderControl::renderWindowFor(window) : nullptr;
    return around ? around : window;
}

} // namespace

struct ClockItem::Surroundings
{
    platform::DistributedNotifications notifications;
    platform::LoginSession session;
};

std::shared_ptr<ClockItem::Surroundings> ClockItem::sharedSurroundings()
{
    static std::weak_ptr<Surroundings> shared;
    auto surroundings = shared.lock();
    if (!surroundings) {
        surroundings = std::make_shared<Surroundings>();
        shared = surroundings;
    }
    return surroundings;
}

ClockItem::ClockItem(QQuickItem *parent) : ClockItem(sharedSurroundings(), {}, parent)
{
}

ClockItem::ClockItem(const platform::Desktop &desktop, QQuickItem *parent)
    : ClockItem(nullptr, desktop, parent)
{
}

ClockItem::ClockItem(std::shared_ptr<Surroundings> surroundings, const platform::Desktop &desktop,
                     QQuickItem *parent)
    : QQuickItem(parent), m_surroundings(std::move(surroundings)),
      m_desktop(m_surroundings
                    ? platform::Desktop{&platform::systemClocks(), installedBundle(),
                                        platform::userPreferencesFolder(),
                                        &m_surroundings->notifications, &m_surroundings->session}
                    : desktop),
      m_preferences(m_desktop), m_schedule(m_desktop),
      m_palette(m_desktop, m_preferences, m_schedule),
      m_timer(*m_desktop.clocks, [this] { tick(); })
{
    TamselRegisterCalendarFonts(m_desktop.bundle);
    setFlag(ItemHasContents);
    connect(&m_preferences, &SaverPreferences::changed, &m_palette,
            &PaletteOnScreen::reloadVariantIfNeeded);
    connect(&m_schedule, &NightSchedule::changed, &m_palette,
            &PaletteOnScreen::loadSelectedVariant);
    if (m_desktop.session)
        connect(m_desktop.session, &platform::LoginSession::becameActive, this, &ClockItem::start);
    m_palette.loadSelectedVariant();
}

ClockItem::~ClockItem() = default;

void ClockItem::setRunning(bool running)
{
    if (running == m_isRunning)
        return;
    m_isRunning = running;
    start();
    Q_EMIT runningChanged();
}

void ClockItem::componentComplete()
{
    QQuickItem::componentComplete();
    start();
}

void ClockItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange) {
        if (m_watched)
            m_watched->removeEventFilter(this);
        m_watched = shownWindow(data.window);
        if (m_watched)
            m_watched->installEventFilter(this);
    }
    if (change == ItemSceneChange || change == ItemVisibleHasChanged)
        start();
}

void ClockItem::geometryChange(const QRectF &geometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(geometry, oldGeometry);
    if (geometry.size() != oldGeometry.size())
        showFrame();
}

/// An exposed window means that the item may be visible again.
bool ClockItem::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Expose && m_rests)
        start();
    return QQuickItem::eventFilter(watched, event);
}

bool ClockItem::isSeen() const
{
    return isVisible() && m_watched && m_watched->isExposed() &&
           (!m_desktop.session || m_desktop.session->isActive());
}

/// Begins a new cadence, or none, with a frame at once.
void ClockItem::start()
{
    if (!isComponentComplete())
        return;
    if (m_isRunning)
        m_timer.start(kFrameInterval);
    else
        m_timer.stop();
    tick();
}

void ClockItem::tick()
{
    m_rests = !isSeen();
    if (m_rests && m_timer.isActive())
        m_timer.pause(kUnseenInterval);
    m_palette.reloadVariantIfNeeded();
    m_palette.endFinishedTransition();
    if (!m_rests)
        showFrame();
}

void ClockItem::showFrame()
{
    if (!isComponentComplete() || !window() || boundingRect().isEmpty())
        return;
    const double ratio = window()->effectiveDevicePixelRatio();
    m_shown = withDriftHeld(
        m_shown, frameOnScreen(m_palette, m_desktop.clocks->now(), boundingRect(), true), ratio);
    m_tiles.show(m_shown, ratio);
    update();
}

/// The item's corner moved to where a device pixel begins, so that the picture stays sharp.
QPointF ClockItem::pixelOrigin() const
{
    const QPointF corner = mapToScene({0.0, 0.0}) * m_tiles.ratio();
    return (QPointF(std::round(corner.x()), std::round(corner.y())) - corner) / m_tiles.ratio();
}

QSGNode *ClockItem::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    if (m_tiles.isNull() || boundingRect().isEmpty()) {
        delete node;
        return nullptr;
    }
    auto *clock = node ? static_cast<ClockNode *>(node) : new ClockNode(*window());
    clock->show(m_tiles, pixelOrigin());
    return clock;
}
