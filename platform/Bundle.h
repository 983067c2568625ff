// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace platform {

/// Full path of the running executable, links resolved; empty when it is unknown. Without /proc the
/// toolkit would guess from the program's name, in the worst case in the current folder, so the
/// path that the kernel passes to every program is used instead.
QString programPath();

/// The folder of real files that makes up the saver module: artwork, symbols, fonts, scripts and
/// the companion program. A plain value; looking something up asks the file system each time.
class Bundle
{
public:
    /// A bundle at \p path, the folder that holds "Contents". The folder need not exist.
    explicit Bundle(QString path);

    /// The module's bundle, found relative to the running program: the build tree and an
    /// installation have the same layout. An empty bundle when the program's own path is unknown.
    static Bundle ofProgram();

    /// The module's bundle for code that a program of others has loaded: at \p place from the
    /// folder of the library that holds this code. An empty bundle when that is unknown.
    static Bundle ofLibrary(const QString &place);

    QString path() const { return m_path; }
    QString resourcesPath() const;

    /// Full path of the resource \p name.\p extension in \p subdirectory of the resources, or a
    /// null string when there is no such file.
    QString pathForResource(const QString &name, const QString &extension,
                            const QString &subdirectory = {}) const;

    /// Full path of the executable \p name in the bundle's helpers, whether or not it exists.
    QString helperPath(const QString &name) const;

    /// Full path of the loadable module \p name in the bundle's plug-ins, whether or not it exists.
    QString plugInPath(const QString &name) const;

private:
    QString m_path;
};

} // namespace platform
