// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Glide.h"

#include <QAbstractButton>

/// A small switch, 36 x 16 points. The knob slides when the user clicks it, and jumps when the
/// program sets it.
class TamselToggle : public QAbstractButton
{
    Q_OBJECT

public:
    /// \p clocks must outlive the toggle.
    TamselToggle(const platform::Clocks &clocks, QWidget *parent);

    /// The animation of the knob.
    Glide &slide() { return m_slide; }

protected:
    void nextCheckState() override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setKnobPosition(double position);

    Glide m_slide;
    /// 0 is off, 1 is on.
    double m_knobPosition = 0.0;
};
