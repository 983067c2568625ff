// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

#include <functional>

class QWidget;

namespace platform {
class Appearance;
}

/// The light or dark appearance of \p view: the one given to the nearest view among it and its
/// ancestors, else that of the process.
const platform::Appearance &appearanceOf(const QWidget *view);

/// Gives \p view its own appearance, which views added to it later share. \p appearance must
/// outlive them.
void setAppearanceOf(QWidget *view, const platform::Appearance &appearance);

/// Calls \p apply now and at every change of the appearance of \p view, until the view is
/// destroyed.
void followAppearance(QWidget *view, const std::function<void()> &apply);

/// The palette of the appearance of \p window for Qt's own widgets.
QPalette paletteOf(const QWidget *window);

/// The accent colour of \p view, for an edge that must be seen.
QColor accentEdgeOf(const QWidget *view);

/// Gives \p window its palette, and tool tips that and our font.
void applyPalette(QWidget *window);

/// Repaints \p view whenever its appearance changes.
void redrawWithAppearance(QWidget *view);

/// \p color with its alpha replaced, 0 to 1.
QColor withAlpha(QColor color, double alpha);
