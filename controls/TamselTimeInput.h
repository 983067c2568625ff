// SPDX-License-Identifier: MIT
#pragma once

#include "controls/SetAndUpdate.h"

#include <QColor>
#include <QPointer>
#include <QWidget>

/// A rounded field around a time picker.
class TamselTimeInput : public QWidget
{
    Q_OBJECT

public:
    explicit TamselTimeInput(QWidget *parent = nullptr);

    /// Null until it is set and once it is destroyed.
    QWidget *picker() const { return m_picker; }
    /// Takes ownership of \p picker; call alignPicker() afterwards.
    void setPicker(QWidget *picker);

    /// The background; TamselInputFill when invalid.
    QColor fill() const { return m_fill; }
    void setFill(const QColor &fill) { setAndUpdate(this, m_fill, fill); }

    /// Places the picker by its size hint. Call it after setPicker() and after each change of the
    /// field's size.
    void alignPicker();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<QWidget> m_picker;
    QColor m_fill;
};

/// The frame of a picker with size hint \p cell in a time input of size \p bounds.
QRectF timePickerFrame(const QSizeF &bounds, const QSizeF &cell);
