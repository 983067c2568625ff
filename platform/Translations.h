// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>

namespace platform {

/// Gives tr() the texts of the user's language, \p locale, from the catalogues in the program's
/// bundle, and windows the direction in which it is read. Texts are as they stand in the source
/// before that and in a language without a catalogue. To be called before the first text is asked
/// for; a program that fails before it has an application object gets one, which stays.
void useLanguage(const QLocale &locale = QLocale::system());

} // namespace platform
