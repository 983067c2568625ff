// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Bundle.h"
#include "platform/SvgImage.h"

#include <QColor>
#include <QFont>
#include <QSizeF>

/// A one-colour drawing that stands beside text and takes its size and weight from it. The files in
/// the bundle's "symbols" folder are drawn in hundredths of the point size, with strokes for the
/// regular weight; the drawing's box is centred where the eye sees its middle. A cheap value, null
/// when there is no such drawing.
class Symbol
{
public:
    Symbol() = default;

    /// The symbol \p name at \p pointSize; a weight above regular widens its strokes.
    static Symbol named(const QString &name, double pointSize, QFont::Weight weight = QFont::Normal,
                        const platform::Bundle &bundle = platform::Bundle::ofProgram());

    bool isNull() const { return m_image.isNull(); }
    /// In points.
    QSizeF size() const { return m_size; }

    /// Draws the symbol at its own size in the middle of \p rect, its shape filled with \p ink.
    void draw(QPainter &painter, const QRectF &rect, const QColor &ink) const;

private:
    platform::SvgImage m_image;
    QSizeF m_size;
};

/// Draws \p image into \p rect with every colour replaced by \p ink, which the image's own alpha
/// masks. A null image draws nothing.
void drawTinted(QPainter &painter, const platform::SvgImage &image, const QRectF &rect,
                const QColor &ink);
