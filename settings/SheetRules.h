// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QDateTime>

class QTimeEdit;

// The rules of the sheet's draft that need no sheet.

/// The four colours of the draft: the custom variant's and the night's, background and marks.
inline constexpr QLatin1StringView kBaseColorKey("base");
inline constexpr QLatin1StringView kMarkColorKey("mark");
inline constexpr QLatin1StringView kNightBaseColorKey("nightBase");
inline constexpr QLatin1StringView kNightMarkColorKey("nightMark");

/// Whether \p key names a colour of the night.
bool isNightColorKey(const QString &key);

/// A moment at \p minutes (0 to 1439) after midnight, on a day that counts for nothing.
QDateTime dateForMinutes(int minutes);
/// The minutes after midnight that \p picker shows.
int minutesForPicker(const QTimeEdit &picker);

/// Whether the night may last from \p from to \p to, in minutes after midnight. While it is off
/// its times do not matter.
bool scheduleIsValid(bool nightEnabled, int from, int to);

/// How light \p color is, 0 to 1.
double luminance(const QColor &color);
/// The ink that can be read on a ground that light.
QColor inkForLuminance(double luminance);
