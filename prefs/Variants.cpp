// SPDX-License-Identifier: MIT
#include "prefs/Variants.h"

using namespace Qt::StringLiterals;

const QStringList &availableVariants()
{
    static const QStringList variants{u"orange"_s, u"blue"_s, u"cream"_s, u"nero"_s};
    return variants;
}

const QStringList &popupVariants()
{
    static const QStringList variants = availableVariants() + QStringList{u"custom"_s};
    return variants;
}

const QHash<QString, QString> &variantLabels()
{
    static const QHash<QString, QString> labels{
        {u"orange"_s, u"Orange"_s}, {u"blue"_s, u"Blue"_s},        {u"cream"_s, u"Cream"_s},
        {u"nero"_s, u"Nero"_s},     {kRandomVariant, u"Random"_s}, {u"custom"_s, u"Custom"_s},
    };
    return labels;
}

const QHash<QString, QColor> &backgroundColors()
{
    static const QHash<QString, QColor> colors{
        {u"orange"_s, QColor::fromRgbF(1.0F, 0.2745F, 0.0F)},
        {u"blue"_s, QColor::fromRgbF(0.0F, 0.1294F, 0.8157F)},
        {u"cream"_s, QColor::fromRgbF(1.0F, 0.9608F, 0.9098F)},
        {u"nero"_s, QColor(Qt::black)},
    };
    return colors;
}

QColor markColorOf(const QString &variant)
{
    return variant == "blue"_L1 || variant == "nero"_L1 ? Qt::white : Qt::black;
}

QColor defaultCustomBaseColor()
{
    return backgroundColors().value(u"orange"_s);
}

QColor defaultCustomMarkColor()
{
    return Qt::black;
}
