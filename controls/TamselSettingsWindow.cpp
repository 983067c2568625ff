// SPDX-License-Identifier: MIT
#include "controls/TamselSettingsWindow.h"

#include "controls/ControlAccessibility.h"
#include "controls/PushButton.h"
#include "controls/ViewAppearance.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

TamselSettingsWindow::TamselSettingsWindow(QWidget *parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
{
    setAccessibleRole(this, QAccessible::Dialog);
    setAttribute(Qt::WA_TranslucentBackground);
    takeModality();
    followAppearance(this, [this] { applyPalette(this); });
}

void TamselSettingsWindow::setCornerRadius(double radius)
{
    m_cornerRadius = radius;
    takeShape();
    update();
}

void TamselSettingsWindow::takeShape()
{
    if (m_cornerRadius > 0.0)
        shapePanel(this, m_over, m_cornerRadius);
    else
        clearMask();
}

void TamselSettingsWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    takeShape();
}

bool TamselSettingsWindow::event(QEvent *event)
{
    if (event->type() == QEvent::ParentChange)
        takeModality();
    return QWidget::event(event);
}

void TamselSettingsWindow::takeModality()
{
    setWindowModality(parentWidget() ? Qt::WindowModal : Qt::NonModal);
}

void TamselSettingsWindow::closeEvent(QCloseEvent *event)
{
    Q_EMIT cancelRequested();
    event->setAccepted(isHidden());
}

void TamselSettingsWindow::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        Q_EMIT cancelRequested();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto *button = qobject_cast<PushButton *>(focusWidget()))
            button->click();
        else
            Q_EMIT defaultRequested();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void TamselSettingsWindow::mousePressEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    if (!m_movable || event->button() != Qt::LeftButton ||
        !panelRect(this, m_over).contains(position))
        return;
    if (windowHandle() && windowHandle()->startSystemMove())
        return;
    m_grip = position;
}

void TamselSettingsWindow::mouseMoveEvent(QMouseEvent *event)
{
    if (m_grip)
        move(event->globalPosition().toPoint() - *m_grip);
}

void TamselSettingsWindow::mouseReleaseEvent(QMouseEvent *)
{
    m_grip.reset();
}

void TamselSettingsWindow::paintEvent(QPaintEvent *event)
{
    if (m_cornerRadius <= 0.0)
        return;
    QPainter painter(this);
    drawPanel(painter, this, m_over, m_cornerRadius, event->rect());
}
