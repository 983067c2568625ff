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

/// The options that all clocks follow, and what a settings page says of them in the user's
/// language.
class TamselClockOptions : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString failure READ failure CONSTANT)

public:
    QString title() const;
    /// What to say when open() was false.
    QString failure() const;

    /// Shows the options sheet, in a program of its own. False when that is not installed.
    Q_INVOKABLE bool open() const;
};
