// SPDX-License-Identifier: MIT
#include "platform/DesktopSettings.h"

#include <QList>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

using namespace Qt::StringLiterals;

const QString kService = u"org.freedesktop.portal.Desktop"_s;
const QString kPath = u"/org/freedesktop/portal/desktop"_s;
const QString kInterface = u"org.freedesktop.portal.Settings"_s;

const QString kAppearance = u"org.freedesktop.appearance"_s;
const QString kColorScheme = u"color-scheme"_s;
const QString kAccentColor = u"accent-color"_s;
const QString kReducedMotion = u"reduced-motion"_s;
const QString kGnome = u"org.gnome.desktop.interface"_s;
const QString kEnableAnimations = u"enable-animations"_s;
const QString kKde = u"org.kde.kdeglobals.KDE"_s;
const QString kAnimationFactor = u"AnimationDurationFactor"_s;

constexpr uint kNoPreference = 0;
constexpr uint kPrefersDark = 1;
constexpr uint kPrefersLight = 2;
constexpr uint kReduceMotion = 1;

template <typename T>
std::optional<T> as(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<T>())
        return {};
    return value.value<T>();
}

std::optional<double> asNumber(const QVariant &value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

std::optional<bool> asPrefersDark(const QVariant &value)
{
    switch (as<uint>(value).value_or(kNoPreference)) {
    case kPrefersDark:
        return true;
    case kPrefersLight:
        return false;
    default:
        return {};
    }
}

/// A colour of sRGB red, green and blue, each 0 to 1. Values out of range mean "no accent colour".
QColor asColor(const QVariant &value)
{
    const auto components = as<QVariantList>(value).value_or(QVariantList());
    const auto isComponent = [](const QVariant &component) {
        const auto number = as<double>(component);
        return number && *number >= 0.0 && *number <= 1.0;
    };
    if (components.size() != 3 || !std::ranges::all_of(components, isComponent))
        return {};
    return QColor::fromRgbF(components[0].toFloat(), components[1].toFloat(),
                            components[2].toFloat());
}

} // namespace

bool DesktopSettings::wantsReducedMotion() const
{
    if (reducedMotion)
        return *reducedMotion;
    if (enableAnimations)
        return !*enableAnimations;
    return animationFactor && *animationFactor <= 0.0;
}

void DesktopSettings::take(const QString &group, const QString &key, const QVariant &value)
{
    if (group == kAppearance && key == kColorScheme) {
        prefersDark = asPrefersDark(value);
    } else if (group == kAppearance && key == kAccentColor) {
        accent = asColor(value);
    } else if (group == kAppearance && key == kReducedMotion) {
        const auto motion = as<uint>(value);
        reducedMotion = motion ? std::optional(*motion == kReduceMotion) : std::nullopt;
    } else if (group == kGnome && key == kEnableAnimations) {
        enableAnimations = as<bool>(value);
    } else if (group == kKde && key == kAnimationFactor) {
        animationFactor = asNumber(value);
    }
}

DesktopSettingsReader::DesktopSettingsReader(QObject *parent)
    : QObject(parent), m_bus(MessageBus::Kind::Session)
{
    connect(&m_bus, &MessageBus::connected, this, &DesktopSettingsReader::readAll);
    m_bus.subscribe(
        {kPath, kInterface, u"SettingChanged"_s}, this, [this](const BusMessage &signal) {
            take(signal.argument(0).toString(), signal.argument(1).toString(), signal.argument(2));
        });
}

void DesktopSettingsReader::readAll()
{
    const QList<std::pair<QString, QString>> used{{kAppearance, kColorScheme},
                                                  {kAppearance, kAccentColor},
                                                  {kAppearance, kReducedMotion},
                                                  {kGnome, kEnableAnimations},
                                                  {kKde, kAnimationFactor}};
    for (const auto &[group, key] : used)
        read(u"ReadOne"_s, group, key);
}

/// Portals before version 2 of the interface know only the older "Read".
void DesktopSettingsReader::read(const QString &method, const QString &group, const QString &key)
{
    const BusCall call{kService, kPath, kInterface, method, {group, key}};
    m_bus.call(call, [this, method, group, key](const BusMessage &reply) {
        const QString older = u"Read"_s;
        const bool isUnknown = reply.error == "org.freedesktop.DBus.Error.UnknownMethod"_L1;
        if (isUnknown && method != older) {
            read(older, group, key);
            return;
        }
        take(group, key, reply.argument());
    });
}

void DesktopSettingsReader::take(const QString &group, const QString &key, const QVariant &value)
{
    const DesktopSettings before = m_settings;
    m_settings.take(group, key, value);
    if (m_settings != before)
        Q_EMIT changed();
}

} // namespace platform
