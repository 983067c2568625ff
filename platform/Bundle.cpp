// SPDX-License-Identifier: MIT
#include "platform/Bundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>
#include <sys/auxv.h>

using namespace Qt::StringLiterals;

namespace platform {

namespace {
constexpr QLatin1StringView kBundleBesidePrograms("../lib/tamsel-clock/VornakClockSaver.saver");
constexpr QLatin1StringView kBundleAroundHelpers("../../../VornakClockSaver.saver");
} // namespace

QString programPath()
{
    QString running = QFileInfo(u"/proc/self/exe"_s).canonicalFilePath();
    if (!running.isEmpty())
        return running;
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the kernel gives the address as a number.
    const auto *started = reinterpret_cast<const char *>(::getauxval(AT_EXECFN));
    return QFileInfo(QFile::decodeName(started)).canonicalFilePath();
}

Bundle::Bundle(QString path) : m_path(std::move(path))
{
}

Bundle Bundle::ofProgram()
{
    const QString program = programPath();
    if (program.isEmpty())
        return Bundle(program);
    const QDir programs = QFileInfo(program).dir();
    for (const QLatin1StringView candidate : {kBundleBesidePrograms, kBundleAroundHelpers}) {
        const QString path = QDir::cleanPath(programs.filePath(candidate));
        if (QFileInfo(path).isDir())
            return Bundle(path);
    }
    return Bundle(QDir::cleanPath(programs.filePath(kBundleBesidePrograms)));
}

Bundle Bundle::ofLibrary(const QString &place)
{
    Dl_info library{};
    if (!::dladdr(&kBundleBesidePrograms, &library))
        return Bundle({});
    const QFileInfo file(QFileInfo(QFile::decodeName(library.dli_fname)).canonicalFilePath());
    return Bundle(QDir::cleanPath(file.dir().filePath(place)));
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
