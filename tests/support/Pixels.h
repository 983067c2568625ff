// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>

#include <cmath>
#include <numbers>
#include <vector>

/// Measures on finished pictures, independent of the code that drew them.
namespace pixels {

/// Where \p pixel lies between \p background (0) and \p ink (1), measured in the channel in which
/// they differ most.
inline double coverage(QRgb pixel, QRgb background, QRgb ink)
{
    const auto channel = [](QRgb c, int i) { return int((c >> (8 * i)) & 0xff); };
    int widest = 0;
    for (int i = 1; i < 3; ++i) {
        if (std::abs(channel(ink, i) - channel(background, i)) >
            std::abs(channel(ink, widest) - channel(background, widest)))
            widest = i;
    }
    const double span = channel(ink, widest) - channel(background, widest);
    return (channel(pixel, widest) - channel(background, widest)) / span;
}

/// A run of ink along a circle.
struct Arc
{
    double centre = 0.0; ///< degrees clockwise from 12 o'clock
    double width = 0.0;  ///< degrees
};

/// The runs of anything but \p background on the circle of \p radius pixels about the picture's
/// centre.
inline std::vector<Arc> arcsOnCircle(const QImage &picture, double radius, QRgb background)
{
    constexpr int kSamples = 7200;
    const auto isInk = [&](int sample) {
        const double angle = 2.0 * std::numbers::pi * sample / kSamples;
        const int x = int(std::floor(picture.width() / 2.0 + radius * std::sin(angle)));
        const int y = int(std::floor(picture.height() / 2.0 - radius * std::cos(angle)));
        const QRgb pixel = picture.pixel(x, y);
        const int difference = std::abs(qRed(pixel) - qRed(background)) +
                               std::abs(qGreen(pixel) - qGreen(background)) +
                               std::abs(qBlue(pixel) - qBlue(background));
        return difference > 120;
    };
    int start = 0;
    while (start < kSamples && isInk(start))
        ++start;
    std::vector<Arc> arcs;
    for (int i = 0; i < kSamples;) {
        if (!isInk(start + i)) {
            ++i;
            continue;
        }
        int end = i;
        while (isInk(start + end))
            ++end;
        const double step = 360.0 / kSamples;
        arcs.push_back({std::fmod((start + (i + end - 1) / 2.0) * step, 360.0), (end - i) * step});
        i = end;
    }
    return arcs;
}

/// The direction from the centre of \p picture to the centre of mass of its ink, in degrees
/// clockwise from 12 o'clock.
inline double inkDirection(const QImage &picture, QRgb background, QRgb ink)
{
    double x = 0.0;
    double y = 0.0;
    for (int row = 0; row < picture.height(); ++row) {
        for (int column = 0; column < picture.width(); ++column) {
            const double weight = coverage(picture.pixel(column, row), background, ink);
            x += weight * (column + 0.5 - picture.width() / 2.0);
            y += weight * (row + 0.5 - picture.height() / 2.0);
        }
    }
    const double degrees = std::atan2(x, -y) * 180.0 / std::numbers::pi;
    return degrees < 0.0 ? degrees + 360.0 : degrees;
}

/// The largest difference of one channel between two pictures of the same size; 256 when the sizes
/// differ.
inline int largestDifference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return 256;
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(p) - qRed(q)),
                                std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return largest;
}

} // namespace pixels
