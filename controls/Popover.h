// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

/// The position of a popover of \p size: centred above \p anchor, or below it when there is no room
/// above; always inside \p bounds. All in one coordinate system with y downwards.
QPoint popoverPosition(const QRect &anchor, const QSize &size, const QRect &bounds);

/// A small floating panel beside its anchor. It closes on a press outside it, on Escape, when the
/// anchor is moved, hidden or destroyed, when the anchor's window is moved, hidden or loses the
/// focus, and when its owner closes it. It emits closed() exactly once. A press outside is passed
/// on to the control of the anchor's window under the pointer, except to the anchor itself, which
/// would open the popover again.
class Popover : public QWidget
{
    Q_OBJECT

public:
    /// Takes ownership of \p content, whose size becomes the panel's; the window is wider by the
    /// panel's shadow. Becomes a child of \p anchor.
    Popover(QWidget *content, QWidget *anchor);
    ~Popover() override;

    /// Shows the panel and gives the keyboard focus to its content.
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

    /// The control that was pressed outside; it receives all mouse events until the release.
    QPointer<QWidget> m_pressed;
    bool m_reported = false;
};
