// SPDX-License-Identifier: MIT
#include "prefs/SettingsWriter.h"

#include <utility>

using platform::PreferenceDomain;
using platform::StoreOutcome;

SettingsWriter::SettingsWriter(PreferenceStores stores) : m_stores(std::move(stores))
{
}

/// Every writer locks the suite first, so only there can others be waiting for.
StoreOutcome SettingsWriter::begin(std::chrono::milliseconds timeout)
{
    m_outcome = {};
    for (const PreferenceDomain *store :
         {&m_stores.suite, &m_stores.saverDefaults, &m_stores.shortNameDefaults,
          &m_stores.standardDefaults}) {
        m_locks.push_back(std::make_unique<PreferenceDomain::WriteLock>(*store, timeout));
        timeout = std::chrono::milliseconds(0);
    }
    StoreOutcome suite = m_locks.front()->outcome();
    if (!suite)
        m_locks.clear();
    return suite;
}

/// Stops when the suite cannot be written: a reader may fall back to a later store, which must then
/// still hold the old value.
void SettingsWriter::write(std::initializer_list<Store> stores, const QString &key,
                           const QVariant &value)
{
    for (const Store store : stores) {
        const StoreOutcome outcome = (m_stores.*store).setValue(key, value);
        if (outcome || store != &PreferenceStores::suite)
            continue;
        if (m_outcome)
            m_outcome = outcome;
        return;
    }
}

StoreOutcome SettingsWriter::end()
{
    m_locks.clear();
    return std::exchange(m_outcome, {});
}
