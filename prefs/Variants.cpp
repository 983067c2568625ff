// SPDX-License-Identifier: MIT
#include "prefs/Variants.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

struct VariantText
{
    Q_DECLARE_TR_FUNCTIONS(Variants)
};

} // namespace

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

QHash<QString, QString> variantLabels()
{
    return {
        {u"orange"_s, VariantText::tr("Orange")},    {u"blue"_s, VariantText::tr("Blue")},
        {u"cream"_s, VariantText::tr("Cream")},      {u"nero"_s, VariantText::tr("Nero")},
        {kRandomVariant, VariantText::tr("Random")}, {u"custom"_s, VariantText::tr("Custom")},
    };
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
