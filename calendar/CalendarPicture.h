// SPDX-License-Identifier: MIT
#pragma once

#include "calendar/CalendarPage.h"

#include <QColor>
#include <QImage>
#include <QRectF>

#include <optional>

class QPainter;

/// Everything that \p month covers when it is drawn into \p rect. Today's square stands out from
/// its cell, some scripts stand out from their line.
QRectF calendarReach(const CalendarMonth &month, const QRectF &rect);

/// The month as pixels, kept from frame to frame. It is laid out when the day, the locale or the
/// arrangement changes, and filled anew when the colours change or the month moves or grows by
/// 1/256 pixel of the device. What has been kept never shows: a fresh picture draws the same
/// pixels.
class CalendarPicture
{
public:
    /// Draws \p month as TamselDrawCalendar() does. \p painter may be scaled and moved, not turned.
    void draw(QPainter &painter, const QColor &background, const QColor &mark,
              const CalendarMonth &month, const QRectF &rect);

private:
    /// What the pixels depend on beside the page.
    struct Look
    {
        QColor background;
        QColor mark;
        // On the device; the height follows.
        double x;
        double y;
        double width;

        bool operator==(const Look &) const = default;
    };

    void fill(const Look &look);

    std::optional<CalendarPage> m_page;
    std::optional<Look> m_look;
    QImage m_pixels;
    /// Where the pixels stand on the device.
    QRect m_area;
};
