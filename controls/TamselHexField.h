// SPDX-License-Identifier: MIT
#pragma once

#include "controls/SetAndUpdate.h"

#include <QColor>
#include <QLineEdit>

/// A rounded text field for a hexadecimal colour, without border or focus ring. Its text keeps its
/// position when editing starts.
class TamselHexField : public QLineEdit
{
    Q_OBJECT

public:
    explicit TamselHexField(QWidget *parent = nullptr);

    /// The background; TamselInputFill when invalid.
    QColor fill() const { return m_fill; }
    void setFill(const QColor &fill) { setAndUpdate(this, m_fill, fill); }

    /// Where the text is drawn, in the field's coordinates.
    QRectF textRect() const;

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void takeColors();
    void placeText();

    QColor m_fill;
};
