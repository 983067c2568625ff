// SPDX-License-Identifier: MIT
#pragma once

class QLabel;
class QRect;
class QString;
class QWidget;

/// Plain text in the control font and the colour of its window's text, at the top of \p frame in
/// \p parent, which owns it.
QLabel *labelWithString(const QString &text, const QRect &frame, QWidget *parent);
