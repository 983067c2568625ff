// SPDX-License-Identifier: MIT
#pragma once

#include "night/SolarLocation.h"
#include "platform/Bundle.h"
#include "platform/LocationService.h"

#include <QDate>
#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>

namespace platform {
class Clocks;
class ScriptContext;
} // namespace platform

/// The desktop entry under which the location service knows us.
inline constexpr QLatin1StringView kLocationDesktopId("org.tamsel.PelkoLocation");

/// Whether a position is good enough to reckon with at \p now: it has coordinates and was found
/// within the last five minutes (or the next five, by a clock that was set meanwhile), as far as
/// the service tells when.
bool isUsableFix(const platform::LocationFix &fix, const QDateTime &now);

/// When the sun rises and sets today at the user's location. The times are computed on this machine
/// and kept for the day; the location comes from the saved one or from the location service.
class TamselSolarTimes : public QObject
{
    Q_OBJECT

public:
    /// The objects that \p desktop points to must outlive the provider.
    explicit TamselSolarTimes(const platform::Desktop &desktop, QObject *parent = nullptr);
    ~TamselSolarTimes() override;

    /// Whether the location is loaded from and saved to disk.
    bool persistent() const { return m_persistent; }
    void setPersistent(bool persistent) { m_persistent = persistent; }

    const std::optional<SolarLocation> &location() const { return m_location; }
    void setLocation(const std::optional<SolarLocation> &location);

    /// One line for the user.
    QString status() const { return m_status; }

    /// Called whenever a location request begins or ends, however it ends.
    std::function<void()> updated;

    /// Takes over the saved location if there is one and it is another; cheap when it did not
    /// change.
    void reloadSavedLocation();

    /// Asks the location service for one current location.
    void requestLocation();

    /// The time of \p event, "sunrise" or "sunset", on the local calendar day of \p date; none
    /// without a location and on a day without that event.
    std::optional<QDateTime> eventOnDate(const QString &event, const QDateTime &date);

    // What the location service has to tell.

    void locationManagerDidChangeAuthorization(platform::LocationAuthorization authorization);
    void locationManagerDidUpdateLocations(const QList<platform::LocationFix> &fixes);
    void locationManagerDidFailWithError(platform::LocationError error);

private:
    /// The day's events as the local clock shows them, made anew each minute: a change of the time
    /// zone always shows as another minute.
    struct LocalEvents
    {
        QDate day;
        int minute = 0;
        QHash<QString, QDateTime> times;
    };

    LocalEvents localEvents(const QDateTime &date);
    void refreshCache(const QDateTime &noon);
    void loadScripts();
    void endRequest(const QString &status);

    const platform::Clocks &m_clocks;
    platform::Bundle m_bundle;
    SolarLocationStore m_store;
    bool m_persistent = false;
    std::unique_ptr<platform::LocationService> m_manager;
    std::optional<SolarLocation> m_location;
    bool m_scriptsLoaded = false;
    std::unique_ptr<platform::ScriptContext> m_context;
    QString m_status;
    /// Noon of the cached day, in milliseconds since 1970.
    qint64 m_cacheDay = 0;
    std::optional<QVariantMap> m_cache;
    std::optional<LocalEvents> m_localEvents;
};
