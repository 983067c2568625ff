// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QVariant>

#include <optional>

class SaverPreferences;
struct StoredSettings;

/// The stored settings as scripts name them: the preference key, or "NightSettings." and the key
/// within the night record, each with a value of one line.

/// All names, in the order in which they are listed.
const QStringList &settingNames();

/// The value of the setting \p name as text; null when there is no such setting.
QString settingText(const StoredSettings &settings, const QString &name);

/// Reads \p text as a value of the setting \p name: a colour as six hexadecimal digits with or
/// without "#", a switch as "true" or "false", a time as minutes after midnight or as "19:30". None
/// when the setting does not have such a value.
std::optional<QVariant> settingFromText(const QString &name, const QString &text);

/// Stores \p value, which settingFromText() gave for \p name, within a save of \p preferences.
void storeSetting(SaverPreferences &preferences, const QString &name, const QVariant &value);
