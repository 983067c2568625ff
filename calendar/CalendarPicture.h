// SPDX-License-Identifier: MIT
#pragma once

#include "calendar/CalendarPage.h"

#include <QColor>
#include <QImage>
#include <QRectF>

#include <optional>

class QPainter;

/// The area that \p month may cover when it is drawn into \p rect. Today's square exceeds its cell,
/// and glyphs of some scripts exceed their line.
QRectF calendarReach(const CalendarMonth &month, const QRectF &rect);

/// The pixels of the month, cached from frame to frame. The layout is made again when the day, the
/// locale or the arrangement changes, the pixels when the colours change or the month moves or
/// grows by 1/256 device pixel. The cache never shows: a new object draws the same pixels.
class CalendarPicture
{
public:
    /// Draws \p month as TamselDrawCalendar() does. \p painter may be scaled and translated, but
    /// not rotated.
    void draw(QPainter &painter, const QColor &background, const QColor &mark,
              const CalendarMonth &month, const QRectF &rect);

private:
    /// What the pixels depend on, apart from the page.
    struct Look
    {
        QColor background;
        QColor mark;
        // In device pixels; the height follows from the width.
        double x;
        double y;
        double width;

        bool operator==(const Look &) const = default;
    };

    void fill(const Look &look);

    std::optional<CalendarPage> m_page;
    std::optional<Look> m_look;
    QImage m_pixels;
    /// The place of the pixels on the device.
    QRect m_area;
};
