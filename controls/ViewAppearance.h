// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

#include <functional>

class QWidget;

namespace platform {
class Appearance;
}

/// The light or dark appearance that \p view is drawn in: that of the nearest view around it that
/// was given one, else that of the process.
const platform::Appearance &appearanceOf(const QWidget *view);

/// Gives \p view, and whatever is put into it afterwards, an appearance of its own, which must
/// outlive them.
void setAppearanceOf(QWidget *view, const platform::Appearance &appearance);

/// Calls \p apply now and whenever the appearance of \p view changes, as long as the view lives.
void followAppearance(QWidget *view, const std::function<void()> &apply);

/// Repaints \p view whenever its appearance changes.
void redrawWithAppearance(QWidget *view);

/// \p color with its alpha replaced, 0 to 1.
QColor withAlpha(QColor color, double alpha);
