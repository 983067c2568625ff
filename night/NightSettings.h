// SPDX-License-Identifier: MIT
#pragma once

#include <QTime>
#include <QVariantMap>

#include <optional>

/// The night record: when the night palette shows, and its two colours.

inline constexpr QStringView kNightEnabledKey = u"enabled";
/// Start and end in minutes after local midnight.
inline constexpr QStringView kNightFromKey = u"from";
inline constexpr QStringView kNightToKey = u"to";
/// How each end is chosen: "sunset" (start) or "sunrise" (end), or "custom" for the minutes above.
inline constexpr QStringView kNightFromModeKey = u"fromMode";
inline constexpr QStringView kNightToModeKey = u"toMode";
/// Colours as hex text.
inline constexpr QStringView kNightBaseKey = u"base";
inline constexpr QStringView kNightMarkKey = u"mark";

/// A record with exactly the seven keys, made from the \p stored one, if any: malformed values get
/// their defaults, minutes are held within the day. A stored record without modes means custom
/// times, while no record at all means sunset to sunrise.
QVariantMap normalizedNightSettings(const std::optional<QVariantMap> &stored);

/// A stored switch: a boolean, or a number other than zero. Any other type is off.
bool booleanSetting(const QVariant &value);

/// Minutes after midnight, seconds dropped.
int minuteOfDay(QTime time);
