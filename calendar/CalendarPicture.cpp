// SPDX-License-Identifier: MIT
#include "calendar/CalendarPicture.h"

#include "calendar/CalendarGrid.h"
#include "calendar/TamselCalendarLayout.h"
#include "calendar/TamselDrawCalendar.h"

#include <QPainter>

#include <cmath>

namespace {

/// Positions are rounded to a quarter of the rasteriser's resolution of 1/64 pixel, which cannot be
/// seen. The slow drift of the clock's size then changes the picture once a second or less.
constexpr double kStepsPerPixel = 256.0;

double snapped(double length)
{
    return std::round(length * kStepsPerPixel) / kStepsPerPixel;
}

} // namespace

QRectF calendarReach(const CalendarMonth &month, const QRectF &rect)
{
    const CalendarGrid grid = calendarGrid(month.portrait);
    const double scale = rect.width() / grid.width;
    const double height = grid.height(TamselCalendarRows(month.date)) * scale;
    const double margin = grid.columnGap * scale;
    return QRectF(rect.topLeft(), QSizeF(rect.width(), height))
        .adjusted(-margin, -margin, margin, margin);
}

void CalendarPicture::draw(QPainter &painter, const QColor &background, const QColor &mark,
                           const CalendarMonth &month, const QRectF &rect)
{
    if (!m_page || m_page->month != month) {
        m_page = calendarPage(month);
        m_look.reset();
    }
    const QTransform toDevice = painter.deviceTransform();
    const QRectF target = toDevice.mapRect(rect);
    const Look look{background, mark, snapped(target.x()), snapped(target.y()),
                    snapped(target.width())};
    if (rect.width() <= 0.0 || look.width <= 0.0)
        return;
    if (m_look != look)
        fill(look);
    painter.drawImage(toDevice.inverted().mapRect(QRectF(m_area)), m_pixels);
}

void CalendarPicture::fill(const Look &look)
{
    m_look = look;
    const QRectF rect(look.x, look.y, look.width, 0.0);
    m_area = calendarReach(m_page->month, rect).toAlignedRect();
    if (m_pixels.size() != m_area.size())
        m_pixels = QImage(m_area.size(), QImage::Format_ARGB32_Premultiplied);
    m_pixels.fill(Qt::transparent);
    QPainter painter(&m_pixels);
    // On transparent pixels, replacing gives the same result as blending and is several times
    // faster. Where shapes overlap, today's number on its square, both are opaque.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.translate(-m_area.topLeft());
    TamselDrawCalendar(painter, look.background, look.mark, *m_page, rect);
}
