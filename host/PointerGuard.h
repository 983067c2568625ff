// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>

#include <optional>

namespace host {

/// Distinguishes a deliberate movement of the pointer from jitter and from a window that appears
/// under it.
class PointerGuard
{
public:
    /// Takes the pointer's position on the desktop, in points, at \p seconds of the monotonic
    /// clock. Returns true for a deliberate movement: further than a few points from where it was
    /// within the last second.
    bool movedOnPurpose(const QPointF &position, double seconds);

private:
    std::optional<QPointF> m_rest;
    double m_restSince = 0.0;
};

} // namespace host
