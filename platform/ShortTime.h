// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QLocale;
class QTime;

namespace platform {

/// How \p locale writes an hour and a minute, without the seconds that it may put behind them.
QString shortTimeFormat(const QLocale &locale);

/// \p time as the user's language writes it, without seconds: "06:40".
QString shortTimeText(QTime time);

} // namespace platform
