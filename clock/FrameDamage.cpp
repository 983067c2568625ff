// SPDX-License-Identifier: MIT
#include "clock/FrameDamage.h"

#include "clock/ColorBlend.h"

#include <QTransform>
#include <QVarLengthArray>
#include <QtMath>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

/// In device pixels; below the resolution of positions in the rasteriser.
constexpr double kDriftStep = 1.0 / 64.0;

/// Rows of the strips that a hand is covered with. Lower strips follow a slanting hand more
/// closely, fewer are quicker to present.
constexpr int kStripRows = 64;

/// Enough for a 4K screen; more are allocated on the heap.
constexpr int kUsualStrips = 36;

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
    explicit Strips(const QRect &view)
        : m_view(view), m_firstStrip(stripAt(view.top())),
          m_boxes(stripAt(view.bottom()) - m_firstStrip + 1)
    {
    }

    /// \p corners are those of a convex shape, in turn.
    void add(const std::array<QPointF, 4> &corners)
    {
        const auto [highest, lowest] =
            std::minmax_element(corners.begin(), corners.end(),
                                [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
        const int last =
            std::min(stripAt(lowest->y() + kInkMargin), m_firstStrip + int(m_boxes.size()) - 1);
        for (int strip = std::max(stripAt(highest->y() - kInkMargin), m_firstStrip); strip <= last;
             ++strip)
            addPart(corners, strip);
    }

    QRegion region() const
    {
        QVarLengthArray<QRect, kUsualStrips> rects;
        int strip = m_firstStrip;
        for (const Box &box : m_boxes) {
            const QRect rows(m_view.x(), strip++ * kStripRows, m_view.width(), kStripRows);
            const QRect pixels = box.pixels() & rows & m_view;
            if (!pixels.isEmpty())
                rects.append(pixels);
        }
        QRegion region;
        region.setRects(rects.constData(), int(rects.size()));
        return region;
    }

private:
    struct Box
    {
        double left = std::numeric_limits<double>::max();
        double top = std::numeric_limits<double>::max();
        double right = std::numeric_limits<double>::lowest();
        double bottom = std::numeric_limits<double>::lowest();

        void add(double x, double y)
        {
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }

        QRect pixels() const
        {
            if (left > right)
                return {};
            return QRectF(QPointF(left, top), QPointF(right, bottom))
                .adjusted(-kInkMargin, -kInkMargin, kInkMargin, kInkMargin)
                .toAlignedRect();
        }
    };

    static int stripAt(double y) { return int(std::floor(y / kStripRows)); }

    /// Adds the part of the shape that touches pixels of the strip.
    void addPart(const std::array<QPointF, 4> &corners, int strip)
    {
        const double top = strip * kStripRows - kInkMargin;
        const double bottom = (strip + 1) * kStripRows + kInkMargin;
        Box &box = m_boxes[strip - m_firstStrip];
        for (size_t i = 0; i < corners.size(); ++i) {
            QPointF upper = corners[i];
            QPointF lower = corners[(i + 1) % corners.size()];
            if (upper.y() > lower.y())
                std::swap(upper, lower);
            if (lower.y() < top || upper.y() > bottom)
                continue;
            const double height = lower.y() - upper.y();
            const auto addAt = [&](double y) {
                const double along = height > 0.0 ? (y - upper.y()) / height : 0.0;
                box.add(upper.x() + along * (lower.x() - upper.x()), y);
            };
            addAt(std::max(top, upper.y()));
            addAt(std::min(bottom, lower.y()));
            if (height == 0.0)
                box.add(lower.x(), lower.y());
        }
    }

    QRect m_view;
    int m_firstStrip;
    QVarLengthArray<Box, kUsualStrips> m_boxes;
};

/// The outline of \p hand turned by \p degrees in a clock at \p clock (device pixels), a square.
void addHand(Strips &strips, const platform::SvgImage &hand, const QRectF &clock, double degrees)
{
    const double cosine = clock.width() * std::cos(qDegreesToRadians(degrees));
    const double sine = clock.width() * std::sin(qDegreesToRadians(degrees));
    const QPointF centre = clock.center();
    // From the unit square of the picture, rotated about its centre.
    const QTransform place(cosine, sine, -sine, cosine, centre.x() - 0.5 * (cosine - sine),
                           centre.y() - 0.5 * (sine + cosine));
    for (const QRectF &box : hand.inkBoxes()) {
        strips.add({place.map(box.topLeft()), place.map(box.topRight()),
                    place.map(box.bottomRight()), place.map(box.bottomLeft())});
    }
}

/// Pixels that are not wholly inside the view count as well.
QRect wholeView(const ClockFrame &frame, double ratio)
{
    return QTransform::fromScale(ratio, ratio).mapRect(frame.bounds).toAlignedRect();
}

bool sameApartFromPlaces(const ClockFrame &a, const ClockFrame &b)
{
    return a.bounds == b.bounds && shownColor(a.background) == shownColor(b.background) &&
           shownColor(a.mark) == shownColor(b.mark) && a.artwork == b.artwork &&
           a.tinted == b.tinted && a.calendar.has_value() == b.calendar.has_value() &&
           (!a.calendar || a.calendar->month == b.calendar->month);
}

/// Where clock and calendar, as far as they stand still, have ink in two frames between which they
/// only moved.
QRegion movedInk(const ClockFrame &shown, const ClockFrame &next, double ratio)
{
    const QTransform toDevice = QTransform::fromScale(ratio, ratio);
    Strips hands(wholeView(next, ratio));
    for (const ClockFrame *frame : {&shown, &next}) {
        const QRectF clock = toDevice.mapRect(frame->clockRect);
        addHand(hands, frame->artwork.hourImage, clock, frame->angles.hour);
        addHand(hands, frame->artwork.minuteImage, clock, frame->angles.minute);
        addHand(hands, frame->artwork.secondImage, clock, frame->angles.second);
    }
    QRegion region = hands.region();
    const auto add = [&](const QRectF &before, const QRectF &after) {
        region += toDevice.mapRect(before.united(after))
                      .adjusted(-kInkMargin, -kInkMargin, kInkMargin, kInkMargin)
                      .toAlignedRect();
    };
    for (const QRectF &cell : next.artwork.faceImage.inkCells()) {
        const auto placed = [&cell](const QRectF &clock) {
            return QRectF(clock.x() + cell.x() * clock.width(),
                          clock.y() + cell.y() * clock.height(), cell.width() * clock.width(),
                          cell.height() * clock.height());
        };
        add(placed(shown.clockRect), placed(next.clockRect));
    }
    if (next.calendar) {
        const CalendarMonth &month = next.calendar->month;
        add(calendarReach(month, shown.calendar->rect), calendarReach(month, next.calendar->rect));
    }
    return region;
}

} // namespace

