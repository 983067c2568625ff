// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QLocale;
class QTime;

namespace platform {

/// The short time format of \p locale, without the seconds that some locales include.
QString shortTimeFormat(const QLocale &locale);

/// \p time as the user's language writes it, without seconds: "06:40".
QString shortTimeText(QTime time);

} // namespace platform
