// SPDX-License-Identifier: MIT
#include "night/SolarLocation.h"
#include "platform/PropertyList.h"
#include "tests/fuzz/Fuzz.h"

void tryBytes(const QByteArray &bytes)
{
    const auto location = locationFrom(platform::domainFrom(bytes).value_or(QVariantMap()));
    require(!location || location->isValid());
}
