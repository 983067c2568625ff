// SPDX-License-Identifier: MIT
#pragma once

#include <QTime>
#include <QVariantMap>

#include <optional>

/// The night record: when the night palette shows, and its two colours.

inline const QString kNightEnabledKey = QStringLiteral("enabled");
/// Start and end in minutes after local midnight.
inline constexpr qlonglong kLastMinuteOfDay = 1439;
inline const QString kNightFromKey = QStringLiteral("from");
inline const QString kNightToKey = QStringLiteral("to");
/// How each end is chosen.
inline const QString kNightFromModeKey = QStringLiteral("fromMode");
inline const QString kNightToModeKey = QStringLiteral("toMode");
/// The modes: the start at sunset, the end at sunrise, either at the minute above.
inline const QString kNightSunsetMode = QStringLiteral("sunset");
inline const QString kNightSunriseMode = QStringLiteral("sunrise");
inline const QString kNightCustomMode = QStringLiteral("custom");
/// Colours as hex text.
inline const QString kNightBaseKey = QStringLiteral("base");
inline const QString kNightMarkKey = QStringLiteral("mark");

/// A record with exactly the seven keys, made from the \p stored one, if any: malformed values get
/// their defaults, minutes are held within the day. A stored record without modes means custom
/// times, while no record at all means sunset to sunrise.
QVariantMap normalizedNightSettings(const std::optional<QVariantMap> &stored);

/// A stored switch: a boolean, or a number other than zero. Any other type is off.
bool booleanSetting(const QVariant &value);

/// Minutes after midnight, seconds dropped.
int minuteOfDay(QTime time);
