// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QByteArray>

#include <memory>

namespace platform {

/// What the user does with the windows of a program.
enum class Interaction {
    Watching, ///< needs neither assistive technology nor an input method
    Working,
};

/// Keeps the heap small over weeks and the toolkit from starting helpers, from session services
/// that our programs do not need and from scales at which windows cannot be shown. A message that
/// is fatal to the toolkit ends the process with one line on stderr and status 1, without a core
/// dump; other messages are dropped, because hosts read our stderr through a pipe and wake up for
/// each line. To be called before any application object exists.
void prepareToolkit();

/// Prepares the toolkit and creates the application object for its platform \p qtPlatform. The
/// toolkit blocks on the session's message bus and on that of assistive technology. So it gets no
/// access to them, for the life of the process, when \p interaction is Watching or when one of them
/// does not answer within a second. Our own MessageBus does not depend on that.
std::unique_ptr<QApplication> makeApplication(int &argc, char **argv, const QByteArray &qtPlatform,
                                              Interaction interaction);

} // namespace platform
