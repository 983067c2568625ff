// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

/// The rounded field that holds a time picker.
class TamselTimeInput : public QWidget
{
    Q_OBJECT

public:
    explicit TamselTimeInput(QWidget *parent = nullptr);

    /// The control inside; null when there is none.
    QWidget *picker() const { return m_picker; }
    /// Takes \p picker into the field; alignPicker() then places it by its size hint.
    void setPicker(QWidget *picker);

    /// The background; TamselInputFill when invalid.
    QColor fill() const { return m_fill; }
    void setFill(const QColor &fill);

    /// Places the picker. To be called when it was set and whenever the field's size changed.
    void alignPicker();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<QWidget> m_picker;
    QColor m_fill;
};

/// The frame of a picker of size \p cell in a time input of size \p bounds.
QRectF timePickerFrame(const QSizeF &bounds, const QSizeF &cell);
