// SPDX-License-Identifier: MIT
#include "prefs/StoredSettings.h"

#include "platform/HexColor.h"
#include "prefs/NightSettings.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kNightStores = 2; // the short name never held a night record

QString firstText(const StoreContents &contents, const QString &key)
{
    for (const QVariantMap &store : contents) {
        const QVariant value = store.value(key);
        if (value.typeId() == QMetaType::QString && !value.toString().isEmpty())
            return value.toString();
    }
    return {};
}

QString variantFrom(const StoreContents &contents)
{
    const QString variant = firstText(contents, kSelectedVariantKey);
    if (variant.isEmpty())
        return u"orange"_s;
    return variant == "black"_L1 ? u"nero"_s : variant;
}

bool calendarFrom(const StoreContents &contents)
{
    for (const QVariantMap &store : contents) {
        const QVariant value = store.value(kCalendarEnabledKey);
        if (value.isValid())
            return booleanSetting(value);
    }
    return false;
}

std::optional<QVariantMap> nightFrom(const StoreContents &contents)
{
    for (qsizetype i = 0; i < kNightStores; ++i) {
        const QVariant value = contents[size_t(i)].value(kNightSettingsKey);
        if (value.typeId() == QMetaType::QVariantMap)
            return value.toMap();
    }
    return std::nullopt;
}

} // namespace

StoredSettings settingsFrom(const StoreContents &contents)
{
    const QVariantMap night = normalizedNightSettings(nightFrom(contents));
    return {variantFrom(contents),
            calendarFrom(contents),
            colorFromHexString(firstText(contents, kCustomBaseColorKey)),
            colorFromHexString(firstText(contents, kCustomMarkColorKey)),
            night,
            booleanSetting(night.value(kNightEnabledKey))};
}

SettingsReader::SettingsReader(PreferenceStores stores) : m_stores(std::move(stores))
{
}

const StoredSettings &SettingsReader::current()
{
    const std::array<quint64, 3> generations{m_stores.suite.generation(),
                                             m_stores.saverDefaults.generation(),
                                             m_stores.shortNameDefaults.generation()};
    if (generations != m_generations) {
        m_generations = generations;
        m_settings = settingsFrom({m_stores.suite.contents(), m_stores.saverDefaults.contents(),
                                   m_stores.shortNameDefaults.contents()});
    }
    return m_settings;
}
