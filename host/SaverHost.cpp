// SPDX-License-Identifier: MIT
#include "host/SaverHost.h"

#include "host/OverlayLayer.h"
#include "platform/Clocks.h"
#include "platform/ScreenSaverView.h"

#include <QCursor>
#include <QEnterEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QWindow>

namespace host {

namespace {

constexpr std::chrono::milliseconds kSettlingTime(500);
/// A display server that loses a screen may report the pointer's movement before the loss.
constexpr std::chrono::milliseconds kScreenNewsTime(150);

/// The screens to cover: the first of those that mirror each other.
QList<QScreen *> distinctScreens()
{
    QList<QScreen *> distinct;
    const QList<QScreen *> all = QGuiApplication::screens();
    for (QScreen *screen : all) {
        const auto showsSame = [&](const QScreen *other) {
            return other->geometry() == screen->geometry();
        };
        if (!screen->geometry().isEmpty() && std::ranges::none_of(distinct, showsSame))
            distinct.append(screen);
    }
    return distinct;
}

/// A transparent cursor. Qt's blank cursor does not work on Wayland: if it was set before the
/// pointer enters, Qt does not set it again on entry, and the compositor's arrow stays.
QCursor invisiblePointer()
{
    QPixmap nothing(1, 1);
    nothing.fill(Qt::transparent);
    return QCursor(nothing);
}

} // namespace

SaverHost::SaverHost(MakeView makeView, const platform::Clocks &clocks)
    : m_makeView(std::move(makeView)), m_clocks(clocks)
{
}

SaverHost::~SaverHost() = default;

void SaverHost::start()
{
    m_settled.setSingleShot(true);
    m_settled.setInterval(kSettlingTime);
    connect(&m_settled, &QTimer::timeout, this, &SaverHost::screensSettled);
    m_moved.setSingleShot(true);
    m_moved.setInterval(kScreenNewsTime);
    connect(&m_moved, &QTimer::timeout, this, [] { QCoreApplication::exit(0); });
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        followScreen(screen);
        screensChanged();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this](QScreen *screen) {
        m_views.erase(screen);
        m_hasLostScreen = true;
        screensChanged();
    });
    connect(&m_xScreens, &XScreenChanges::changed, this, &SaverHost::screensMoved);
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (QScreen *screen : screens)
        followScreen(screen);
    syncViews();
}

void SaverHost::followScreen(QScreen *screen) const
{
    connect(screen, &QScreen::geometryChanged, this, &SaverHost::screensChanged);
}

/// Screens change in several steps that also move windows, so the views are checked now and again
/// when the screens have settled.
void SaverHost::screensChanged()
{
    screensMoved();
    syncViews();
}

/// Pointer movements shortly before and after are made by the display server.
void SaverHost::screensMoved()
{
    m_moved.stop();
    m_pointer = PointerGuard();
    m_settled.start();
}

/// A compositor that moves the windows of a lost screen to another one may show those and hide the
/// clock there, without telling it. A window that is shown anew is in sight.
void SaverHost::screensSettled()
{
    const bool mayBeHidden =
        m_hasLostScreen && QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    m_hasLostScreen = false;
    for (const auto &[screen, view] : m_views) {
        if (mayBeHidden) {
            view->hide();
            view->showFullScreen();
        }
    }
    syncViews();
}

void SaverHost::syncViews()
{
    const QList<QScreen *> screens = distinctScreens();
    std::erase_if(m_views, [&](const auto &entry) { return !screens.contains(entry.first); });
    for (QScreen *screen : screens)
        cover(screen);
}

void SaverHost::cover(QScreen *screen)
{
    auto &view = m_views[screen];
    if (view) {
        view->setGeometry(screen->geometry());
        return;
    }
    view = m_makeView();
    view->setWindowFlags(Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    view->setWindowTitle(QGuiApplication::applicationDisplayName());
    view->setCursor(invisiblePointer());
    view->setMouseTracking(true);
    view->setScreen(screen);
    view->setGeometry(screen->geometry());
    putOnOverlayLayer(*view);
    view->showFullScreen();
    // The window receives all input first. A filter on the view would also see its 30 timer events
    // a second.
    view->windowHandle()->installEventFilter(this);
    view->activateWindow();
    view->startAnimation();
}

bool SaverHost::eventFilter(QObject *watched, QEvent *event)
{
    if (isUserComingBack(event)) {
        QCoreApplication::exit(0);
        return true;
    }
    return QObject::eventFilter(watched, event);
}

bool SaverHost::isUserComingBack(QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        // Auto-repeat comes from the key that started the program.
        return !static_cast<QKeyEvent *>(event)->isAutoRepeat();
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        return true;
    case QEvent::Enter:
    case QEvent::MouseMove:
        // A window that appears under the pointer and a change of screens send movements that no
        // user made.
        if (event->type() == QEvent::Enter || m_settled.isActive())
            m_pointer = PointerGuard();
        if (!m_moved.isActive() &&
            m_pointer.movedOnPurpose(static_cast<QSinglePointEvent *>(event)->globalPosition(),
                                     m_clocks.monotonicSeconds()))
            m_moved.start();
        return false;
    default:
        return false;
    }
}

} // namespace host
