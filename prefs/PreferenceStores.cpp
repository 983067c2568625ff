// SPDX-License-Identifier: MIT
#include "prefs/PreferenceStores.h"

using namespace Qt::StringLiterals;

namespace {

platform::PreferenceDomain domain(const QString &folder, const QString &name)
{
    return platform::PreferenceDomain(folder + u'/' + name + ".plist"_L1);
}

} // namespace

PreferenceStores::PreferenceStores(const QString &folder, const QString &programName)
    : suite(domain(folder, kModuleIdentifier)),
      saverDefaults(domain(folder + "/screensaver"_L1, kModuleIdentifier)),
      shortNameDefaults(domain(folder + "/screensaver"_L1, kModuleShortName)),
      standardDefaults(domain(folder, programName))
{
}
