// SPDX-License-Identifier: MIT
#include "controls/OverlayScrollArea.h"

#include "controls/OverlayScroller.h"

#include <QApplication>

OverlayScrollArea::OverlayScrollArea(const platform::Clocks &clocks, QWidget *content,
                                     QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    // The window draws the background, with rounded corners.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    new OverlayScroller(clocks, this);
    // QScrollArea reveals the focused widget only when Tab moves the focus between two of its own.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && widget()->isAncestorOf(now))
            reveal(now);
    });
}

void OverlayScrollArea::reveal(QWidget *part)
{
    if (QGuiApplication::mouseButtons() == Qt::NoButton)
        ensureWidgetVisible(part);
}
