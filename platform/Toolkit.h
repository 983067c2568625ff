// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QByteArray>

#include <memory>

namespace platform {

/// What the user does with the windows of a program.
enum class Interaction {
    Watching, ///< neither assistive technology nor an input method is reached for
    Working,
};

/// Keeps the toolkit from starting helpers or registering with session services that our programs
/// do not use, and from scales at which nothing can be shown. When the toolkit cannot go on, the
/// process ends with one line on stderr and status 1, without a core dump; its other messages are
/// dropped, because hosts read stderr through a pipe and wake up for each line. To be called before
/// any application object exists.
void prepareToolkit();

/// Prepares the toolkit and makes the application object on its platform \p qtPlatform. The toolkit
/// waits for the session's message bus and for that of assistive technology: it is kept from them
/// for good when it is not \p Working or when one of them does not answer now, within a second.
/// What our own MessageBus reaches does not depend on that.
std::unique_ptr<QApplication> makeApplication(int &argc, char **argv, const QByteArray &qtPlatform,
                                              Interaction interaction);

} // namespace platform
