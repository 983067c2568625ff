// SPDX-License-Identifier: MIT
#include "platform/Bundle.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace platform {

namespace {
constexpr QLatin1StringView kBundleBesidePrograms("../lib/tamsel-clock/VornakClockSaver.saver");
constexpr QLatin1StringView kBundleAroundHelpers("../../../VornakClockSaver.saver");
} // namespace

Bundle::Bundle(QString path) : m_path(std::move(path))
{
}

Bundle Bundle::ofProgram()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const QLatin1StringView candidate : {kBundleBesidePrograms, kBundleAroundHelpers}) {
        const QString path = QDir::cleanPath(programs.filePath(candidate));
        if (QFileInfo(path).isDir())
            return Bundle(path);
    }
    return Bundle(QDir::cleanPath(programs.filePath(kBundleBesidePrograms)));
}

QString Bundle::resourcesPath() const
{
    return m_path + QLatin1StringView("/Contents/Resources");
}

QString Bundle::pathForResource(const QString &name, const QString &extension,
                                const QString &subdirectory) const
{
    QString path = resourcesPath() + u'/';
    if (!subdirectory.isEmpty())
        path += subdirectory + u'/';
    path += name + u'.' + extension;
    return QFileInfo(path).isFile() ? path : QString();
}

QString Bundle::helperPath(const QString &name) const
{
    return m_path + QLatin1StringView("/Contents/Helpers/") + name;
}

QString Bundle::plugInPath(const QString &name) const
{
    return m_path + QLatin1StringView("/Contents/PlugIns/") + name;
}

} // namespace platform
