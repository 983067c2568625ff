// SPDX-License-Identifier: MIT
#include "controls/TamselGradientSlider.h"

#include "controls/ControlAccessibility.h"
#include "controls/FocusRing.h"
#include "controls/TamselHSBColor.h"
#include "controls/ViewAppearance.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <optional>

namespace {

constexpr QMarginsF kTrackInset(1.0, 2.0, 1.0, 2.0);
constexpr double kOutlineAlpha = 0.25;
constexpr double kKnobDiameter = 24.0;
constexpr double kKnobRim = 2.0;
/// Distance of the knob's centre from the slider's ends at values 0 and 1.
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

void TamselGradientSlider::setDoubleValue(double value)
{
    m_doubleValue = std::clamp(value, minValue(), maxValue());
    QAccessibleValueChangeEvent event(this, m_doubleValue);
    QAccessible::updateAccessibility(&event);
    update();
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
    const QRectF track = QRectF(rect()).marginsRemoved(kTrackInset);
    drawTrack(painter, track);
    drawKnob(painter, track);
}

void TamselGradientSlider::drawTrack(QPainter &painter, const QRectF &track) const
{
    QLinearGradient gradient(track.topLeft(), track.topRight());
    const int segments = m_component == Hue ? kHueSegments : 1;
    for (int i = 0; i <= segments; ++i) {
        const double value = static_cast<double>(i) / segments;
        gradient.setColorAt(value, colorAtValue(value));
    }
    const double radius = track.height() / 2.0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawRoundedRect(track, radius, radius);
    painter.setPen(QPen(withAlpha(Qt::white, kOutlineAlpha), 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(track, radius, radius);
}

void TamselGradientSlider::drawKnob(QPainter &painter, const QRectF &track) const
{
    const QPointF centre(m_doubleValue * (width() - 2.0 * kKnobReach) + kKnobReach,
                         track.center().y());
    painter.setBrush(colorAtValue(m_doubleValue));
    painter.setPen(QPen(Qt::white, kKnobRim));
    painter.drawEllipse(centre, kKnobDiameter / 2.0, kKnobDiameter / 2.0);
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
