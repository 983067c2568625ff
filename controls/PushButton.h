// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Symbol.h"

#include <QAbstractButton>

/// A flat button with a title and, before it, an optional symbol. Its bezel is always 24 points
/// high, in the middle of whatever height the button is given.
class PushButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit PushButton(const QString &title, QWidget *parent = nullptr);

    void setSymbol(const Symbol &symbol);
    /// The bezel's colour; TamselInputFill when invalid.
    void setFill(const QColor &fill);
    /// The colour of title and symbol; the control text colour when invalid.
    void setInk(const QColor &ink);
    /// Whether the bezel takes the accent colour while it is enabled: the button that Return stands
    /// for. It wins over `fill` and `ink`.
    void setProminent(bool prominent);
    /// Corner radius of the bezel in points.
    void setRadius(double radius);

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
