// SPDX-License-Identifier: MIT
#include "calendar/TamselDrawCalendar.h"

#include "calendar/CalendarPage.h"

#include <QPainter>

namespace {

constexpr float kTextAlpha = 0.75F; // title and day numbers
constexpr float kWeekdayAlpha = 0.25F;
constexpr double kTodayRadius = 0.2; // of the square's side

QColor faded(QColor color, float alpha)
{
    color.setAlphaF(alpha);
    return color;
}

/// Draws \p text with its line starting at \p x on \p baseline.
void drawText(QPainter &painter, const TextShape &text, const QColor &color, double x,
              double baseline)
{
    const QTransform before = painter.transform();
    painter.translate(x, baseline);
    painter.fillPath(text.outline, color);
    painter.setTransform(before);
}

void drawTodaySquare(QPainter &painter, const QColor &color, const QRectF &cell, double side)
{
    QRectF square(0.0, 0.0, side, side);
    square.moveCenter(cell.center());
    QPainterPath path;
    path.addRoundedRect(square, kTodayRadius * side, kTodayRadius * side);
    painter.fillPath(path, color);
}

void drawDays(QPainter &painter, const QColor &background, const QColor &mark,
              const CalendarPage &page)
{
    const QColor ink = faded(mark, kTextAlpha);
    int index = page.leadingCells;
    const int today = index + page.month.date.day() - 1;
    for (const TextShape &day : page.days) {
        const QRectF cell = page.grid.dayCell(index);
        if (index == today)
            drawTodaySquare(painter, mark, cell, page.grid.todaySide);
        TamselDrawCalendarDate(painter, day, index == today ? background : ink, cell,
                               page.capHeight);
        ++index;
    }
}

} // namespace

void TamselDrawCalendar(QPainter &painter, const QColor &background, const QColor &mark,
                        const CalendarPage &page, const QRectF &rect)
{
    const CalendarGrid &grid = page.grid;
    const double scale = rect.width() / grid.width;
    if (scale <= 0.0)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.topLeft());
    painter.scale(scale, scale);

    const QRectF titleRect(page.titleInset, 0.0, grid.width - page.titleInset, grid.titleHeight);
    TamselDrawCenteredString(painter, page.title, faded(mark, kTextAlpha), Qt::AlignLeft,
                             titleRect);
    for (int column = 0; column < int(page.weekdays.size()); ++column) {
        TamselDrawCenteredString(painter, page.weekdays[size_t(column)], faded(mark, kWeekdayAlpha),
                                 Qt::AlignHCenter, grid.weekdayCell(column));
    }
    drawDays(painter, background, mark, page);
    painter.restore();
}

void TamselDrawCenteredString(QPainter &painter, const TextShape &text, const QColor &color,
                              Qt::Alignment alignment, const QRectF &rect)
{
    const double height = text.ascent + text.descent;
    const QRectF line(rect.x(), rect.center().y() - height / 2.0, rect.width(), height);
    const bool clipped = text.width > rect.width();
    const double inset =
        alignment & Qt::AlignHCenter && !clipped ? (rect.width() - text.width) / 2.0 : 0.0;
    if (clipped) {
        painter.save();
        painter.setClipRect(line, Qt::IntersectClip);
    }
    drawText(painter, text, color, rect.x() + inset, line.y() + text.ascent);
    if (clipped)
        painter.restore();
}

void TamselDrawCalendarDate(QPainter &painter, const TextShape &text, const QColor &color,
                            const QRectF &cell, double capHeight)
{
    const QPointF middle = cell.center();
    drawText(painter, text, color, middle.x() - text.width / 2.0, middle.y() + capHeight / 2.0);
}
