// SPDX-License-Identifier: MIT
#pragma once

#include "controls/FloatingPanel.h"

#include <QPoint>
#include <QWidget>

#include <optional>

/// The window of the options sheet: frameless and translucent, but able to take the keyboard focus.
/// Modal to its parent when it has one.
class TamselSettingsWindow : public QWidget
{
    Q_OBJECT

public:
    explicit TamselSettingsWindow(QWidget *parent = nullptr);

    bool canBecomeKeyWindow() const { return true; }
    bool canBecomeMainWindow() const { return true; }

    /// Corner radius of the background in points. At 0, the default, no background is drawn.
    void setCornerRadius(double radius);

    /// What the window lies on, the desktop by default. To be set before the radius.
    void setOver(PanelOver over) { m_over = over; }

    /// Whether dragging the background moves the window.
    void setMovableByWindowBackground(bool movable) { m_movable = movable; }

Q_SIGNALS:
    /// Emitted when Return is pressed, unless the focused control handles it or is a PushButton,
    /// which is clicked instead.
    void defaultRequested();
    /// Emitted when Escape is pressed and no control handles it, or when the desktop asks the
    /// window to close. The window stays open unless a receiver hides it.
    void cancelRequested();

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void takeModality();
    void takeShape();

    double m_cornerRadius = 0.0;
    PanelOver m_over = PanelOver::Desktop;
    bool m_movable = false;
    /// For desktops that cannot move a window: where the pointer drags it, in window coordinates.
    std::optional<QPoint> m_grip;
};
