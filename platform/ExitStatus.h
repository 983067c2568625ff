// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <functional>

namespace platform {

/// Exit statuses of our programs.
inline constexpr int kSuccess = 0;
inline constexpr int kCouldNotRun = 1;
inline constexpr int kWrongUsage = 2;
inline constexpr int kCancelled = 3;

/// A wrong use of a command line, in one line without a final full stop.
struct UsageError
{
    QString text;
};

/// The texts of our command lines.
struct Console
{
    Q_DECLARE_TR_FUNCTIONS(Console)
};

QStringList argumentsFrom(int argc, const char *const *argv);

/// Prints \p text to stdout; returns kSuccess.
int print(const QString &text);

/// Prints the application's name and version to stdout; returns kSuccess.
int printVersion();

/// Prints "application name: \p text" as one line to stderr; returns \p status.
int complain(const QString &text, int status = kCouldNotRun);

/// The same in the user's language, which is chosen before \p text is asked for its text.
int complain(const std::function<QString()> &text, int status = kCouldNotRun);

} // namespace platform
