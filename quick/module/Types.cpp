// SPDX-License-Identifier: MIT
#include "Types.h"

#include "quick/Installation.h"

#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

/// From a catalogue that the program around us, which has its own, need not know.
QString translated(const char *text)
{
    QTranslator catalogue;
    if (!catalogue.load(QLocale::system(), u"tamsel"_s, u"_"_s,
                        installedBundle().resourcesPath() + "/translations"_L1))
        return QString::fromUtf8(text);
    const QString found =
        catalogue.translate(TamselClockOptions::staticMetaObject.className(), text);
    return found.isEmpty() ? QString::fromUtf8(text) : found;
}

} // namespace

QString TamselClockOptions::title() const
{
    return translated(QT_TR_NOOP("Clock Options…"));
}

QString TamselClockOptions::failure() const
{
    return translated(QT_TR_NOOP("The program tamsel-clock cannot be started."));
}

bool TamselClockOptions::open() const
{
    return startOptions();
}
