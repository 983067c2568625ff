// SPDX-License-Identifier: MIT
#include "prefs/SaverPreferences.h"

#include "platform/Desktop.h"
#include "platform/DistributedNotifications.h"
#include "platform/HexColor.h"
#include "prefs/Variants.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/// Where the variant and the calendar's switch are stored.
constexpr std::initializer_list<SettingsWriter::Store> kSwitchStores{
    &PreferenceStores::suite, &PreferenceStores::standardDefaults, &PreferenceStores::saverDefaults,
    &PreferenceStores::shortNameDefaults};

constexpr std::initializer_list<SettingsWriter::Store> kColorStores{
    &PreferenceStores::suite, &PreferenceStores::saverDefaults,
    &PreferenceStores::shortNameDefaults, &PreferenceStores::standardDefaults};

constexpr std::initializer_list<SettingsWriter::Store> kNightStores{
    &PreferenceStores::suite, &PreferenceStores::saverDefaults};

} // namespace

SaverPreferences::SaverPreferences(const platform::Desktop &desktop)
    : m_notifications(desktop.notifications),
      m_reader(PreferenceStores(desktop.preferencesFolder, QCoreApplication::applicationName())),
      m_writer(m_reader.stores())
{
    if (m_notifications)
        m_notifications->observe(kVariantChangedNotification, this, [this] { Q_EMIT changed(); });
}

QColor SaverPreferences::colorForKey(const QString &key, const QColor &fallback)
{
    return colorOr(key == kCustomBaseColorKey ? stored().customBaseColor : stored().customMarkColor,
                   fallback);
}

QColor SaverPreferences::customBaseColor()
{
    return colorForKey(kCustomBaseColorKey, defaultCustomBaseColor());
}

QColor SaverPreferences::customMarkColor()
{
    return colorForKey(kCustomMarkColorKey, defaultCustomMarkColor());
}

void SaverPreferences::storeSelectedVariant(const QString &variant)
{
    QString stored = variant == "black"_L1 ? u"nero"_s : variant;
    if (!popupVariants().contains(stored))
        stored = u"orange"_s;
    writeVariant(stored);
}

void SaverPreferences::storeRandomVariant()
{
    writeVariant(kRandomVariant);
}

void SaverPreferences::writeVariant(const QString &variant)
{
    m_writer.write(kSwitchStores, kSelectedVariantKey, variant);
    tell({{kSelectedVariantKey, variant}});
}

void SaverPreferences::storeCalendarEnabled(bool enabled)
{
    m_writer.write(kSwitchStores, kCalendarEnabledKey, enabled);
    tell({{kCalendarEnabledKey, enabled}});
}

void SaverPreferences::storeColor(const QColor &color, const QString &key)
{
    m_writer.write(kColorStores, key, hexStringForColor(color));
}

void SaverPreferences::storeNightSettings(const QVariantMap &record)
{
    m_writer.write(kNightStores, kNightSettingsKey, record);
    tell({});
}

void SaverPreferences::tell(const QVariantMap &userInfo) const
{
    if (m_notifications)
        m_notifications->post(kVariantChangedNotification, userInfo);
}
