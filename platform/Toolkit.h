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

/// Keeps the toolkit from starting helpers or registering with session services that none of our
/// programs has business with, and from scales at which nothing can be shown. To be called before
/// any application object exists.
void prepareEnvironment();

/// Makes the application object on the toolkit's platform \p qtPlatform; its messages go to
/// \p handler. The toolkit waits for the session's message bus and for that of assistive
/// technology: it is kept from them for good when it is not \p Working or when one of them does not
/// answer now, within a second. What our own MessageBus reaches does not depend on that.
std::unique_ptr<QApplication> makeApplication(int &argc, char **argv, const QByteArray &qtPlatform,
                                              Interaction interaction, QtMessageHandler handler);

/// For a message handler: ends the process with status 1 and "\p program: text" as one line on
/// stderr if the toolkit cannot go on, without the core dump it would leave. Says nothing else:
/// hosts read our stderr through a pipe and wake up for each line.
void endIfFatal(const char *program, QtMsgType type, const QString &text);

} // namespace platform
