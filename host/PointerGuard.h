// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

#include <optional>

namespace host {

/// Tells a person reaching for the mouse from a pointer that merely stands under a new window or
/// trembles with the table.
class PointerGuard
{
public:
    /// Takes the pointer's position on the desktop, in points, at \p seconds of the monotonic
    /// clock. True when it moved on purpose: further than a few points from where it stood within
    /// the last second.
    bool movedOnPurpose(const QPointF &position, double seconds);

private:
    std::optional<QPointF> m_rest;
    double m_restSince = 0.0;
};

} // namespace host
