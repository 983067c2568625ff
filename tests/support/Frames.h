// SPDX-License-Identifier: MIT
#pragma once

#include "calendar/TamselCalendarLayout.h"
#include "clock/ClockFrame.h"
#include "platform/Bundle.h"

#include <QImage>
#include <QPainter>

/// Frames made by hand, without a view, and their reference drawing.
namespace frames {

inline Artwork artworkOf(const QString &variant)
{
    const platform::Bundle bundle(QStringLiteral(TAMSEL_TEST_BUNDLE));
    const auto layer = [&](const QString &name) {
        return platform::SvgImage::fromFile(
            bundle.pathForResource(name, QStringLiteral("svg"), variant));
    };
    return {layer(QStringLiteral("face")), layer(QStringLiteral("hour")),
            layer(QStringLiteral("minute")), layer(QStringLiteral("second"))};
}

/// The clock alone at \p time in a view of \p size points.
inline ClockFrame frameAt(const QTime &time, const QSize &size = {320, 180}, double drift = 1.0)
{
    static const Artwork cream = artworkOf(QStringLiteral("cream"));
    ClockFrame frame;
    frame.bounds = QRectF(QPointF(), size);
    frame.background = QColor(0xff, 0xf5, 0xe8);
    frame.mark = Qt::black;
    frame.clockRect = TamselSoloClockRect(frame.bounds, drift);
    frame.artwork = cream;
    frame.angles = TamselClockAnglesForDate(QDateTime(QDate(2026, 3, 14), time));
    return frame;
}

/// A surface of \p frame's size with \p ratio device pixels per point.
inline QImage surfaceFor(const ClockFrame &frame, double ratio)
{
    QImage surface((frame.bounds.size() * ratio).toSize(), QImage::Format_RGB32);
    surface.setDevicePixelRatio(ratio);
    surface.fill(Qt::magenta);
    return surface;
}

inline QImage reference(const ClockFrame &frame, double ratio)
{
    QImage picture = surfaceFor(frame, ratio);
    FrameScratch scratch;
    QPainter painter(&picture);
    drawFrame(painter, frame, scratch);
    return picture;
}

} // namespace frames
