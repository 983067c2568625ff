// SPDX-License-Identifier: MIT
#include "controls/Symbol.h"

#include "platform/SmallFile.h"

#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

namespace {

constexpr double kDrawnPointSize = 100.0;
/// Relative increase of stroke width per weight step of 100 above 400.
constexpr double kWideningPerWeightStep = 0.18;

double strokeFactor(QFont::Weight weight)
{
    return 1.0 + kWideningPerWeightStep * (weight - QFont::Normal) / 100.0;
}

/// \p svg with every stroke \p factor times as wide.
QByteArray withStrokes(const QByteArray &svg, double factor)
{
    static const QRegularExpression strokeWidth(QStringLiteral("stroke-width=\"([0-9.]+)\""));
    const QString source = QString::fromUtf8(svg);
    QString result;
    qsizetype end = 0;
    for (auto matches = strokeWidth.globalMatch(source); matches.hasNext();) {
        const auto match = matches.next();
        result += QStringView(source).mid(end, match.capturedStart(1) - end);
        result += QString::number(match.capturedView(1).toDouble() * factor);
        end = match.capturedEnd(1);
    }
    return result.append(QStringView(source).mid(end)).toUtf8();
}

} // namespace

Symbol Symbol::named(const QString &name, double pointSize, QFont::Weight weight,
                     const platform::Bundle &bundle)
{
    Symbol symbol;
    const auto file = platform::readSmallFile(
        bundle.pathForResource(name, QStringLiteral("svg"), QStringLiteral("symbols")));
    if (!file)
        return symbol;
    symbol.m_image = platform::SvgImage::fromSvg(withStrokes(*file, strokeFactor(weight)));
    symbol.m_size = QSvgRenderer(*file).viewBoxF().size() * (pointSize / kDrawnPointSize);
    return symbol;
}

void Symbol::draw(QPainter &painter, const QRectF &rect, const QColor &ink) const
{
    QRectF target({}, m_size);
    target.moveCenter(rect.center());
    drawTinted(painter, m_image, target, ink);
}

void drawTinted(QPainter &painter, const platform::SvgImage &image, const QRectF &rect,
                const QColor &ink)
{
    // The mask is aligned to whole device pixels, so that drawing it does not resample it.
    const QTransform toDevice = painter.deviceTransform();
    const QRect device = toDevice.mapRect(rect).toAlignedRect();
    if (image.isNull() || device.isEmpty() || !toDevice.isInvertible())
        return;
    QImage mask(device.size(), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    QPainter maskPainter(&mask);
    maskPainter.setRenderHint(QPainter::Antialiasing);
    maskPainter.setTransform(toDevice * QTransform::fromTranslate(-device.x(), -device.y()));
    image.draw(maskPainter, rect);
    maskPainter.resetTransform();
    maskPainter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    maskPainter.fillRect(mask.rect(), ink);
    maskPainter.end();
    painter.save();
    painter.setWorldTransform(toDevice.inverted(), true);
    painter.drawImage(device.topLeft(), mask);
    painter.restore();
}
