// SPDX-License-Identifier: MIT
#include "platform/LocationService.h"

#include "platform/MessageBus.h"

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace platform {

namespace {

const QString kService = u"org.freedesktop.GeoClue2"_s;
const QString kManagerPath = u"/org/freedesktop/GeoClue2/Manager"_s;
const QString kManager = u"org.freedesktop.GeoClue2.Manager"_s;
const QString kClient = u"org.freedesktop.GeoClue2.Client"_s;
const QString kLocation = u"org.freedesktop.GeoClue2.Location"_s;
const QString kProperties = u"org.freedesktop.DBus.Properties"_s;

constexpr uint kCityAccuracy = 4; // GClueAccuracyLevel
constexpr std::chrono::milliseconds kConnectTimeout = 2s;
/// The call returns only when the user has answered.
constexpr std::chrono::milliseconds kConsentTimeout = 5min;

/// The time in the property "Timestamp", a pair of seconds and microseconds since 1970.
QDateTime timestampFrom(const QVariant &property)
{
    const QVariantList pair = property.toList();
    if (pair.size() != 2)
        return {};
    return QDateTime::fromMSecsSinceEpoch(pair[0].toLongLong() * 1000 +
                                          pair[1].toLongLong() / 1000);
}

/// Without coordinates the accuracy is not valid either.
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

LocationService::LocationService(QString desktopId, QObject *parent)
    : QObject(parent), m_desktopId(std::move(desktopId))
{
    m_silence.setSingleShot(true);
    connect(&m_silence, &QTimer::timeout, this, &LocationService::giveUp);
}

LocationService::~LocationService() = default;

void LocationService::startUpdating()
{
    stopUpdating();
    m_bus = std::make_unique<MessageBus>(MessageBus::Kind::System);
    connect(m_bus.get(), &MessageBus::connected, this, &LocationService::getClient);
    connect(m_bus.get(), &MessageBus::disconnected, this, &LocationService::giveUp);
    m_bus->subscribe({u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, u"NameOwnerChanged"_s},
                     this, [this](const BusMessage &signal) {
                         const bool isGone = signal.argument(2).toString().isEmpty();
                         if (signal.argument(0) == kService && isGone)
                             giveUp();
                     });
    m_silence.start(kConnectTimeout);
}

/// The service drops the client when its connection closes.
void LocationService::stopUpdating()
{
    m_silence.stop();
    m_bus.reset();
}

void LocationService::getClient()
{
    m_silence.stop();
    call({kService, kManagerPath, kManager, u"GetClient"_s},
         [this](const BusMessage &reply) { useClient(reply); });
}

/// Accepts signals only from the connection that answered for the service: any other program could
/// send signals that look the same.
void LocationService::useClient(const BusMessage &reply)
{
    const QString owner = reply.sender;
    const QString path = reply.argument().toString();
    m_bus->subscribe({path, kClient, u"LocationUpdated"_s}, this,
                     [this, owner](const BusMessage &signal) {
                         if (signal.sender == owner)
                             getLocation(owner, signal.argument(1).toString());
                     });
    const auto set = [&](const QString &name, const QVariant &value) {
        m_bus->call({owner, path, kProperties, u"Set"_s, {kClient, name, busVariant(value)}},
                    [](const BusMessage &) {});
    };
    set(u"DesktopId"_s, m_desktopId);
    set(u"RequestedAccuracyLevel"_s, kCityAccuracy);
    call({owner, path, kClient, u"Start"_s, {}, true, kConsentTimeout}, [this](const BusMessage &) {
        m_silence.start(m_patience);
        Q_EMIT authorizationChanged(LocationAuthorization::Authorized);
    });
}

void LocationService::getLocation(const QString &owner, const QString &path)
{
    call({owner, path, kProperties, u"GetAll"_s, {kLocation}, true, m_patience},
         [this](const BusMessage &reply) { Q_EMIT updated(fixFrom(reply.argument().toMap())); });
}

void LocationService::call(const BusCall &call,
                           const std::function<void(const BusMessage &)> &replied)
{
    m_bus->call(call, [this, replied](const BusMessage &reply) {
        if (reply.isError())
            fail(reply);
        else
            replied(reply);
    });
}

void LocationService::giveUp()
{
    stopUpdating();
    Q_EMIT failed(LocationError::Unavailable);
}

void LocationService::fail(const BusMessage &error)
{
    if (error.error != "org.freedesktop.DBus.Error.AccessDenied"_L1)
        return giveUp();
    stopUpdating();
    if (error.errorText.startsWith("Agent rejected"_L1))
        Q_EMIT failed(LocationError::Denied);
    else
        Q_EMIT authorizationChanged(LocationAuthorization::Restricted);
}

} // namespace platform
