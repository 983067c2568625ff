// SPDX-License-Identifier: MIT
#include "platform/DamagedFile.h"

#include <QDir>
#include <QFile>
#include <QMap>

#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int kMaxCopies = 4;

QString copyPath(const QString &path, int number)
{
    return path + ".damaged"_L1 + (number == 1 ? QString() : u'-' + QString::number(number));
}

bool rename(const QString &from, const QString &to)
{
    return from == to ||
           ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

} // namespace

QStringList damagedCopies(const QString &path)
{
    const QFileInfo file(path);
    QMap<int, QString> copies;
    const QStringList names = file.dir().entryList(QDir::Files | QDir::System | QDir::Hidden);
    for (const QString &name : names) {
        const QString copy = file.absolutePath() + u'/' + name;
        const int number =
            copy == copyPath(file.absoluteFilePath(), 1) ? 1 : name.section(u'-', -1).toInt();
        if (number > 0 && copy == copyPath(file.absoluteFilePath(), number))
            copies.insert(number, copy);
    }
    return copies.values();
}

/// Between the rename and the next write the file is missing, which reads as empty, as it did when
/// it was damaged.
bool putDamagedAside(const QString &path)
{
    QStringList copies = damagedCopies(path);
    while (copies.size() >= kMaxCopies) {
        if (::unlink(QFile::encodeName(copies.takeFirst()).constData()) != 0)
            return false;
    }
    int number = 0;
    for (const QString &copy : copies) {
        if (!rename(copy, copyPath(path, ++number)))
            return false;
    }
    return rename(path, copyPath(path, ++number));
}

} // namespace platform
