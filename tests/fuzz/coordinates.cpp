// SPDX-License-Identifier: MIT
#include "location/Coordinates.h"
#include "tests/fuzz/Fuzz.h"

#include <cmath>

using namespace location;

void tryBytes(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    for (const Axis axis : {Axis::Latitude, Axis::Longitude}) {
        const auto degrees = degreesFrom(text, axis);
        const auto again = degrees ? degreesFrom(degreesText(*degrees), axis) : degrees;
        require(!degrees || (again && std::abs(*again - *degrees) < 1e-4));
    }
    const auto place = ::location::locationFrom(text);
    require(!place || (place->isValid() && !coordinatesText(*place).isEmpty()));
    require(!place || distance(*place, *place) < 1.0);
}
