// SPDX-License-Identifier: MIT
#include "night/TamselSolarTimes.h"

#include "platform/Clocks.h"
#include "platform/Desktop.h"
#include "platform/ScriptContext.h"
#include "platform/SmallFile.h"
#include "prefs/NightSettings.h"

#include <cmath>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargestFixAge = 300'000; // in milliseconds

/// Returns milliseconds since 1970. On a day without an event the script has null or an invalid
/// date in its place, which become 0 or NaN.
constexpr QStringView kEventsFunction =
    u"function tamselEvents(ms, lat, lon) { var t=SunCalc.getTimes(new Date(ms),lat,lon); "
    u"return {sunrise:+t.sunrise,sunset:+t.sunset}; }";

} // namespace

bool isUsableFix(const platform::LocationFix &fix, const QDateTime &now)
{
    if (!(fix.horizontalAccuracy >= 0.0) || !SolarLocation{fix.latitude, fix.longitude}.isValid())
        return false;
    return !fix.timestamp.isValid() || std::abs(fix.timestamp.msecsTo(now)) <= kLargestFixAge;
}

TamselSolarTimes::TamselSolarTimes(const platform::Desktop &desktop, QObject *parent)
    : QObject(parent), m_clocks(*desktop.clocks), m_bundle(desktop.bundle), m_store(desktop),
      m_status(tr("Sun times need location permission."))
{
}

TamselSolarTimes::~TamselSolarTimes() = default;

void TamselSolarTimes::setLocation(const std::optional<SolarLocation> &location)
{
    m_location = location;
    m_cache.reset();
    m_localEvents.reset();
}

void TamselSolarTimes::reloadSavedLocation()
{
    if (!m_persistent)
        return;
    const std::optional<SolarLocation> saved = m_store.load();
    if (!saved || saved == m_location)
        return;
    setLocation(saved);
    m_status = tr("Sun times use your Mac's saved location, calculated locally.");
}

void TamselSolarTimes::requestLocation()
{
    using platform::LocationService;
    if (!m_manager) {
        m_manager = std::make_unique<LocationService>(kLocationDesktopId);
        connect(m_manager.get(), &LocationService::authorizationChanged, this,
                &TamselSolarTimes::locationManagerDidChangeAuthorization);
        connect(
            m_manager.get(), &LocationService::updated, this,
            [this](const platform::LocationFix &fix) { locationManagerDidUpdateLocations({fix}); });
        connect(m_manager.get(), &LocationService::failed, this,
                &TamselSolarTimes::locationManagerDidFailWithError);
    }
    m_status = tr("Waiting for your Mac's location...");
    m_manager->startUpdating();
    if (updated)
        updated();
}

void TamselSolarTimes::locationManagerDidChangeAuthorization(
    platform::LocationAuthorization authorization)
{
    if (authorization != platform::LocationAuthorization::Restricted)
        return;
    setLocation(std::nullopt);
    endRequest(tr("Location unavailable. Allow access or use custom times."));
}

void TamselSolarTimes::locationManagerDidUpdateLocations(const QList<platform::LocationFix> &fixes)
{
    const platform::LocationFix &fix = fixes.last();
    if (!isUsableFix(fix, m_clocks.now()))
        return;
    setLocation(SolarLocation{fix.latitude, fix.longitude});
    if (m_persistent && !m_store.save(*m_location)) {
        setLocation(std::nullopt);
        endRequest(tr("Could not save location. Retry or use custom times."));
        return;
    }
    endRequest(tr("Sun times use your Mac's location, calculated locally."));
}

void TamselSolarTimes::locationManagerDidFailWithError(platform::LocationError error)
{
    endRequest(error == platform::LocationError::Denied
                   ? tr("Location denied. Allow access or use custom times.")
                   : tr("Location unavailable. Retry or use custom times."));
}

void TamselSolarTimes::endRequest(const QString &status)
{
    m_status = status;
    if (m_manager)
        m_manager->stopUpdating();
    if (updated)
        updated();
}

std::optional<QDateTime> TamselSolarTimes::eventOnDate(const QString &event, const QDateTime &date)
{
    if (!m_location)
        return std::nullopt;
    const QDateTime local = date.toLocalTime();
    if (!m_localEvents || m_localEvents->day != local.date() ||
        m_localEvents->minute != minuteOfDay(local.time()))
        m_localEvents = localEvents(local);
    const auto time = m_localEvents->times.constFind(event);
    return time != m_localEvents->times.constEnd() ? std::optional(*time) : std::nullopt;
}

TamselSolarTimes::LocalEvents TamselSolarTimes::localEvents(const QDateTime &date)
{
    refreshCache(QDateTime(date.date(), QTime(12, 0)));
    LocalEvents events{date.date(), minuteOfDay(date.time()), {}};
    for (auto it = m_cache->cbegin(); it != m_cache->cend(); ++it) {
        const double milliseconds = it.value().toDouble();
        if (std::isfinite(milliseconds) && milliseconds != 0.0)
            events.times[it.key()] = QDateTime::fromMSecsSinceEpoch(std::llround(milliseconds));
    }
    return events;
}

void TamselSolarTimes::refreshCache(const QDateTime &noon)
{
    const qint64 day = noon.toMSecsSinceEpoch();
    if (m_cache && m_cacheDay == day)
        return;
    loadScripts();
    m_cacheDay = day;
    m_cache = m_context ? m_context->call(u"tamselEvents"_s, {double(day), m_location->latitude,
                                                              m_location->longitude})
                        : QVariantMap();
}

/// At the first computation, so that a clock without sun times never loads the script engine.
void TamselSolarTimes::loadScripts()
{
    if (m_scriptsLoaded)
        return;
    m_scriptsLoaded = true;
    m_context = platform::makeScriptContext(m_bundle);
    if (!m_context)
        return;
    m_context->evaluate(u"var window = this;"_s);
    const QString library = m_bundle.pathForResource(u"suncalc"_s, u"js"_s, u"vendor"_s);
    m_context->evaluate(QString::fromUtf8(platform::readSmallFile(library).value_or(QByteArray())));
    m_context->evaluate(kEventsFunction.toString());
}
