// SPDX-License-Identifier: MIT
#include "platform/ExitStatus.h"

#include "platform/Translations.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace platform {

QStringList argumentsFrom(int argc, const char *const *argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int print(const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stdout);
    return kSuccess;
}

int printVersion()
{
    return print(u"%1 %2\n"_s.arg(QCoreApplication::applicationName(),
                                  QCoreApplication::applicationVersion()));
}

int complain(const QString &text, int status)
{
    const QString line = u"%1: %2\n"_s.arg(QCoreApplication::applicationName(), text);
    std::fputs(line.toLocal8Bit().constData(), stderr);
    return status;
}

int complain(const std::function<QString()> &text, int status)
{
    useLanguage();
    return complain(text(), status);
}

} // namespace platform