bool sameApartFromHands(const ClockFrame &a, const ClockFrame &b)
{
    return sameApartFromPlaces(a, b) && a.clockRect == b.clockRect && a.calendar == b.calendar;
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

bool covers(const QRegion &region, const QRect &rect)
{
    return QRegion(rect).subtracted(region).isEmpty();
}

QRegion pixelsTouched(const QRegion &points, const QTransform &toDevice)
{
    if (toDevice.isIdentity())
        return points;
    QRegion pixels;
    for (const QRect &rect : points)
        pixels += toDevice.mapRect(QRectF(rect)).toAlignedRect();
    return pixels;
}

QRegion pointsCovering(const QRegion &pixels, double ratio)
{
    if (ratio == 1.0)
        return pixels;
    const double margin = ratio == std::floor(ratio) ? 0.0 : 1.0;
    const QTransform toPoints = QTransform::fromScale(1.0 / ratio, 1.0 / ratio);
    QRegion points;
    for (const QRect &rect : pixels) {
        points += toPoints.mapRect(QRectF(rect).adjusted(-margin, -margin, margin, margin))
                      .toAlignedRect();
    }
    return points;
}

QRegion secondHandWay(const ClockFrame &shown, const ClockFrame &next, double degrees, double ratio)
{
    const QRectF clock = QTransform::fromScale(ratio, ratio).mapRect(next.clockRect);
    const double from = next.angles.second;
    Strips strips(wholeView(next, ratio));
    for (const double angle : {shown.angles.second, from, from + degrees / 2, from + degrees})
        addHand(strips, next.artwork.secondImage, clock, angle);
    return strips.region();
}

QRegion frameDamage(const ClockFrame &shown, const ClockFrame &next, double ratio)
{
    const QRect whole = wholeView(next, ratio);
    if (!sameApartFromHands(shown, next)) {
        return sameApartFromPlaces(shown, next) ? movedInk(shown, next, ratio) & whole : whole;
    }
    const QRectF clock = QTransform::fromScale(ratio, ratio).mapRect(next.clockRect);
    Strips strips(whole);
    const auto addMoved = [&](const platform::SvgImage &hand, double from, double to) {
        if (from == to)
            return;
        addHand(strips, hand, clock, from);
        addHand(strips, hand, clock, to);
    };
    addMoved(next.artwork.hourImage, shown.angles.hour, next.angles.hour);
    addMoved(next.artwork.minuteImage, shown.angles.minute, next.angles.minute);
    addMoved(next.artwork.secondImage, shown.angles.second, next.angles.second);
    return strips.region();
}
