// SPDX-License-Identifier: MIT
#include "prefs/NightSettings.h"

#include "platform/HexColor.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr qlonglong kDefaultFrom = 1170; // 19:30
constexpr qlonglong kDefaultTo = 450;    // 07:30
constexpr QLatin1StringView kDefaultBase("#000000");
constexpr QLatin1StringView kDefaultMark("#FFF5E8");

/// A whole number within the day; none when \p value is not a number.
std::optional<qlonglong> minuteFrom(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
        return std::clamp(value.toLongLong(), 0LL, kLastMinuteOfDay);
    case QMetaType::ULongLong:
        return qlonglong(std::min(value.toULongLong(), qulonglong(kLastMinuteOfDay)));
    case QMetaType::Double:
        if (std::isnan(value.toDouble()))
            return std::nullopt;
        return qlonglong(std::clamp(value.toDouble(), 0.0, double(kLastMinuteOfDay)));
    default:
        return std::nullopt;
    }
}

QString colorTextFrom(const QVariant &value, QLatin1StringView fallback)
{
    if (value.typeId() != QMetaType::QString)
        return fallback;
    const QString text = normalizedHexStringFromString(value.toString());
    return text.isNull() ? QString(fallback) : text;
}

} // namespace

QVariantMap normalizedNightSettings(const std::optional<QVariantMap> &stored)
{
    const auto value = [&](const QString &key) { return stored ? stored->value(key) : QVariant(); };
    const auto mode = [&](const QString &key, const QString &solar) {
        return !stored || value(key) == QVariant(solar) ? solar : kNightCustomMode;
    };
    return {
        {kNightEnabledKey, booleanSetting(value(kNightEnabledKey))},
        {kNightFromKey, minuteFrom(value(kNightFromKey)).value_or(kDefaultFrom)},
        {kNightToKey, minuteFrom(value(kNightToKey)).value_or(kDefaultTo)},
        {kNightFromModeKey, mode(kNightFromModeKey, kNightSunsetMode)},
        {kNightToModeKey, mode(kNightToModeKey, kNightSunriseMode)},
        {kNightBaseKey, colorTextFrom(value(kNightBaseKey), kDefaultBase)},
        {kNightMarkKey, colorTextFrom(value(kNightMarkKey), kDefaultMark)},
    };
}

bool booleanSetting(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return value.toDouble() != 0.0;
    default:
        return false;
    }
}

int minuteOfDay(QTime time)
{
    return time.hour() * 60 + time.minute();
}
