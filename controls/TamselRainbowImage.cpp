// SPDX-License-Identifier: MIT
#include "controls/TamselRainbowImage.h"

#include "platform/Bundle.h"

namespace {

constexpr double kSide = 20.0;

QImage loadColorWheel()
{
    QImage image(platform::Bundle::ofProgram().pathForResource(QStringLiteral("custom-color-wheel"),
                                                               QStringLiteral("png")));
    if (!image.isNull())
        image.setDevicePixelRatio(image.width() / kSide);
    return image;
}

} // namespace

const QImage &TamselRainbowImage()
{
    static const QImage image = loadColorWheel();
    return image;
}
