// SPDX-License-Identifier: MIT
#include "controls/TamselGradientSlider.h"

#include "controls/ControlAccessibility.h"
#include "controls/FocusRing.h"
#include "controls/RoundedShape.h"
#include "controls/TamselHSBColor.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr QMarginsF kTrackInset(1.0, 2.0, 1.0, 2.0);
constexpr double kOutlineAlpha = 0.25;
/// Width of the edge around track and knob.
constexpr double kEdge = 1.0;
constexpr double kKnobDiameter = 24.0;
constexpr double kKnobRim = 2.0;
/// Of the knob with its edge, and the distance of its centre from the slider's ends at values 0
/// and 1.
constexpr double kKnobReach = 14.0;
/// The hue gradient needs intermediate stops; the others are linear in RGB.
constexpr int kHueSegments = 12;

constexpr double kStep = 0.01;
constexpr double kPageStep = 0.1;
/// Eighths of a degree in one notch of a wheel.
constexpr double kWheelNotch = 120.0;

/// The value after \p key is pressed at \p value; none for keys that do not move the slider.
std::optional<double> valueAfterKey(int key, double value)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        return value - kStep;
    case Qt::Key_Right:
    case Qt::Key_Up:
        return value + kStep;
    case Qt::Key_PageDown:
        return value - kPageStep;
    case Qt::Key_PageUp:
        return value + kPageStep;
    case Qt::Key_Home:
        return TamselGradientSlider::minValue();
    case Qt::Key_End:
        return TamselGradientSlider::maxValue();
    default:
        return std::nullopt;
    }
}

} // namespace

TamselGradientSlider::TamselGradientSlider(QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Slider);
    setFocusPolicy(Qt::StrongFocus);
    redrawWithAppearance(this);
    new FocusRing(this, [this] {
        const QRectF track = QRectF(rect()).marginsRemoved(kTrackInset);
        return FocusRing::Outline{track, track.height() / 2.0};
    });
}

/// A track shows all values of its own component, so only the other components change it, and those
/// of the hue show no selected colour.
void TamselGradientSlider::select(Component part, double &selected, double value)
{
    if (selected != value && m_component != Hue && m_component != part)
        update();
    selected = value;
}

void TamselGradientSlider::setDoubleValue(double value)
{
    update(knobArea());
    m_doubleValue = std::clamp(value, minValue(), maxValue());
    QAccessibleValueChangeEvent event(this, m_doubleValue);
    QAccessible::updateAccessibility(&event);
    update(knobArea());
}

QColor TamselGradientSlider::colorAtValue(double value) const
{
    switch (m_component) {
    case Hue:
        return TamselHSBColor(value, 1.0, 1.0);
    case Saturation:
        return TamselHSBColor(m_selectedHue, value, m_selectedBrightness);
    default:
        return TamselHSBColor(m_selectedHue, m_selectedSaturation, value);
    }
}

void TamselGradientSlider::edit(double value)
{
    setDoubleValue(value);
    Q_EMIT edited();
}

void TamselGradientSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawTrack(painter, QRectF(rect()).marginsRemoved(kTrackInset));
    drawKnob(painter);
}

/// The track's colours as a picture of one row, repeated downwards: Qt would share out a gradient's
/// rows among threads, which costs more than drawing them.
QBrush TamselGradientSlider::trackBrush(const QRectF &track, double scale) const
{
    QLinearGradient gradient(track.left(), 0.0, track.right(), 0.0);
    const int segments = m_component == Hue ? kHueSegments : 1;
    for (int i = 0; i <= segments; ++i) {
        const double value = static_cast<double>(i) / segments;
        gradient.setColorAt(value, colorAtValue(value));
    }
    QImage row(static_cast<int>(std::ceil(width() * scale)), 1, QImage::Format_RGB32);
    QPainter painter(&row);
    painter.scale(scale, 1.0);
    painter.fillRect(rect(), gradient);
    painter.end();
    QBrush brush(row);
    brush.setTransform(QTransform::fromScale(1.0 / scale, 1.0));
    return brush;
}

void TamselGradientSlider::drawTrack(QPainter &painter, const QRectF &track) const
{
    const double radius = track.height() / 2.0;
    fillRounded(painter, track, radius, trackBrush(track, painter.deviceTransform().m11()));
    painter.setPen(QPen(withAlpha(Qt::white, kOutlineAlpha), 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(track, radius, radius);
    // It may have the colour of what it lies on.
    edgeRounded(painter, track.adjusted(-kEdge, -kEdge, kEdge, kEdge), radius + kEdge,
                appearanceOf(this).edgeColor());
}

QPointF TamselGradientSlider::knobCentre() const
{
    const QRectF track = QRectF(rect()).marginsRemoved(kTrackInset);
    return {m_doubleValue * (width() - 2.0 * kKnobReach) + kKnobReach, track.center().y()};
}

/// All that the knob covers, whatever the density.
QRect TamselGradientSlider::knobArea() const
{
    const QPointF reach(kKnobReach, kKnobReach);
    return QRectF(knobCentre() - reach, knobCentre() + reach).toAlignedRect();
}

void TamselGradientSlider::drawKnob(QPainter &painter) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(appearanceOf(this).edgeColor());
    painter.drawEllipse(knobCentre(), kKnobReach, kKnobReach);
    painter.setBrush(colorAtValue(m_doubleValue));
    painter.setPen(QPen(Qt::white, kKnobRim));
    painter.drawEllipse(knobCentre(), kKnobDiameter / 2.0, kKnobDiameter / 2.0);
}

void TamselGradientSlider::track(const QMouseEvent &event)
{
    // The inverse of the knob's position, so that its centre follows the pointer.
    const double value = (event.position().x() - kKnobReach) / (width() - 2.0 * kKnobReach);
    edit(std::clamp(value, 0.0, 1.0));
}

void TamselGradientSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        track(*event);
    else
        event->ignore();
}

void TamselGradientSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        track(*event);
}

void TamselGradientSlider::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        track(*event);
}

void TamselGradientSlider::wheelEvent(QWheelEvent *event)
{
    const QPoint turn = event->angleDelta();
    const int eighths = std::abs(turn.x()) > std::abs(turn.y()) ? -turn.x() : turn.y();
    if (eighths != 0)
        edit(m_doubleValue + kStep * eighths / kWheelNotch);
    event->accept();
}

void TamselGradientSlider::keyPressEvent(QKeyEvent *event)
{
    if (const auto value = valueAfterKey(event->key(), m_doubleValue))
        edit(*value);
    else
        QWidget::keyPressEvent(event);
}
