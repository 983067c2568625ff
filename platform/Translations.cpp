// SPDX-License-Identifier: MIT
#include "platform/Translations.h"

#include "platform/Bundle.h"
#include "platform/Toolkit.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

void ensureApplication()
{
    if (QCoreApplication::instance())
        return;
    prepareToolkit();
    static int argumentCount = 1;
    static QByteArray name = QCoreApplication::applicationName().toLocal8Bit();
    static char *arguments[] = {name.data(), nullptr};
    static const QCoreApplication application(argumentCount, arguments);
}

/// The language of the catalogue \p name that was found for \p locale; null when none was.
QString install(const QLocale &locale, const QString &name, const QString &folder)
{
    auto *catalogue = new QTranslator(QCoreApplication::instance());
    if (!catalogue->load(locale, name, u"_"_s, folder))
        return {};
    QCoreApplication::installTranslator(catalogue);
    return catalogue->language();
}

} // namespace

void useLanguage(const QLocale &locale)
{
    ensureApplication();
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    const QString folder = Bundle::ofProgram().resourcesPath() + "/translations"_L1;
    // Those of English mend what the source says of another system. They serve every other language
    // without a catalogue, too.
    install(QLocale::English, u"tamsel"_s, folder);
    const QString language = install(locale, u"tamsel"_s, folder);
    install(QLocale(language), u"qtbase"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return;
    QGuiApplication::setLayoutDirection(language.isEmpty() ? Qt::LeftToRight
                                                           : QLocale(language).textDirection());
}

} // namespace platform
