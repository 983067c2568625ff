// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Glide.h"

#include <QAbstractButton>

/// A small switch, 36 x 16 points. Its knob slides when the user throws it; a program that sets it
/// sees it there at once.
class TamselToggle : public QAbstractButton
{
    Q_OBJECT

public:
    explicit TamselToggle(QWidget *parent = nullptr);
    /// \p clocks must outlive the toggle.
    TamselToggle(const platform::Clocks &clocks, QWidget *parent);

    QSize sizeHint() const override;
    /// The slide of the knob: running, or idle.
    Glide &slide() { return m_slide; }

protected:
    void nextCheckState() override;
    void paintEvent(QPaintEvent *event) override;

private:
    void setKnobPosition(double position);

    Glide m_slide;
    /// 0 off, 1 on, between them on its way.
    double m_knobPosition = 0.0;
};
