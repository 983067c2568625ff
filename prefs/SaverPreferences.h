// SPDX-License-Identifier: MIT
#pragma once

#include "prefs/SettingsWriter.h"
#include "prefs/StoredSettings.h"

#include <QObject>

#include <chrono>

namespace platform {
class DistributedNotifications;
struct Desktop;
} // namespace platform

/// The module's settings as they are stored: read from the stores as these are at this moment,
/// written to the stores of each setting in their order. Several processes share them.
class SaverPreferences : public QObject
{
    Q_OBJECT

public:
    /// The objects that \p desktop points to must outlive the preferences.
    explicit SaverPreferences(const platform::Desktop &desktop);

    /// Every setting, its default in place; see SettingsReader::current() for cost and lifetime.
    const StoredSettings &stored() { return m_reader.current(); }
    /// The colour stored under \p key (CustomBaseColor or CustomMarkColor), or \p fallback.
    QColor colorForKey(const QString &key, const QColor &fallback);
    /// The custom variant's colours.
    QColor customBaseColor();
    QColor customMarkColor();

    // Each writer but storeColor() tells every process. A fault is reported by endSave() and
    // otherwise leaves what is stored as it was.

    /// Stores \p variant, or "orange" when it is none that may be stored.
    void storeSelectedVariant(const QString &variant);
    /// Stores "random": every start of a clock picks a variant. The options sheet does not offer
    /// it.
    void storeRandomVariant();
    void storeCalendarEnabled(bool enabled);
    /// Stores \p color as hex text under \p key.
    void storeColor(const QColor &color, const QString &key);
    /// Stores \p record as it is given.
    void storeNightSettings(const QVariantMap &record);

    /// Bracket the writes of one save; see SettingsWriter.
    platform::StoreOutcome beginSave(std::chrono::milliseconds timeout = {})
    {
        return m_writer.begin(timeout);
    }
    platform::StoreOutcome endSave() { return m_writer.end(); }

Q_SIGNALS:
    /// A process of this session, perhaps this one, has stored a setting.
    void changed();

private:
    void writeVariant(const QString &variant);
    void tell(const QVariantMap &userInfo) const;

    platform::DistributedNotifications *m_notifications;
    SettingsReader m_reader;
    SettingsWriter m_writer;
};
