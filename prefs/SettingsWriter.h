// SPDX-License-Identifier: MIT
#pragma once

#include "prefs/PreferenceStores.h"

#include <QVariant>

#include <chrono>
#include <initializer_list>
#include <memory>
#include <vector>

/// Writes settings to the stores and remembers the first fault that matters: one of the suite. The
/// suite is asked first, so what it holds is what counts; the other stores follow as far as they
/// can be written.
class SettingsWriter
{
public:
    using Store = platform::PreferenceDomain PreferenceStores::*;

    explicit SettingsWriter(PreferenceStores stores);

    /// Begins a save of several settings: nobody else writes until end(). Waits at most \p timeout
    /// for other writers of the suite; when that is refused nothing may be written.
    platform::StoreOutcome begin(std::chrono::milliseconds timeout);
    /// Writes \p value under \p key to \p stores in their order, which begins with the suite.
    void write(std::initializer_list<Store> stores, const QString &key, const QVariant &value);
    /// Ends the save: how its writes went.
    platform::StoreOutcome end();

private:
    PreferenceStores m_stores;
    std::vector<std::unique_ptr<platform::PreferenceDomain::WriteLock>> m_locks;
    platform::StoreOutcome m_outcome;
};
