// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class QColor;
class QPainter;
class QRectF;
struct CalendarPage;
struct TextShape;

/// Draws \p page scaled to the width of \p rect, from its top-left corner: title, weekday labels
/// and day numbers in shades of \p mark, today's number in \p background on a square of \p mark.
/// Draws nothing into a rectangle without width. CalendarPicture caches the result.
void TamselDrawCalendar(QPainter &painter, const QColor &background, const QColor &mark,
                        const CalendarPage &page, const QRectF &rect);

/// Draws \p text centred vertically in \p rect, at its left edge or centred. Text wider than
/// \p rect starts at the left edge and is cut at the right one.
void TamselDrawCenteredString(QPainter &painter, const TextShape &text, const QColor &color,
                              Qt::Alignment alignment, const QRectF &rect);

/// Draws the day number \p text in the middle of \p cell: a capital of height \p capHeight would be
/// centred vertically, so that numbers of different faces share their baseline.
void TamselDrawCalendarDate(QPainter &painter, const TextShape &text, const QColor &color,
                            const QRectF &cell, double capHeight);
