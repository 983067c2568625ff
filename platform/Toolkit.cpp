// SPDX-License-Identifier: MIT
#include "platform/Toolkit.h"

#include "platform/BusConnection.h"
#include "platform/ExitStatus.h"
#include "platform/Memory.h"
#include "platform/MessageBus.h"
#include "platform/Translations.h"

#include <QAccessible>
#include <QDBusConnection>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QScopeGuard>

#include <optional>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

using namespace std::chrono_literals;

constexpr auto kBusPatience = 1000ms;
constexpr char kNoBus[] = "disabled:";

constexpr char kScaleVariable[] = "QT_SCALE_FACTOR";
constexpr double kSmallestScale = 0.1;
constexpr double kLargestScale = 16.0;

/// Sets an environment variable; the guard restores its old value.
auto withVariable(const char *name, const char *value)
{
    const bool wasSet = qEnvironmentVariableIsSet(name);
    auto restore = qScopeGuard([name, wasSet, before = qgetenv(name)] {
        if (wasSet)
            qputenv(name, before);
        else
            qunsetenv(name);
    });
    qputenv(name, value);
    return restore;
}

/// Removes a scale at which no window could be shown; the toolkit does not check it.
void dropUnusableScale()
{
    // Written so that it also catches NaN.
    const double scale = qgetenv(kScaleVariable).toDouble();
    if (!(scale >= kSmallestScale && scale <= kLargestScale))
        qunsetenv(kScaleVariable);
}

/// Address of the bus of assistive technology: empty when there is none, nullopt when the session's
/// bus or the service on it does not answer.
std::optional<QByteArray> assistiveBus(sd_bus *session, QDeadlineTimer end)
{
    const QByteArray given = qgetenv("AT_SPI_BUS_ADDRESS");
    if (!given.isEmpty())
        return given;
    const auto reply = callAndWait(
        session,
        {u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s, {}, false},
        end);
    if (!reply)
        return {};
    if (!reply->isError())
        return reply->argument().toString().toUtf8();
    const QString &error = reply->error;
    return error == "org.freedesktop.DBus.Error.ServiceUnknown"_L1 ||
                   error == "org.freedesktop.DBus.Error.NameHasNoOwner"_L1
               ? std::optional(QByteArray())
               : std::nullopt;
}

bool busesAnswer()
{
    const QDeadlineTimer end(kBusPatience);
    const auto session = connectBefore(MessageBus::addresses(MessageBus::Kind::Session), end);
    if (!session)
        return false;
    const auto assistive = assistiveBus(session.get(), end);
    return assistive && (assistive->isEmpty() || connectBefore(*assistive, end));
}

/// The toolkit looks for its buses once and remembers the result. This makes it look while the
/// environment names none.
std::unique_ptr<QApplication> makeWithoutBuses(int &argc, char **argv)
{
    const auto session = withVariable("DBUS_SESSION_BUS_ADDRESS", kNoBus);
    const auto assistive = withVariable("AT_SPI_BUS_ADDRESS", kNoBus);
    auto application = std::make_unique<QApplication>(argc, argv);
    QDBusConnection::sessionBus();
    QAccessible::setActive(false);
    return application;
}

void endIfFatal(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg)
        ::_exit(complain(text.simplified()));
}

/// A platform may start without a screen to show windows on, and the toolkit then crashes with the
/// first. Wayland and X have one at all times, if need be one that stands in for a real one.
void endWithoutScreen()
{
    if (!QGuiApplication::screens().isEmpty())
        return;
    useLanguage();
    qFatal("%s", qUtf8Printable(Console::tr("no display: the platform '%1' has no screen")
                                    .arg(QGuiApplication::platformName())));
}

std::unique_ptr<QApplication> makeForInteraction(int &argc, char **argv, Interaction interaction)
{
    if (interaction == Interaction::Watching) {
        qunsetenv("QT_IM_MODULE");
        qunsetenv("QT_IM_MODULES");
    } else if (busesAnswer()) {
        return std::make_unique<QApplication>(argc, argv);
    }
    return makeWithoutBuses(argc, argv);
}

} // namespace

void prepareToolkit()
{
    keepLargeBlocksOutOfTheHeap();
    qInstallMessageHandler(endIfFatal);
    dropUnusableScale();
    qunsetenv("SESSION_MANAGER");
    // Qt's own event loop costs less per wake-up than GLib's.
    qputenv("QT_NO_GLIB", "1");
    // Without a bus the D-Bus library would launch a daemon, which outlives the program.
    const bool hasRuntimeBus =
        QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus"_L1);
    if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") && !hasRuntimeBus)
        qputenv("DBUS_SESSION_BUS_ADDRESS", kNoBus);
}

std::unique_ptr<QApplication> makeApplication(int &argc, char **argv, const QByteArray &qtPlatform,
                                              Interaction interaction)
{
    prepareToolkit();
    qputenv("QT_QPA_PLATFORM", qtPlatform);
    auto application = makeForInteraction(argc, argv, interaction);
    endWithoutScreen();
    return application;
}

} // namespace platform
