// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Glide.h"

#include <QTimer>
#include <QWidget>

class QScrollArea;

/// A draggable scroll indicator over the right edge of a scroll area. It is visible during
/// scrolling, shortly after it, and while the pointer is on it.
class OverlayScroller : public QWidget
{
    Q_OBJECT

public:
    /// Becomes a child of \p area and follows its size. \p clocks must outlive the scroller.
    OverlayScroller(const platform::Clocks &clocks, QScrollArea *area);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// Shows the scroller briefly; hides it when there is nothing to scroll.
    void flash();
    void fade();
    QRectF knob() const;

    QScrollArea *m_area;
    QTimer m_linger;
    Glide m_fade;
    double m_dragOffset = 0.0;
};
