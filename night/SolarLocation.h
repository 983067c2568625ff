// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PreferenceDomain.h"

#include <QString>

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

/// Posted by whoever saved or forgot the location.
inline constexpr QLatin1StringView
    kSolarLocationChanged("org.tamsel.TamselClockSaver.solarLocationChanged");

/// The location file of the user whose process this is, by the password database and not by the
/// environment. Null when the database has no home for them.
QString TamselSolarLocationPath();

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
    /// clock. False when the file could not be written; everything then stands as it was.
    bool save(const SolarLocation &location) const;

    /// Removes the file and the copy and tells every clock. False when one of them is still there.
    bool forget() const;

private:
    bool writeFile(const SolarLocation &location) const;
    void announce() const;

    platform::PreferenceDomain m_file;
    platform::PreferenceDomain m_suite;
    platform::DistributedNotifications *m_notifications;
};
