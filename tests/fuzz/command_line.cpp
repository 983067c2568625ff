// SPDX-License-Identifier: MIT
#include "host/CommandLine.h"
#include "location/CommandLine.h"
#include "tests/fuzz/Fuzz.h"

/// One argument a line; the last line is the window that the environment names.
void tryBytes(const QByteArray &bytes)
{
    QStringList arguments = QString::fromUtf8(bytes).split(u'\n');
    const QString window = arguments.takeLast();
    arguments.prepend(QStringLiteral("tamsel-clock"));
    const auto result = host::parseCommandLine(arguments, window);
    if (const auto *options = std::get_if<host::Options>(&result))
        require(options->size.width() > 0 && options->size.height() > 0 && options->scale > 0);
    else
        require(!std::get<host::UsageError>(result).text.isEmpty());

    const auto request = location::parseCommandLine(arguments);
    const auto *location = std::get_if<location::Options>(&request);
    require(!location || location->location.isValid());
}
