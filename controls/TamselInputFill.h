// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class QWidget;

/// The background of everything that takes input, in the appearance that \p view is drawn in.
/// Asked for at drawing time, never stored.
QColor TamselInputFill(const QWidget *view);
