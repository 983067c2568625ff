// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

/// Where a popover of \p size goes: above \p anchor and centred on it, below where there is no room
/// above, and in any case inside \p bounds. All in one coordinate system, y downwards.
QPoint popoverPosition(const QRect &anchor, const QSize &size, const QRect &bounds);

/// A small floating panel that belongs to an anchor. It closes on a press outside it, on Escape,
/// when the anchor goes or hides, when the anchor's window moves, hides or loses the focus, and
/// when its owner closes it; however it ends, it reports it once. A press outside also reaches the
/// control of the window it is made on, except the anchor, which so works as a switch.
class Popover : public QWidget
{
    Q_OBJECT

public:
    /// Takes \p content, which has its size already. Belongs to \p anchor.
    Popover(QWidget *content, QWidget *anchor);
    ~Popover() override;

    /// Shows the panel beside its anchor, with the keyboard in the content.
    void present();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void closed();

protected:
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void closeUnlessFocused();
    void focusFirst(Qt::FocusReason reason);
    QWidget *controlAt(const QPointF &globalPosition) const;
    void reportOnce();

    /// What was pressed outside and gets the pointer's events until its release.
    QPointer<QWidget> m_pressed;
    bool m_reported = false;
};
