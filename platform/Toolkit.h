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

/// Sets environment variables so that the toolkit starts no helpers, registers with no session
/// services that our programs do not need, and uses no scale at which windows cannot be shown. To
/// be called before any application object exists.
void prepareEnvironment();

/// Creates the application object for the toolkit's platform \p qtPlatform; the toolkit's messages
/// go to \p handler. The toolkit blocks on the session's message bus and on that of assistive
/// technology. So it gets no access to them, for the life of the process, when \p interaction is
/// Watching or when one of them does not answer within a second. Our own MessageBus does not depend
/// on that.
std::unique_ptr<QApplication> makeApplication(int &argc, char **argv, const QByteArray &qtPlatform,
                                              Interaction interaction, QtMessageHandler handler);

/// For a message handler. A fatal message ends the process with status 1 and one line "program:
/// text" on stderr, without the toolkit's core dump. Other messages are dropped, because hosts read
/// our stderr through a pipe and wake up for each line.
void endIfFatal(const char *program, QtMsgType type, const QString &text);

} // namespace platform
