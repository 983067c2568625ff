// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QWidget>

/// The window of the options sheet: without a frame, see-through where nothing is drawn, yet able
/// to take the keyboard like any window.
class TamselSettingsWindow : public QWidget
{
    Q_OBJECT

public:
    explicit TamselSettingsWindow(QWidget *parent = nullptr);

    bool canBecomeKeyWindow() const { return true; }
    bool canBecomeMainWindow() const { return true; }

    /// Corner radius of the background in points; 0, the default, draws no background.
    double cornerRadius() const { return m_cornerRadius; }
    void setCornerRadius(double radius);

    /// Whether the window follows a drag that begins where no control takes it.
    bool movableByWindowBackground() const { return m_movable; }
    void setMovableByWindowBackground(bool movable) { m_movable = movable; }

Q_SIGNALS:
    /// Return was pressed where no control takes it.
    void defaultRequested();
    /// Escape was pressed where no control takes it, or the desktop was told to close the window;
    /// it stays unless whoever hears of it hides it.
    void cancelRequested();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void takeShape();

    double m_cornerRadius = 0.0;
    bool m_movable = false;
    /// While the window moves itself because the desktop cannot: the pointer in the window.
    QPoint m_grip;
    bool m_dragging = false;
};
