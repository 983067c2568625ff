// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

class QMenu;
class TamselTimeInput;
class TamselTimeMenu;

/// What the From row (0) and the To row (1) of the options sheet have beside their time pickers.
/// The sheet owns the controls.
struct TimeRows
{
    /// The sheet that has these rows; null once it was destroyed, and the controls with it.
    QPointer<QWidget> sheet;
    QList<TamselTimeMenu *> timeMenus;
    QList<TamselTimeInput *> timeInputs;
    /// The menu on screen; null when none is.
    QPointer<QMenu> openMenu;
};
