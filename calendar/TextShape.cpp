// SPDX-License-Identifier: MIT
#include "calendar/TextShape.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

namespace {

constexpr double kUnlimitedWidth = 1e6;

void addGlyphs(QPainterPath &outline, const QGlyphRun &run, double baseline)
{
    const QRawFont font = run.rawFont();
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
        const QPointF &position = positions.at(i);
        outline.addPath(
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

    TextShape shape{{}, line.naturalTextWidth(), line.ascent(), line.descent()};
    shape.outline.setFillRule(Qt::WindingFill);
    const QList<QGlyphRun> runs = line.glyphRuns();
    for (const QGlyphRun &run : runs)
        addGlyphs(shape.outline, run, line.ascent());
    return shape;
}
