// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

namespace platform {

class MessageBus;
struct BusCall;
struct BusMessage;

/// One answer of the location service: degrees, north and east positive.
struct LocationFix
{
    double latitude = 0.0;
    double longitude = 0.0;
    /// Radius in metres; negative when the coordinates are not valid.
    double horizontalAccuracy = -1.0;
    /// When the position was found; invalid when the service does not say.
    QDateTime timestamp;
};

enum class LocationAuthorization {
    Restricted, ///< location is switched off, or there is nobody who could be asked
    Authorized,
};

enum class LocationError {
    Denied,      ///< the user refused this program
    Unavailable, ///< no service, no answer, or it went away
};

/// The desktop's location service, GeoClue 2 on the system bus, at city accuracy. The service asks
/// the user for consent itself. No call blocks, no position is stored, and the bus is connected
/// only while updating.
///
/// Errors: an AccessDenied whose text begins with "Agent rejected" means that the user refused, so
/// Denied; every other AccessDenied ("Geolocation disabled", "no agent", "disallowed by
/// configuration", a missing desktop entry) is Restricted; anything else is Unavailable.
class LocationService : public QObject
{
    Q_OBJECT

public:
    /// How long to wait for a position after consent was given.
    static constexpr std::chrono::milliseconds kPatience = std::chrono::seconds(60);

    /// \p desktopId is the name of the program's installed desktop entry without its suffix: the
    /// service shows the entry's name and reason to the user.
    explicit LocationService(QString desktopId, QObject *parent = nullptr);
    ~LocationService() override;

    void setPatience(std::chrono::milliseconds patience) { m_patience = patience; }

    /// Asks for consent and then for the position, until stopUpdating or a failure. Starting again
    /// begins anew.
    void startUpdating();
    void stopUpdating();
    bool isUpdating() const { return m_bus != nullptr; }

Q_SIGNALS:
    /// When it is Restricted, updating has ended.
    void authorizationChanged(platform::LocationAuthorization authorization);
    void updated(const platform::LocationFix &fix);
    /// Updating has ended.
    void failed(platform::LocationError error);

private:
    void getClient();
    void useClient(const BusMessage &reply);
    void getLocation(const QString &owner, const QString &path);
    /// Calls a method that ends updating when it fails.
    void call(const BusCall &call, const std::function<void(const BusMessage &)> &replied);
    void giveUp();
    void fail(const BusMessage &error);

    QString m_desktopId;
    std::chrono::milliseconds m_patience = kPatience;
    /// Limits the wait for the bus and for a position, which are not replies to a call.
    QTimer m_silence;
    /// Null while not updating.
    std::unique_ptr<MessageBus> m_bus;
};

} // namespace platform
