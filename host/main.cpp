// SPDX-License-Identifier: MIT
#include "host/Program.h"

#include <QCoreApplication>

int main(int argc, char **argv)
{
    QCoreApplication::setApplicationName(QLatin1StringView(host::kProgramName));
    QCoreApplication::setApplicationVersion(QStringLiteral(TAMSEL_VERSION));
    const auto parse = [&] {
        return host::parseCommandLine(platform::argumentsFrom(argc, argv),
                                      qEnvironmentVariable("XSCREENSAVER_WINDOW"));
    };
    const auto parsed = parse();
    // Once more, now in the user's language.
    if (std::holds_alternative<host::UsageError>(parsed))
        return platform::complain([&] { return std::get<host::UsageError>(parse()).text; },
                                  platform::kWrongUsage);
    // Keeps Qt from reading options of its own, such as "-display".
    int programNameOnly = 1;
    return host::run(std::get<host::Options>(parsed), programNameOnly, argv);
}
