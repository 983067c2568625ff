// SPDX-License-Identifier: MIT
#include "platform/LocationService.h"

#include "platform/BusProbe.h"
#include "platform/MessageBus.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QTimer>

#include <functional>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace platform {

namespace {

constexpr QLatin1StringView kService("org.freedesktop.GeoClue2");
constexpr QLatin1StringView kManagerPath("/org/freedesktop/GeoClue2/Manager");
constexpr QLatin1StringView kManager("org.freedesktop.GeoClue2.Manager");
constexpr QLatin1StringView kClient("org.freedesktop.GeoClue2.Client");
constexpr QLatin1StringView kLocation("org.freedesktop.GeoClue2.Location");
constexpr QLatin1StringView kProperties("org.freedesktop.DBus.Properties");

constexpr uint kCityAccuracy = 4; // GClueAccuracyLevel
/// A call that asks the user returns when they have answered.
constexpr std::chrono::milliseconds kConsentTimeout = 5min;

/// The time in the property "Timestamp", a pair of seconds and microseconds since 1970.
QDateTime timestampFrom(const QVariant &property)
{
    if (!property.canConvert<QDBusArgument>())
        return {};
    const auto argument = property.value<QDBusArgument>();
    if (argument.currentSignature() != "(tt)"_L1)
        return {};
    quint64 seconds = 0;
    quint64 microseconds = 0;
    argument.beginStructure();
    argument >> seconds >> microseconds;
    argument.endStructure();
    return QDateTime::fromMSecsSinceEpoch(qint64(seconds) * 1000 + qint64(microseconds) / 1000);
}

/// A location without coordinates of its own has an accuracy that means nothing.
LocationFix fixFrom(const QVariantMap &properties)
{
    bool hasLatitude = false;
    bool hasLongitude = false;
    bool hasAccuracy = false;
    LocationFix fix{properties[u"Latitude"_s].toDouble(&hasLatitude),
                    properties[u"Longitude"_s].toDouble(&hasLongitude),
                    properties[u"Accuracy"_s].toDouble(&hasAccuracy),
                    timestampFrom(properties[u"Timestamp"_s])};
    if (!hasLatitude || !hasLongitude || !hasAccuracy)
        fix.horizontalAccuracy = -1.0;
    return fix;
}

} // namespace

/// One start of the service: from a look at the bus to the end of updating.
class LocationService::Request : public QObject
{
    Q_OBJECT

public:
    explicit Request(LocationService &service);

    void begin();
    /// Takes leave of the service; nothing is reported afterwards.
    void end();

private:
    Q_SLOT void locationUpdated(const QDBusObjectPath &before, const QDBusObjectPath &after);

    using ReplyHandler = std::function<void(const QDBusMessage &reply)>;

    QDBusMessage clientCall(QLatin1StringView interface, const QString &method) const;
    void connectToBus();
    void send(const QDBusMessage &message) { m_bus->call(message, QDBus::NoBlock); }
    void call(const QDBusMessage &message, const ReplyHandler &replied,
              std::chrono::milliseconds timeout = kConsentTimeout);
    void useClient(const QDBusMessage &reply);
    void setClientProperty(const QString &name, const QVariant &value);
    void fail(const QDBusMessage &error);
    void giveUp();

    LocationService &m_service;
    BusProbe m_probe;
    std::optional<QDBusConnection> m_bus;
    QTimer m_silence;
    /// The service's own name on the bus, so that nobody else's signals are taken for its.
    QString m_owner;
    QString m_clientPath;
    bool m_ended = false;
};

LocationService::Request::Request(LocationService &service)
    : m_service(service),
      m_probe(MessageBus::address(MessageBus::Kind::System).value_or(QByteArray()))
{
    connect(&m_probe, &BusProbe::finished, this, [this](bool answered) {
        if (m_ended)
            return;
        if (answered)
            connectToBus();
        else
            giveUp();
    });
    m_silence.setSingleShot(true);
    m_silence.setInterval(service.m_patience);
    connect(&m_silence, &QTimer::timeout, this, &Request::giveUp);
}

void LocationService::Request::begin()
{
    m_probe.start();
}

