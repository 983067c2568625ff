// SPDX-License-Identifier: MIT
#include "quick/Installation.h"

#include <QDir>
#include <QProcess>

using namespace Qt::StringLiterals;

platform::Bundle installedBundle()
{
    return platform::Bundle::ofLibrary(QStringLiteral(TAMSEL_BUNDLE_FROM_MODULE));
}

bool startOptions()
{
    const QDir bundle(installedBundle().path());
    return QProcess::startDetached(bundle.filePath(QStringLiteral(TAMSEL_PROGRAM_FROM_BUNDLE)),
                                   {u"--configure"_s});
}
