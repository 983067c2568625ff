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
    // The window's background shows through, which may have round corners.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    new OverlayScroller(clocks, this);
    // QScrollArea itself follows the Tab key, and only from one of its widgets to another.
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