void LocationService::Request::connectToBus()
{
    m_bus = QDBusConnection::systemBus();
    auto *watcher = new QDBusServiceWatcher(kService, *m_bus,
                                            QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        if (!m_ended)
            giveUp();
    });
    call(QDBusMessage::createMethodCall(kService, kManagerPath, kManager, u"GetClient"_s),
         [this](const QDBusMessage &reply) { useClient(reply); });
}

void LocationService::Request::end()
{
    m_ended = true;
    m_silence.stop();
    if (m_clientPath.isEmpty())
        return;
    m_bus->disconnect(m_owner, m_clientPath, kClient, u"LocationUpdated"_s, this,
                      SLOT(locationUpdated(QDBusObjectPath, QDBusObjectPath)));
    send(clientCall(kClient, u"Stop"_s));
}

QDBusMessage LocationService::Request::clientCall(QLatin1StringView interface,
                                                  const QString &method) const
{
    return QDBusMessage::createMethodCall(m_owner, m_clientPath, interface, method);
}

void LocationService::Request::call(const QDBusMessage &message, const ReplyHandler &replied,
                                    std::chrono::milliseconds timeout)
{
    auto *watcher =
        new QDBusPendingCallWatcher(m_bus->asyncCall(message, int(timeout.count())), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, replied] {
        watcher->deleteLater();
        if (m_ended)
            return;
        if (watcher->isError())
            fail(watcher->reply());
        else
            replied(watcher->reply());
    });
}

void LocationService::Request::useClient(const QDBusMessage &reply)
{
    m_owner = reply.service();
    m_clientPath = reply.arguments().value(0).value<QDBusObjectPath>().path();
    if (m_clientPath.isEmpty())
        return giveUp();
    m_bus->connect(m_owner, m_clientPath, kClient, u"LocationUpdated"_s, this,
                   SLOT(locationUpdated(QDBusObjectPath, QDBusObjectPath)));
    setClientProperty(u"DesktopId"_s, m_service.m_desktopId);
    setClientProperty(u"RequestedAccuracyLevel"_s, kCityAccuracy);
    call(clientCall(kClient, u"Start"_s), [this](const QDBusMessage &) {
        m_silence.start();
        Q_EMIT m_service.authorizationChanged(LocationAuthorization::Authorized);
    });
}

void LocationService::Request::setClientProperty(const QString &name, const QVariant &value)
{
    QDBusMessage message = clientCall(kProperties, u"Set"_s);
    message << QString(kClient) << name << QVariant::fromValue(QDBusVariant(value));
    send(message);
}

void LocationService::Request::locationUpdated(const QDBusObjectPath &,
                                               const QDBusObjectPath &after)
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(m_owner, after.path(), kProperties, u"GetAll"_s);
    message << QString(kLocation);
    call(
        message,
        [this](const QDBusMessage &reply) {
            const QDBusPendingReply<QVariantMap> properties =
                QDBusPendingCall::fromCompletedCall(reply);
            Q_EMIT m_service.updated(fixFrom(properties.value()));
        },
        m_service.m_patience);
}

void LocationService::Request::giveUp()
{
    m_service.stopUpdating();
    Q_EMIT m_service.failed(LocationError::Unavailable);
}

void LocationService::Request::fail(const QDBusMessage &error)
{
    if (error.errorName() != "org.freedesktop.DBus.Error.AccessDenied"_L1)
        return giveUp();
    m_service.stopUpdating();
    if (error.errorMessage().startsWith("Agent rejected"_L1))
        Q_EMIT m_service.failed(LocationError::Denied);
    else
        Q_EMIT m_service.authorizationChanged(LocationAuthorization::Restricted);
}

LocationService::LocationService(QString desktopId, QObject *parent)
    : QObject(parent), m_desktopId(std::move(desktopId))
{
}

LocationService::~LocationService()
{
    stopUpdating();
}

void LocationService::startUpdating()
{
    stopUpdating();
    m_request = new Request(*this);
    m_request->begin();
}

void LocationService::stopUpdating()
{
    if (!m_request)
        return;
    m_request->end();
    m_request->deleteLater();
    m_request = nullptr;
}

} // namespace platform

#include "LocationService.moc"
