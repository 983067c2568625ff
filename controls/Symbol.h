// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Bundle.h"
#include "platform/SvgImage.h"

#include <QColor>
#include <QFont>
#include <QSizeF>

/// A one-colour drawing that stands beside text and matches its size and weight. The files in the
/// bundle's "symbols" folder use hundredths of the point size as unit and strokes of regular
/// weight; the optical centre of a drawing is the centre of its view box. Cheap to copy; null when
/// the file is missing.
class Symbol
{
public:
    Symbol() = default;

    /// Loads symbol \p name at \p pointSize, with wider strokes for a \p weight above regular.
    static Symbol named(const QString &name, double pointSize, QFont::Weight weight = QFont::Normal,
                        const platform::Bundle &bundle = platform::Bundle::ofProgram());

    bool isNull() const { return m_image.isNull(); }
    /// In points.
    QSizeF size() const { return m_size; }

    /// Draws the symbol at its own size, centred in \p rect, in the colour \p ink.
    void draw(QPainter &painter, const QRectF &rect, const QColor &ink) const;

private:
    platform::SvgImage m_image;
    QSizeF m_size;
};

/// Fills \p rect with \p ink, masked by the alpha of \p image. Draws nothing when the image is
/// null.
void drawTinted(QPainter &painter, const platform::SvgImage &image, const QRectF &rect,
                const QColor &ink);
