// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

class QWidget;

/// Sets the role under which assistive technology sees \p control. Call it first in the control's
/// constructor, because Qt keeps the interface that is made at the first query. Buttons that are
/// only pressed need no call: Qt knows them by their base class.
void setAccessibleRole(QWidget *control, QAccessible::Role role);
