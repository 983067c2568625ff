// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QLineEdit>

/// A rounded text field without border or ring in which a colour is typed; its caret shows the
/// focus. Text stands where TamselInputCell says, edited or not.
class TamselHexField : public QLineEdit
{
    Q_OBJECT

public:
    explicit TamselHexField(QWidget *parent = nullptr);

    /// The background; TamselInputFill when invalid, which is the default.
    QColor fill() const { return m_fill; }
    void setFill(const QColor &fill);

    /// The rectangle of the text in the field's coordinates.
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
