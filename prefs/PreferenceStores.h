// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PreferenceDomain.h"

/// Names the saver module: its preferences and its notifications.
inline const QString kModuleIdentifier = QStringLiteral("org.tamsel.VornakClockSaver");
/// The module's short name, under which settings were kept before it had an identifier.
inline const QString kModuleShortName = QStringLiteral("VornakClockSaver");
/// Tells every running view that a stored setting changed.
inline const QString kVariantChangedNotification =
    QStringLiteral("org.tamsel.VornakClockSaver.variantChanged");

/// The four preference domains a setting may stand in. A cheap value; the files need not exist.
struct PreferenceStores
{
    /// The stores in \p folder, as seen by the program called \p programName.
    PreferenceStores(const QString &folder, const QString &programName);

    /// The suite that every process of the module shares; asked first, written first.
    platform::PreferenceDomain suite;
    /// The screen-saver defaults under the module's identifier.
    platform::PreferenceDomain saverDefaults;
    /// The screen-saver defaults under the module's short name.
    platform::PreferenceDomain shortNameDefaults;
    /// The running program's own defaults: a mirror that is written and never read.
    platform::PreferenceDomain standardDefaults;
};
