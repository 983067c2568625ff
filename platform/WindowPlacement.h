// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include <optional>

class QWidget;

namespace platform {

/// The part of the screen around \p view that windows may cover, in global coordinates. None where
/// programs do not know where their windows stand: there the desktop itself keeps popups on the
/// screen.
std::optional<QRect> placementBounds(const QWidget *view);

} // namespace platform
