// SPDX-License-Identifier: MIT
#include "prefs/NamedSettings.h"

#include "platform/HexColor.h"
#include "prefs/NightSettings.h"
#include "prefs/SaverPreferences.h"
#include "prefs/Variants.h"

#include <QTime>

#include <array>

using namespace Qt::StringLiterals;

namespace {

using Value = std::optional<QVariant>;

Value oneOf(const QStringList &values, const QString &text)
{
    return values.contains(text) ? Value(text) : std::nullopt;
}

Value variantFrom(const QString &text)
{
    return oneOf(popupVariants() + QStringList{kRandomVariant}, text);
}

Value colorFrom(const QString &text)
{
    const QString hex = normalizedHexStringFromString(text);
    return hex.isNull() ? std::nullopt : Value(hex);
}

Value switchFrom(const QString &text)
{
    const Value word = oneOf({u"true"_s, u"false"_s}, text);
    return word ? Value(word == u"true"_s) : std::nullopt;
}

Value minuteFrom(const QString &text)
{
    if (const QTime time = QTime::fromString(text, u"H:mm"_s); time.isValid())
        return qlonglong(minuteOfDay(time));
    bool ok = false;
    const qlonglong minute = text.toLongLong(&ok);
    return ok && minute >= 0 && minute <= kLastMinuteOfDay ? Value(minute) : std::nullopt;
}

Value startModeFrom(const QString &text)
{
    return oneOf({kNightSunsetMode, kNightCustomMode}, text);
}

Value endModeFrom(const QString &text)
{
    return oneOf({kNightSunriseMode, kNightCustomMode}, text);
}

struct Setting
{
    QString key;
    /// Null for a setting outside the night record.
    QString nightKey;
    Value (*read)(const QString &);

    QString name() const { return nightKey.isNull() ? key : key + u'.' + nightKey; }
};

const std::array<Setting, 11> &allSettings()
{
    static const std::array<Setting, 11> settings{{
        {kSelectedVariantKey, {}, variantFrom},
        {kCustomBaseColorKey, {}, colorFrom},
        {kCustomMarkColorKey, {}, colorFrom},
        {kCalendarEnabledKey, {}, switchFrom},
        {kNightSettingsKey, kNightEnabledKey, switchFrom},
        {kNightSettingsKey, kNightFromModeKey, startModeFrom},
        {kNightSettingsKey, kNightFromKey, minuteFrom},
        {kNightSettingsKey, kNightToModeKey, endModeFrom},
        {kNightSettingsKey, kNightToKey, minuteFrom},
        {kNightSettingsKey, kNightBaseKey, colorFrom},
        {kNightSettingsKey, kNightMarkKey, colorFrom},
    }};
    return settings;
}

const Setting *settingNamed(const QString &name)
{
    for (const Setting &setting : allSettings()) {
        if (setting.name() == name)
            return &setting;
    }
    return nullptr;
}

} // namespace

const QStringList &settingNames()
{
    static const QStringList names = [] {
        QStringList list;
        for (const Setting &setting : allSettings())
            list.append(setting.name());
        return list;
    }();
    return names;
}

QString settingText(const StoredSettings &settings, const QString &name)
{
    const Setting *setting = settingNamed(name);
    if (!setting)
        return {};
    if (!setting->nightKey.isNull())
        return settings.nightSettings.value(setting->nightKey).toString();
    if (setting->key == kSelectedVariantKey)
        return settings.selectedVariant;
    if (setting->key == kCalendarEnabledKey)
        return QVariant(settings.calendarEnabled).toString();
    const bool isBase = setting->key == kCustomBaseColorKey;
    return hexStringForColor(isBase ? colorOr(settings.customBaseColor, defaultCustomBaseColor())
                                    : colorOr(settings.customMarkColor, defaultCustomMarkColor()));
}

std::optional<QVariant> settingFromText(const QString &name, const QString &text)
{
    const Setting *setting = settingNamed(name);
    return setting ? setting->read(text) : std::nullopt;
}

void storeSetting(SaverPreferences &preferences, const QString &name, const QVariant &value)
{
    const Setting *setting = settingNamed(name);
    if (!setting)
        return;
    if (!setting->nightKey.isNull()) {
        QVariantMap record = preferences.stored().nightSettings;
        record[setting->nightKey] = value;
        preferences.storeNightSettings(record);
    } else if (setting->key == kCalendarEnabledKey) {
        preferences.storeCalendarEnabled(value.toBool());
    } else if (setting->key != kSelectedVariantKey) {
        preferences.storeColor(QColor(value.toString()), setting->key);
    } else if (value == kRandomVariant) {
        preferences.storeRandomVariant();
    } else {
        preferences.storeSelectedVariant(value.toString());
    }
}
