// SPDX-License-Identifier: MIT
// The variants of the saver view and the loading of their artwork.
#include "saver/TamselClockSaverView.h"

#include "night/NightSettings.h"
#include "platform/SmallFile.h"
#include "prefs/HexColor.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kArtworkExtension("svg");
constexpr QLatin1StringView kTemplateVariant("orange");

/// The four layers, each made by \p image from its name.
template <typename ImageNamed>
Artwork artworkFrom(ImageNamed image)
{
    return {image(u"face"_s), image(u"hour"_s), image(u"minute"_s), image(u"second"_s)};
}

} // namespace

const QStringList &TamselClockSaverView::availableVariants()
{
    static const QStringList variants{u"orange"_s, u"blue"_s, u"cream"_s, u"nero"_s};
    return variants;
}

const QStringList &TamselClockSaverView::popupVariants()
{
    static const QStringList variants{u"orange"_s, u"blue"_s, u"cream"_s, u"nero"_s, u"custom"_s};
    return variants;
}

const QHash<QString, QString> &TamselClockSaverView::variantLabels()
{
    static const QHash<QString, QString> labels{
        {u"orange"_s, u"Orange"_s}, {u"blue"_s, u"Blue"_s},     {u"cream"_s, u"Cream"_s},
        {u"nero"_s, u"Nero"_s},     {u"random"_s, u"Random"_s}, {u"custom"_s, u"Custom"_s},
    };
    return labels;
}

const QHash<QString, QColor> &TamselClockSaverView::backgroundColors()
{
    static const QHash<QString, QColor> colors{
        {u"orange"_s, QColor::fromRgbF(1.0F, 0.2745F, 0.0F)},
        {u"blue"_s, QColor::fromRgbF(0.0F, 0.1294F, 0.8157F)},
        {u"cream"_s, QColor::fromRgbF(1.0F, 0.9608F, 0.9098F)},
        {u"nero"_s, QColor(Qt::black)},
    };
    return colors;
}

void TamselClockSaverView::loadSelectedVariant()
{
    m_settings.lastStoredVariant = storedSelectedVariant();
    m_settings.calendarEnabled = storedCalendarEnabled();
    m_settings.lastStoredCalendarEnabled = m_settings.calendarEnabled;
    m_settings.lastStoredNightSettings = storedNightSettings();
    if (nightActiveAtDate(scheduleDate(), m_settings.lastStoredNightSettings))
        loadNightPalette();
    else
        loadDayPalette();
}

void TamselClockSaverView::loadNightPalette()
{
    if (m_palette.activeVariant == "night"_L1)
        return;
    m_palette.activeVariant = u"night"_s;
    const QVariantMap &night = m_settings.lastStoredNightSettings;
    const QColor mark = colorFromHexString(night.value(kNightMarkKey).toString());
    m_palette.backgroundColor = colorFromHexString(night.value(kNightBaseKey).toString());
    m_palette.artwork = customArtwork(mark);
}

void TamselClockSaverView::loadDayPalette()
{
    QString variant = m_settings.lastStoredVariant;
    if (variant == "random"_L1) {
        const auto count = int(availableVariants().size());
        variant = availableVariants().at(QRandomGenerator::system()->bounded(count));
    }
    if (!popupVariants().contains(variant))
        variant = availableVariants().first();
    if (m_palette.activeVariant == variant)
        return;
    m_palette.activeVariant = variant;
    if (variant == "custom"_L1) {
        m_settings.lastStoredCustomBaseColor = customBaseColor();
        m_settings.lastStoredCustomMarkColor = customMarkColor();
        loadCustomArtwork();
        m_palette.backgroundColor = m_settings.lastStoredCustomBaseColor;
    } else {
        loadArtworkForVariant(variant);
        m_palette.backgroundColor = backgroundColors().value(variant, QColor(Qt::black));
    }
    update();
}

void TamselClockSaverView::loadArtworkForVariant(const QString &variant)
{
    m_palette.artwork = artworkForVariant(variant);
}

Artwork TamselClockSaverView::artworkForVariant(const QString &variant) const
{
    return artworkFrom([&](const QString &name) { return imageForVariant(variant, name); });
}

Artwork TamselClockSaverView::customArtwork(const QColor &color) const
{
    return artworkFrom([&](const QString &name) { return customImageNamed(name, color); });
}

QColor TamselClockSaverView::markColorOf(const QString &variant)
{
    return variant == "blue"_L1 || variant == "nero"_L1 ? Qt::white : Qt::black;
}

platform::SvgImage TamselClockSaverView::imageForVariant(const QString &variant,
                                                         const QString &name) const
{
    return platform::SvgImage::fromFile(
        m_desktop.bundle.pathForResource(name, kArtworkExtension, variant));
}

void TamselClockSaverView::loadCustomArtwork()
{
    m_palette.artwork = customArtwork(customMarkColor());
}

platform::SvgImage TamselClockSaverView::customImageNamed(const QString &name,
                                                          const QColor &color) const
{
    const auto svg = platform::readSmallFile(
        m_desktop.bundle.pathForResource(name, kArtworkExtension, kTemplateVariant));
    if (!svg || !QUtf8StringView(*svg).isValidUtf8())
        return {};
    return platform::SvgImage::fromSvg(recoloredArtwork(*svg, color));
}

QColor TamselClockSaverView::defaultCustomBaseColor()
{
    return backgroundColors().value(kTemplateVariant);
}

QColor TamselClockSaverView::defaultCustomMarkColor()
{
    return Qt::black;
}

QColor TamselClockSaverView::customBaseColor()
{
    return colorForKey(kCustomBaseColorKey, defaultCustomBaseColor());
}

QColor TamselClockSaverView::customMarkColor()
{
    return colorForKey(kCustomMarkColorKey, defaultCustomMarkColor());
}
