// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>

class QWidget;

/// Makes the controls known to assistive technology with their role, name, value and state. Each
/// control calls it when it is made; only the first call does anything.
void installControlAccessibility();

/// Tells assistive technology that \p control changed. Cheap when nobody listens.
void announce(QWidget *control, QAccessible::Event event);
void announceChecked(QWidget *control);
void announceExpanded(QWidget *control);
void announceValue(QWidget *control, double value);
