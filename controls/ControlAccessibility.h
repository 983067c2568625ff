// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

class QWidget;

/// Tells assistive technology what \p control is. To be called first in the control's constructor:
/// the toolkit keeps what it learnt when it first asked. Buttons that are only pressed need no
/// call.
void setAccessibleRole(QWidget *control, QAccessible::Role role);
