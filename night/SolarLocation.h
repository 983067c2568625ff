// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PreferenceDomain.h"

#include <QString>

#include <chrono>
#include <optional>

namespace platform {
class DistributedNotifications;
struct Desktop;
} // namespace platform

/// Where the sun's times are reckoned for: degrees, north and east positive.
struct SolarLocation
{
    double latitude = 0.0;
    double longitude = 0.0;

    bool operator==(const SolarLocation &) const = default;

    /// Whether this is a place on earth: latitude within 90, longitude within 180 degrees.
    bool isValid() const;
};

/// The place that the dictionary of a location file names; none when it is no place on earth.
std::optional<SolarLocation> locationFrom(const QVariantMap &dictionary);

/// Posted by whoever saved or forgot the location.
inline constexpr QLatin1StringView
    kSolarLocationChanged("org.tamsel.TamselClockSaver.solarLocationChanged");

/// The location file of the user whose process this is, by the password database and not by the
/// environment. Null when the database has no home for them.
QString TamselSolarLocationPath();

/// How long saving and forgetting wait for other programs unless told otherwise.
inline constexpr std::chrono::milliseconds kLocationTimeout(1000);

/// The saved location, which every clock and the companion program share: a property list with
/// "latitude" and "longitude" in the location file, with a copy in the module's preferences that
/// stands in for a missing or damaged file.
class SolarLocationStore
{
public:
    /// The objects that \p desktop points to must outlive the store.
    explicit SolarLocationStore(const platform::Desktop &desktop);

    /// The saved location; none when there is none or it is no place on earth. Costs one look at
    /// the file's status, or two, when nothing changed since the last call.
    std::optional<SolarLocation> load() const;

    /// Replaces the file as a whole, readable for the user alone, then the copy, and tells every
    /// clock. Waits at most \p timeout for each of two locks. When it fails everything stands as it
    /// was; that the copy cannot be written is no failure.
    platform::StoreOutcome save(const SolarLocation &location,
                                std::chrono::milliseconds timeout = kLocationTimeout) const;

    /// Removes every trace of the location, also from what a killed save or a damaged file left
    /// behind, and tells every clock. Waits at most \p timeout. Fails with the first trace that is
    /// still there; the others are gone.
    platform::StoreOutcome forget(std::chrono::milliseconds timeout = kLocationTimeout) const;

private:
    platform::StoreOutcome forgetFile() const;
    platform::StoreOutcome forgetCopy(std::chrono::milliseconds timeout) const;
    void announce() const;

    platform::PreferenceDomain m_file;
    platform::PreferenceDomain m_suite;
    platform::DistributedNotifications *m_notifications;
};
