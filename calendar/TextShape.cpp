// SPDX-License-Identifier: MIT
#include "calendar/TextShape.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr double kUnlimitedWidth = 1e6;

/// Byte offsets in the table "hhea" of big-endian 16-bit integers in font units.
constexpr qsizetype kAscender = 4;
constexpr qsizetype kDescender = 6;
constexpr qsizetype kEndOfDescender = 8;

struct Extent
{
    double ascent;
    double descent;
};

/// The extent that the designer of \p font specified. Qt uses the one for Windows, which prevents
/// clipping and need not be symmetrical about the letters.
Extent designedExtent(const QRawFont &font)
{
    const QByteArray table = font.fontTable("hhea");
    if (table.size() < kEndOfDescender || font.unitsPerEm() <= 0.0)
        return {font.ascent(), font.descent()};
    const double unit = font.pixelSize() / font.unitsPerEm();
    const auto length = [&](qsizetype offset) {
        return qFromBigEndian<qint16>(table.constData() + offset) * unit;
    };
    const Extent extent{length(kAscender), -length(kDescender)};
    return extent.ascent + extent.descent > 0.0 ? extent : Extent{font.ascent(), font.descent()};
}

void addGlyphs(TextShape &shape, const QGlyphRun &run, double baseline)
{
    const QRawFont font = run.rawFont();
    const Extent extent = designedExtent(font);
    shape.ascent = std::max(shape.ascent, extent.ascent);
    shape.descent = std::max(shape.descent, extent.descent);
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
        const QPointF &position = positions.at(i);
        shape.outline.addPath(
            font.pathForGlyph(glyphs.at(i)).translated(position.x(), position.y() - baseline));
    }
}

} // namespace

TextShape textShape(const QString &text, const QFont &font)
{
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::NoWrap);
    QTextLayout layout(text, font);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (!line.isValid())
        return {};
    line.setLineWidth(kUnlimitedWidth);
    layout.endLayout();

    TextShape shape{{}, line.naturalTextWidth()};
    shape.outline.setFillRule(Qt::WindingFill);
    const QList<QGlyphRun> runs = line.glyphRuns();
    for (const QGlyphRun &run : runs)
        addGlyphs(shape, run, line.ascent());
    return shape;
}

TextShape sideBySide(const TextShape &left, double gap, const TextShape &right)
{
    const double start = left.width + gap;
    TextShape shape{left.outline, start + right.width, std::max(left.ascent, right.ascent),
                    std::max(left.descent, right.descent)};
    shape.outline.addPath(right.outline.translated(start, 0.0));
    return shape;
}
