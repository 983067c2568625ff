// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QColor>

/// A round colour swatch with a hairline rim and, when it is selected, a ring around it.
class TamselSwatchButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit TamselSwatchButton(QWidget *parent = nullptr);

    /// The colour shown; black when invalid.
    QColor swatchColor() const { return m_swatchColor; }
    void setSwatchColor(const QColor &color);

    /// Whether the colour wheel is shown instead of a colour.
    bool rainbow() const { return m_rainbow; }
    void setRainbow(bool rainbow);

    /// Whether the swatch opens a colour editor instead of being one choice of several: the ring
    /// then follows `pickerActive`, not the checked state.
    bool usesPickerSelection() const { return m_usesPickerSelection; }
    void setUsesPickerSelection(bool uses);

    /// Whether a colour editor is open for this swatch.
    bool pickerActive() const { return m_pickerActive; }
    void setPickerActive(bool active);

    /// Whether the ring is drawn.
    bool isSelected() const { return m_usesPickerSelection ? m_pickerActive : isChecked(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// Describes the colour to assistive technology.
    void tellColor();
    void drawColor(QPainter &painter, const QRectF &swatch) const;
    void drawRim(QPainter &painter, const QRectF &swatch) const;
    void drawRing(QPainter &painter, const QRectF &swatch) const;

    QColor m_swatchColor;
    bool m_rainbow = false;
    bool m_usesPickerSelection = false;
    bool m_pickerActive = false;
};
