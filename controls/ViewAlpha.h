// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// The opacity, 0 to 1, at which \p view and its children are composited; 1 by default.
double alphaValue(const QWidget *view);

/// Sets that opacity. Costs nothing while it is 1.
void setAlphaValue(QWidget *view, double alpha);
