// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

namespace platform {

/// The Qt platform plugin that can show windows here: the user's own QT_QPA_PLATFORM, else Wayland
/// or X, whichever answers first. None when there is no display; asked before the application
/// object exists, since Qt would abort.
std::optional<QByteArray> reachablePlatform();

/// Whether the X server of DISPLAY answers.
bool xServerAnswers();

} // namespace platform
