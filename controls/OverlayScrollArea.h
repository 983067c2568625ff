// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

namespace platform {
class Clocks;
}

/// A see-through area that scrolls up and down, with an OverlayScroller instead of a scroll bar.
/// What gets the keyboard scrolls into view.
class OverlayScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes \p content. \p clocks must outlive the area.
    OverlayScrollArea(const platform::Clocks &clocks, QWidget *content, QWidget *parent);

    /// Scrolls \p part of the content into view, unless a pointer's button is down: what it was
    /// pressed on must not move away.
    void reveal(QWidget *part);
};
