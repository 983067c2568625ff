// SPDX-License-Identifier: MIT
#pragma once

#include "quick/ClockItem.h"

#include <qqmlregistration.h>

/// The names under which QML knows what the module offers.
struct TamselClockType
{
    Q_GADGET
    QML_FOREIGN(ClockItem)
    QML_NAMED_ELEMENT(TamselClock)
};

/// The options that all clocks follow.
class TamselClockOptions : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// Shows the options sheet, in a program of its own. False when that is not installed.
    Q_INVOKABLE bool open() const;
};
