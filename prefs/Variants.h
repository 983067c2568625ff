// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QHash>
#include <QStringList>

/// The colour variants: their identifiers, their names for the user and their plain colours.

/// Stands for a variant that each start picks anew; honoured where it is stored.
inline const QString kRandomVariant = QStringLiteral("random");
/// The variants with artwork of their own; "random" picks among exactly these.
const QStringList &availableVariants();
/// The variants that the options sheet may store as the selected one.
const QStringList &popupVariants();
/// In the user's language.
QHash<QString, QString> variantLabels();
/// The background of each variant with artwork of its own.
const QHash<QString, QColor> &backgroundColors();
/// The marks' colour in the artwork of \p variant; black for a variant without artwork.
QColor markColorOf(const QString &variant);

/// The custom variant's colours where none are stored.
QColor defaultCustomBaseColor();
QColor defaultCustomMarkColor();
