// SPDX-License-Identifier: MIT
#include "saver/FrameDamage.h"

#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

/// In device pixels: finer than the drawing's own grid for positions.
constexpr double kDriftStep = 1.0 / 64.0;

/// Rows of the strips that a hand is covered with. Lower strips follow a slanting hand more
/// closely, fewer are quicker to present.
constexpr int kStripRows = 32;

/// An antialiased edge colours the pixels it touches; one more absorbs rounding.
constexpr double kInkMargin = 1.0;

bool staysPut(const QRectF &a, const QRectF &b, double ratio)
{
    const double moved =
        std::max({std::abs(a.left() - b.left()), std::abs(a.top() - b.top()),
                  std::abs(a.right() - b.right()), std::abs(a.bottom() - b.bottom())});
    return moved * ratio < kDriftStep;
}

/// The strips of one grid of rows over the whole view, each just wide and high enough for what was
/// added. Since all shapes share the grid, a hand's old and new place make one strip, not two.
class Strips
{
public:
    /// \p shape is convex.
    void add(const QPolygonF &shape)
    {
        const QRectF box = shape.boundingRect();
        const int last = stripAt(box.bottom() + kInkMargin);
        for (int strip = stripAt(box.top() - kInkMargin); strip <= last; ++strip)
            addPart(shape, strip);
    }

    QRegion region() const
    {
        QList<QRect> rects;
        for (const auto &[strip, box] : m_boxes) {
            const QRect rows(box.toAlignedRect().x(), strip * kStripRows,
                             box.toAlignedRect().width(), kStripRows);
            rects.append(box.toAlignedRect() & rows);
        }
        QRegion region;
        region.setRects(rects.constData(), int(rects.size()));
        return region;
    }

private:
    static int stripAt(double y) { return int(std::floor(y / kStripRows)); }

    /// Adds what of \p shape colours pixels of the strip.
    void addPart(const QPolygonF &shape, int strip)
    {
        const double top = strip * kStripRows - kInkMargin;
        const double bottom = (strip + 1) * kStripRows + kInkMargin;
        QPolygonF part;
        for (qsizetype i = 0; i < shape.size(); ++i) {
            QPointF upper = shape[i];
            QPointF lower = shape[(i + 1) % shape.size()];
            if (upper.y() > lower.y())
                std::swap(upper, lower);
            if (lower.y() < top || upper.y() > bottom)
                continue;
            const double height = lower.y() - upper.y();
            const auto at = [&](double y) {
                return height > 0.0 ? upper + (y - upper.y()) / height * (lower - upper) : upper;
            };
            part << at(std::max(top, upper.y()));
            part << (height > 0.0 ? at(std::min(bottom, lower.y())) : lower);
        }
        m_boxes[strip] |=
            part.boundingRect().adjusted(-kInkMargin, -kInkMargin, kInkMargin, kInkMargin);
    }

    std::map<int, QRectF> m_boxes;
};

/// The outline of \p hand turned by \p degrees in a clock at \p clock (device pixels).
void addHand(Strips &strips, const platform::SvgImage &hand, const QRectF &clock, double degrees)
{
    QTransform place;
    place.translate(clock.center().x(), clock.center().y());
    place.rotate(degrees);
    place.scale(clock.width(), clock.height());
    place.translate(-0.5, -0.5);
    for (const QRectF &box : hand.inkBoxes())
        strips.add(place.map(QPolygonF(box)));
}

/// Pixels that are not wholly inside the view count as well.
QRect wholeView(const ClockFrame &frame, double ratio)
{
    return QTransform::fromScale(ratio, ratio).mapRect(frame.bounds).toAlignedRect();
}

} // namespace

bool sameApartFromHands(const ClockFrame &a, const ClockFrame &b)
{
    return a.bounds == b.bounds && a.background == b.background && a.mark == b.mark &&
           a.clockRect == b.clockRect && a.artwork == b.artwork && a.tinted == b.tinted &&
           a.calendar == b.calendar;
}

ClockFrame withDriftHeld(const ClockFrame &shown, ClockFrame next, double ratio)
{
    const bool bothCalendars = shown.calendar && next.calendar;
    const bool held =
        shown.bounds == next.bounds && shown.calendar.has_value() == next.calendar.has_value() &&
        staysPut(shown.clockRect, next.clockRect, ratio) &&
        (!bothCalendars || staysPut(shown.calendar->rect, next.calendar->rect, ratio));
    if (!held)
        return next;
    next.clockRect = shown.clockRect;
    if (bothCalendars)
        next.calendar->rect = shown.calendar->rect;
    return next;
}

QRegion secondHandArea(const ClockFrame &frame, double ratio)
{
    const QRectF clock = QTransform::fromScale(ratio, ratio).mapRect(frame.clockRect);
    Strips strips;
    addHand(strips, frame.artwork.secondImage, clock, frame.angles.second);
    return strips.region() & wholeView(frame, ratio);
}

QRegion frameDamage(const ClockFrame &shown, const ClockFrame &next, double ratio)
{
    const QRect whole = wholeView(next, ratio);
    if (next.tinted || !sameApartFromHands(shown, next))
        return whole;
    const QRectF clock = QTransform::fromScale(ratio, ratio).mapRect(next.clockRect);
    Strips strips;
    const auto addMoved = [&](const platform::SvgImage &hand, double from, double to) {
        if (from == to)
            return;
        addHand(strips, hand, clock, from);
        addHand(strips, hand, clock, to);
    };
    addMoved(next.artwork.hourImage, shown.angles.hour, next.angles.hour);
    addMoved(next.artwork.minuteImage, shown.angles.minute, next.angles.minute);
    addMoved(next.artwork.secondImage, shown.angles.second, next.angles.second);
    return strips.region() & whole;
}
