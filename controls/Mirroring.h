// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QStyle>
#include <QWidget>

// Where people read from the right, everything stands mirrored.

/// Gives \p part its place \p frame in its parent, whose width is known.
inline void place(QWidget *part, const QRect &frame)
{
    part->setGeometry(
        QStyle::visualRect(part->layoutDirection(), part->parentWidget()->rect(), frame));
}

/// Makes \p painter draw on \p view mirrored. Not for text.
inline void mirrorFor(const QWidget *view, QPainter &painter)
{
    if (view->isRightToLeft()) {
        painter.translate(view->width(), 0.0);
        painter.scale(-1.0, 1.0);
    }
}
