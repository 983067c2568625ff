// SPDX-License-Identifier: MIT
#include "host/SaverHost.h"

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
/// A display server that loses a screen may move the pointer first and tell of the screen then.
constexpr std::chrono::milliseconds kScreenNewsTime(150);

/// The screens to cover. Of screens that show the same picture the first is enough.
QList<QScreen *> distinctScreens()
{
    QList<QScreen *> distinct;
    const QList<QScreen *> all = QGuiApplication::screens();
    for (QScreen *screen : all) {
        const auto showsSame = [&](const QScreen *other) {
            return other->geometry() == screen->geometry();
        };
        if (!screen->geometry().isEmpty() &&
            std::none_of(distinct.begin(), distinct.end(), showsSame))
            distinct.append(screen);
    }
    return distinct;
}

/// A pointer without a picture. Qt's blank cursor will not do: on Wayland one that is set before
/// the pointer enters is taken for set already when it enters, and the compositor's arrow stays.
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
    connect(&m_settled, &QTimer::timeout, this, &SaverHost::syncViews);
    m_moved.setSingleShot(true);
    m_moved.setInterval(kScreenNewsTime);
    connect(&m_moved, &QTimer::timeout, this, [] { QCoreApplication::exit(0); });
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        followScreen(screen);
        screensChanged();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this](QScreen *screen) {
        m_views.erase(screen);
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

/// Screens change in several steps, and windows are moved meanwhile: what is right now may not be
/// when all is quiet.
void SaverHost::screensChanged()
{
    screensMoved();
    syncViews();
}

/// Movements shortly before and after are the display server's.
void SaverHost::screensMoved()
{
    m_moved.stop();
    m_pointer = PointerGuard();
    m_settled.start();
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
    view->showFullScreen();
    // All input comes to the window first; what comes to the view 30 times a second passes it by.
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
        // A repeat belongs to the key that started the program.
        return !static_cast<QKeyEvent *>(event)->isAutoRepeat();
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        return true;
    case QEvent::Enter:
    case QEvent::MouseMove:
        // Where screens and windows come and go under the pointer it is not a person that moves it.
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
