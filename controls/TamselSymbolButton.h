// SPDX-License-Identifier: MIT
#pragma once

#include "controls/SetAndUpdate.h"
#include "controls/Symbol.h"

#include <QAbstractButton>

/// A rounded button with one symbol, whose colour may change under the pointer.
class TamselSymbolButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit TamselSymbolButton(QWidget *parent = nullptr);

    Symbol image() const { return m_image; }
    void setImage(const Symbol &image) { setAndUpdate(this, m_image, image); }

    /// The background; TamselInputFill when invalid.
    QColor fill() const { return m_fill; }
    void setFill(const QColor &fill) { setAndUpdate(this, m_fill, fill); }

    /// The symbol's colour; the control text colour at half alpha when invalid.
    QColor ink() const { return m_ink; }
    void setInk(const QColor &ink) { setAndUpdate(this, m_ink, ink); }

    /// The symbol's colour under the pointer; `ink` when invalid.
    QColor hoverInk() const { return m_hoverInk; }
    void setHoverInk(const QColor &hoverInk) { setAndUpdate(this, m_hoverInk, hoverInk); }

    /// Corner radius of the background in points.
    double radius() const { return m_radius; }
    void setRadius(double radius) { setAndUpdate(this, m_radius, radius); }

    /// Whether the pointer is inside the button.
    bool hovered() const { return m_hovered; }

    QColor displayInk() const;
    /// Draws the tinted symbol centred in \p rect, paler while the button is pressed.
    void drawSymbolInRect(QPainter &painter, const QRectF &rect) const;

protected:
    /// Corner radius of the focus ring.
    virtual double outlineRadius() const { return m_radius; }
    QColor displayFill() const;

    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Symbol m_image;
    QColor m_fill;
    QColor m_ink;
    QColor m_hoverInk;
    double m_radius = 0.0;
    bool m_hovered = false;
};
