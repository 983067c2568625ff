// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

/// A slider along one component of a colour: its track shows the colours it can reach, its knob the
/// one it stands at. Always from left to right.
class TamselGradientSlider : public QWidget
{
    Q_OBJECT

public:
    enum Component { Hue = 0, Saturation = 1, Brightness = 2 };

    explicit TamselGradientSlider(QWidget *parent = nullptr);

    int component() const { return m_component; }
    void setComponent(int component);

    /// The colour being edited, each part 0 to 1; what the track is drawn from.
    double selectedHue() const { return m_selectedHue; }
    void setSelectedHue(double hue);
    double selectedSaturation() const { return m_selectedSaturation; }
    void setSelectedSaturation(double saturation);
    double selectedBrightness() const { return m_selectedBrightness; }
    void setSelectedBrightness(double brightness);

    double doubleValue() const { return m_doubleValue; }
    /// Clamped to the slider's range; reports nothing.
    void setDoubleValue(double value);
    double minValue() const { return m_minValue; }
    void setMinValue(double value) { m_minValue = value; }
    double maxValue() const { return m_maxValue; }
    void setMaxValue(double value) { m_maxValue = value; }

    /// The colour that position \p value (0 to 1) stands for.
    QColor colorAtValue(double value) const;

    /// Sets the value as the user does, and reports it.
    void edit(double value);

Q_SIGNALS:
    /// The user set the value, be it to what it was: at the press, at each movement and at the
    /// release of the mouse, at each key and each turn of the wheel.
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
    double m_minValue = 0.0;
    double m_maxValue = 1.0;
};
