// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Glide.h"

#include <QTimer>
#include <QWidget>

class QScrollArea;

/// Shows how far a scroll area is scrolled, on top of its content at the right edge: while it
/// scrolls and a moment longer, and while the pointer is on it. It can be dragged.
class OverlayScroller : public QWidget
{
    Q_OBJECT

public:
    /// Belongs to \p area and keeps to its right edge. \p clocks must outlive it.
    OverlayScroller(const platform::Clocks &clocks, QScrollArea *area);

    /// Shows the scroller for a moment, if there is anything to scroll.
    void flash();

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void place();
    void fade();
    QRectF knob() const;

    QScrollArea *m_area;
    QTimer m_linger;
    Glide m_fade;
    double m_dragOffset = 0.0;
};

/// The knob of a scroller that is \p track long, for \p content of which \p page is seen, scrolled
/// by \p value: its position and length along the track.
struct ScrollerKnob
{
    double position;
    double length;
};
ScrollerKnob scrollerKnob(double track, double page, double content, double value);
