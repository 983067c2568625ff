// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// The opacity, 0 to 1, at which \p view and everything in it is composed onto what is below; 1
/// unless it was set.
double alphaValue(const QWidget *view);

/// Sets that opacity. It costs nothing at 1.
void setAlphaValue(QWidget *view, double alpha);
