// SPDX-License-Identifier: MIT
#include "host/XScreenSaverRegistration.h"

#include "host/CommandLine.h"
#include "host/XScreenSaverList.h"
#include "platform/FileReplacement.h"
#include "platform/SmallFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <optional>

using namespace Qt::StringLiterals;

namespace host {

using platform::Console;

namespace {

/// The command for the running program: its bare name if that is found in PATH.
QByteArray ownProgram()
{
    const QString path = QCoreApplication::applicationFilePath();
    const QString found = QStandardPaths::findExecutable(QLatin1StringView(kProgramName));
    const bool isFound =
        QFileInfo(found).canonicalFilePath() == QFileInfo(path).canonicalFilePath();
    return isFound ? QByteArray(kProgramName) : listedProgram(QFile::encodeName(path));
}

/// Replaces the file at \p path, or removes it if \p contents are empty. Returns the reason for a
/// failure.
QString replaceFile(const QString &path, const QByteArray &contents)
{
    const QFileInfo old(path);
    const bool existed = old.exists();
    const QFile::Permissions permissions = old.permissions();
    QString fault = Console::tr("cannot write %1").arg(path);
    if (contents.isEmpty())
        return !existed || QFile::remove(path) ? QString() : fault;
    platform::FileReplacement replacement(path);
    if (!replacement.write(contents) || !replacement.commit())
        return fault;
    if (existed)
        QFile::setPermissions(path, permissions);
    return {};
}

} // namespace

QString registerWithXScreenSaver(Registration wanted)
{
    const QString listed = QDir::homePath() + "/.xscreensaver"_L1;
    const QFileInfo file(listed);
    const QString linked = file.exists() ? file.canonicalFilePath() : file.symLinkTarget();
    const QString path = linked.isEmpty() ? listed : linked;
    const auto text =
        QFileInfo::exists(path) ? platform::readSmallFile(path) : std::optional(QByteArray());
    if (!text)
        return Console::tr("cannot read %1").arg(listed);
    QByteArray changed;
    if (wanted == Registration::Listed) {
        const QByteArray program = ownProgram();
        if (program.isEmpty()) {
            return Console::tr("XScreenSaver cannot run a program of that name: %1")
                .arg(QCoreApplication::applicationFilePath());
        }
        changed = withClockListed(*text, program);
    } else {
        changed = withClockUnlisted(*text);
    }
    return changed == *text ? QString() : replaceFile(path, changed);
}

} // namespace host
