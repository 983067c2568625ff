// SPDX-License-Identifier: MIT
#pragma once

/// Smoothstep, p * p * (3 - 2 * p): 0 at 0, 1 at 1, level at both ends. \p p lies between them.
constexpr double easedProgress(double p)
{
    return p * p * (3.0 - 2.0 * p);
}
