// SPDX-License-Identifier: MIT
#include "Types.h"

#include "quick/Installation.h"

bool TamselClockOptions::open() const
{
    return startOptions();
}
