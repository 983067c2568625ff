// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class QPainter;
class QWidget;

/// The background colour of controls that take input, in the appearance of \p view. Ask for it
/// while drawing; do not store it.
QColor TamselInputFill(const QWidget *view);

/// \p fill, or TamselInputFill when it is invalid.
QColor fillOrInputFill(const QColor &fill, const QWidget *view);

/// Draws the rounded background of the input field \p view in fillOrInputFill().
void drawInputField(QPainter &painter, const QWidget *view, const QColor &fill);
