// SPDX-License-Identifier: MIT
#include "host/PointerGuard.h"

#include <QLineF>

namespace host {

namespace {
constexpr double kSlackPoints = 10.0;
constexpr double kMemorySeconds = 1.0;
} // namespace

bool PointerGuard::movedOnPurpose(const QPointF &position, double seconds)
{
    if (m_rest && QLineF(*m_rest, position).length() > kSlackPoints)
        return true;
    if (!m_rest || seconds - m_restSince > kMemorySeconds) {
        m_rest = position;
        m_restSince = seconds;
    }
    return false;
}

} // namespace host
