// SPDX-License-Identifier: MIT
#pragma once

#include "prefs/PreferenceStores.h"

#include <QColor>
#include <QVariantMap>

#include <array>

/// The preference keys.
inline const QString kSelectedVariantKey = QStringLiteral("SelectedVariant");
inline const QString kCalendarEnabledKey = QStringLiteral("CalendarEnabled");
inline const QString kCustomBaseColorKey = QStringLiteral("CustomBaseColor");
inline const QString kCustomMarkColorKey = QStringLiteral("CustomMarkColor");
inline const QString kNightSettingsKey = QStringLiteral("NightSettings");

/// All values of the three stores that are read, in the order in which they are asked.
using StoreContents = std::array<QVariantMap, 3>;

/// The settings with their defaults in place.
struct StoredSettings
{
    /// Never empty; an unknown variant is kept as it stands.
    QString selectedVariant;
    bool calendarEnabled = false;
    /// Invalid where no colour, or none that can be read, is stored.
    QColor customBaseColor;
    QColor customMarkColor;
    /// A night record with all its keys.
    QVariantMap nightSettings;
    /// What the record says of it.
    bool nightEnabled = false;
};

/// Reads the settings out of \p contents. A text that is empty, and a value of another type than a
/// text, does not count as stored; for the calendar switch only a missing value does not. Of the
/// colours the first text is final.
StoredSettings settingsFrom(const StoreContents &contents);

/// The stored settings of a process, read again only when a store changed.
class SettingsReader
{
public:
    explicit SettingsReader(PreferenceStores stores);

    /// The settings at this moment. Costs one look at the status of each of three files; the
    /// reference holds until the next call.
    const StoredSettings &current();

    const PreferenceStores &stores() const { return m_stores; }

private:
    PreferenceStores m_stores;
    std::array<quint64, 3> m_generations{};
    StoredSettings m_settings;
};
