// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class QLabel;
class QRect;
class QString;
class QWidget;

namespace platform {
class Appearance;
}

/// Plain text in the control font and the label colour, at the top of \p frame in \p parent, which
/// owns it.
QLabel *labelWithString(const QString &text, const QRect &frame, QWidget *parent);
/// Gives \p label another colour of its appearance.
void setLabelColor(QLabel *label, QColor (platform::Appearance::*color)() const);
