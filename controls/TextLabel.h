// SPDX-License-Identifier: MIT
#pragma once

class QFont;
class QLabel;
class QRect;
class QString;
class QWidget;

/// Plain text in the control font and the colour of its window's text, at the top of \p frame in
/// \p parent, which owns it.
QLabel *labelWithString(const QString &text, const QRect &frame, QWidget *parent);

/// How far, in whole points, the toolkit moves the baseline of \p text down from that of \p font,
/// because its script comes from a taller font.
int baselineShift(const QString &text, const QFont &font);
