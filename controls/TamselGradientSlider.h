// SPDX-License-Identifier: MIT
#pragma once

#include "controls/SetAndUpdate.h"

#include <QColor>
#include <QWidget>

/// A slider for one component of a colour. The track shows the colours it can reach, the knob the
/// current one. Always runs from left to right. It is not a QAbstractSlider, which has whole
/// numbers only, also towards assistive technology, and is mirrored in right-to-left layouts.
class TamselGradientSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double value READ doubleValue WRITE edit)

public:
    enum Component { Hue = 0, Saturation = 1, Brightness = 2 };

    explicit TamselGradientSlider(QWidget *parent = nullptr);

    int component() const { return m_component; }
    void setComponent(int component) { setAndUpdate(this, m_component, component); }

    /// The colour being edited, from which the track is drawn; each component 0 to 1.
    double selectedHue() const { return m_selectedHue; }
    void setSelectedHue(double hue) { select(Hue, m_selectedHue, hue); }
    double selectedSaturation() const { return m_selectedSaturation; }
    void setSelectedSaturation(double saturation)
    {
        select(Saturation, m_selectedSaturation, saturation);
    }
    double selectedBrightness() const { return m_selectedBrightness; }
    void setSelectedBrightness(double brightness)
    {
        select(Brightness, m_selectedBrightness, brightness);
    }

    double doubleValue() const { return m_doubleValue; }
    /// Clamps \p value to minValue() and maxValue(). Does not emit edited().
    void setDoubleValue(double value);
    static constexpr double minValue() { return 0.0; }
    static constexpr double maxValue() { return 1.0; }

    /// The colour at position \p value, 0 to 1.
    QColor colorAtValue(double value) const;

    /// Sets the value on the user's behalf and emits edited().
    void edit(double value);

Q_SIGNALS:
    /// Emitted when the user sets the value, even to the same one: at the press, each movement and
    /// the release of the mouse, each key and each step of the wheel.
    void edited();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void track(const QMouseEvent &event);
    QBrush trackBrush(const QRectF &track, double scale) const;
    void drawTrack(QPainter &painter, const QRectF &track) const;
    void drawKnob(QPainter &painter) const;
    QPointF knobCentre() const;
    QRect knobArea() const;
    void select(Component part, double &selected, double value);

    int m_component = Hue;
    double m_selectedHue = 0.0;
    double m_selectedSaturation = 0.0;
    double m_selectedBrightness = 0.0;
    double m_doubleValue = 0.0;
};
