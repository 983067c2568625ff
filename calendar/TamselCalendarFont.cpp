// SPDX-License-Identifier: MIT
#include "calendar/TamselCalendarFont.h"

#include "platform/Appearance.h"
#include "platform/Bundle.h"

#include <QFontDatabase>

#include <mutex>

using namespace Qt::StringLiterals;

namespace {

/// The families of the two faces as their files name them; null for a face that is not registered.
struct RegisteredFamilies
{
    QString regular;
    QString medium;
};

RegisteredFamilies &registeredFamilies()
{
    static RegisteredFamilies families;
    return families;
}

QString registerFace(const platform::Bundle &bundle, const QString &name)
{
    const QString file = bundle.pathForResource(name, u"otf"_s, u"fonts"_s);
    if (file.isNull())
        return {};
    return QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFont(file)).value(0);
}

} // namespace

void TamselRegisterCalendarFonts(const platform::Bundle &bundle)
{
    static std::once_flag once;
    std::call_once(once, [&bundle] {
        registeredFamilies() = {registerFace(bundle, u"SuisseIntl-Regular"_s),
                                registerFace(bundle, u"SuisseIntl-Medium"_s)};
    });
}

QFont TamselCalendarFont(bool medium, int pixelSize)
{
    QFont font = platform::systemFont(pixelSize, medium ? QFont::Medium : QFont::Normal);
    const RegisteredFamilies &registered = registeredFamilies();
    const QString &family = medium ? registered.medium : registered.regular;
    if (!family.isNull())
        font.setFamilies({family, font.family()});
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}
