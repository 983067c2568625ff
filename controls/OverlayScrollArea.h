// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

namespace platform {
class Clocks;
}

/// A transparent, vertical scroll area with an OverlayScroller instead of a scroll bar. It scrolls
/// the focused widget into view.
class OverlayScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes ownership of \p content. \p clocks must outlive the area.
    OverlayScrollArea(const platform::Clocks &clocks, QWidget *content, QWidget *parent);

    /// Scrolls \p part of the content into view. Does nothing while a mouse button is down, so that
    /// the pressed control does not move away from the pointer.
    void reveal(QWidget *part);
};
