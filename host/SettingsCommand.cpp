// SPDX-License-Identifier: MIT
#include "host/SettingsCommand.h"

#include "platform/Desktop.h"
#include "platform/DistributedNotifications.h"
#include "platform/ExitStatus.h"
#include "prefs/NamedSettings.h"
#include "prefs/SaverPreferences.h"

#include <QCoreApplication>

namespace host {

using platform::Console;

namespace {

/// For how long another program's save is waited for.
constexpr std::chrono::seconds kLongestWait(2);

int complainOfName(const QString &name)
{
    return platform::complain([&] { return Console::tr("there is no setting '%1'").arg(name); },
                              platform::kWrongUsage);
}

} // namespace

int printSettings(const QString &name, int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    platform::Desktop desktop;
    desktop.preferencesFolder = platform::userPreferencesFolder();
    SaverPreferences preferences(desktop);
    const StoredSettings &stored = preferences.stored();
    QString text;
    if (name.isNull()) {
        for (const QString &each : settingNames())
            text += each + u' ' + settingText(stored, each) + u'\n';
    } else if (settingNames().contains(name)) {
        text = settingText(stored, name) + u'\n';
    } else {
        return complainOfName(name);
    }
    return platform::print(text);
}

int changeSetting(const QString &name, const QString &text, int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (!settingNames().contains(name))
        return complainOfName(name);
    const auto value = settingFromText(name, text);
    if (!value) {
        return platform::complain(
            [&] { return Console::tr("bad value for %1: '%2'").arg(name, text); },
            platform::kWrongUsage);
    }
    platform::DistributedNotifications notifications;
    platform::Desktop desktop;
    desktop.preferencesFolder = platform::userPreferencesFolder();
    desktop.notifications = &notifications;
    SaverPreferences preferences(desktop);
    platform::StoreOutcome outcome = preferences.beginSave(kLongestWait);
    if (outcome) {
        storeSetting(preferences, name, *value);
        outcome = preferences.endSave();
    }
    return outcome ? platform::kSuccess : platform::complain([&] { return outcome.text(); });
}

} // namespace host
