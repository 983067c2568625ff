// SPDX-License-Identifier: MIT
#include "host/IdleAtLogin.h"

#include "platform/Bundle.h"
#include "platform/ExitStatus.h"
#include "platform/FileReplacement.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace host {

using platform::Console;

namespace {

/// \p path as an argument in the Exec key of a desktop entry: quoted, with the backslashes that
/// quoting needs doubled because the value is a string, and without field codes.
QString execArgument(const QString &path)
{
    QString argument;
    for (const QChar c : path) {
        if (u"\"`$\\"_s.contains(c))
            argument += c == u'\\' ? u"\\\\\\"_s : u"\\\\"_s;
        argument += c;
        if (c == u'%')
            argument += c;
    }
    return u'"' + argument + u'"';
}

QByteArray entry()
{
    return u"[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Tamsel Clock on an idle screen\n"
           "Exec=%1 --idle\n"
           "Icon=org.tamsel.clock\n"
           "NoDisplay=true\n"_s.arg(execArgument(platform::programPath()))
               .toUtf8();
}

} // namespace

QString startWaitingAtLogin(bool wanted)
{
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/autostart"_L1;
    const QString path = folder + "/org.tamsel.clock.idle.desktop"_L1;
    if (!wanted)
        return !QFileInfo::exists(path) || QFile::remove(path)
                   ? QString()
                   : Console::tr("cannot remove %1").arg(path);
    platform::makePrivateFolder(folder);
    platform::FileReplacement replacement(path);
    return replacement.write(entry()) && replacement.commit()
               ? QString()
               : Console::tr("cannot write %1").arg(path);
}

} // namespace host
