// SPDX-License-Identifier: MIT
#include "host/Program.h"

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));

    const auto parsed =
        host::parseCommandLine(arguments, qEnvironmentVariable("XSCREENSAVER_WINDOW"));
    if (const auto *error = std::get_if<host::UsageError>(&parsed)) {
        host::complain(error->text);
        return host::kWrongUsage;
    }
    // Qt would take options of its own out of the command line, "-display" say; ours are the only
    // ones.
    int programNameOnly = 1;
    return host::run(std::get<host::Options>(parsed), programNameOnly, argv);
}
