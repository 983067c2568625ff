// SPDX-License-Identifier: MIT
#pragma once

#include "controls/SetAndUpdate.h"
#include "controls/Symbol.h"

#include <QAbstractButton>

/// A flat button with an optional symbol before its title. The bezel is always 24 points high and
/// vertically centred in the button.
class PushButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit PushButton(const QString &title, QWidget *parent = nullptr);

    void setSymbol(const Symbol &symbol) { setAndUpdate(this, m_symbol, symbol); }
    /// Colour of the bezel; TamselInputFill when invalid.
    void setFill(const QColor &fill) { setAndUpdate(this, m_fill, fill); }
    /// Colour of title and symbol; the control text colour when invalid.
    void setInk(const QColor &ink) { setAndUpdate(this, m_ink, ink); }
    /// Whether this is the default button: while enabled, its bezel has the accent colour, whatever
    /// fill and ink are set.
    void setProminent(bool prominent) { setAndUpdate(this, m_prominent, prominent); }
    /// Corner radius of the bezel in points.
    void setRadius(double radius) { setAndUpdate(this, m_radius, radius); }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRectF bezel() const;
    bool isEmphasised() const;
    QColor displayFill() const;
    QColor displayInk() const;
    void drawContents(QPainter &painter) const;

    Symbol m_symbol;
    QColor m_fill;
    QColor m_ink;
    double m_radius;
    bool m_prominent = false;
};
