// SPDX-License-Identifier: MIT
#include "controls/TamselToggle.h"

#include "controls/ControlAccessibility.h"
#include "controls/Emphasis.h"
#include "controls/FocusRing.h"
#include "controls/Mirroring.h"
#include "controls/RoundedShape.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "platform/Clocks.h"

#include <QPainter>

namespace {

constexpr QSize kSize(36, 16);
constexpr double kKnobInset = 2.0;
constexpr double kSlideDuration = 0.16; // seconds
constexpr double kOffAlpha = 0.16;
constexpr double kPressedShade = 0.08;
constexpr double kDisabledAlpha = 0.4;

} // namespace

TamselToggle::TamselToggle(const platform::Clocks &clocks, QWidget *parent)
    : QAbstractButton(parent),
      m_slide(clocks, kSlideDuration, [this](double position, bool) { setKnobPosition(position); })
{
    setAccessibleRole(this, QAccessible::CheckBox);
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    resize(kSize);
    redrawWithAppearance(this);
    new FocusRing(this, [this] { return FocusRing::Outline{rect(), height() / 2.0}; });
    connect(this, &QAbstractButton::toggled, this, [this](bool on) {
        m_slide.stop();
        setKnobPosition(on ? 1.0 : 0.0);
    });
}

void TamselToggle::nextCheckState()
{
    const double from = m_knobPosition;
    QAbstractButton::nextCheckState();
    if (!isVisible() || appearanceOf(this).reducedMotion() || from == m_knobPosition)
        return;
    m_slide.start(from, m_knobPosition);
    setKnobPosition(from);
}

void TamselToggle::setKnobPosition(double position)
{
    m_knobPosition = position;
    update();
}

void TamselToggle::paintEvent(QPaintEvent *)
{
    const platform::Appearance &appearance = appearanceOf(this);
    QPainter painter(this);
    painter.setOpacity(isEnabled() ? 1.0 : kDisabledAlpha);

    const double radius = height() / 2.0;
    const QColor edge = withAlpha(appearance.edgeColor(), 1.0 - m_knobPosition);
    const Emphasis on = emphasisFrom(appearance.controlAccentColor());
    fillRounded(painter, rect(), radius, withAlpha(appearance.labelColor(), kOffAlpha));
    fillRounded(painter, rect(), radius, withAlpha(on.fill, m_knobPosition));
    edgeRounded(painter, rect(), radius, edge);
    edgeRounded(painter, rect(), radius, withAlpha(accentEdgeOf(this), m_knobPosition));
    if (isDown())
        fillRounded(painter, rect(), radius, withAlpha(Qt::black, kPressedShade));
    const double side = height() - 2.0 * kKnobInset;
    const double travel = width() - side - 2.0 * kKnobInset;
    const QRectF knob(kKnobInset + m_knobPosition * travel, kKnobInset, side, side);
    mirrorFor(this, painter);
    fillRounded(painter, knob, side / 2.0, Qt::white);
    fillRounded(painter, knob, side / 2.0, withAlpha(on.ink, m_knobPosition));
    edgeRounded(painter, knob, side / 2.0, edge);
}
