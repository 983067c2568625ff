// SPDX-License-Identifier: MIT
#include "platform/Desktop.h"

#include <QStandardPaths>

namespace platform {

QString userPreferencesFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1StringView("/tamsel-clock");
}

} // namespace platform
