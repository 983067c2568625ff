// SPDX-License-Identifier: MIT
#pragma once

#include <QTimeEdit>

/// An hour and a minute, typed or stepped one at a time, without frame, buttons or background of
/// its own. It follows the user's way to write a time. Where that has halves of the day, letters
/// choose one, by its local or its Latin name, whichever number is being typed.
class TimePicker : public QTimeEdit
{
    Q_OBJECT

public:
    explicit TimePicker(QWidget *parent = nullptr);

    /// Shows the time in red, as one that cannot be taken.
    void setRefused(bool refused);

    /// Room for the widest time, one line high.
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    /// Lets the next digits replace the hour or minute that the caret stands in.
    void selectCurrentSection();
    void takeColors();
    /// Whether the half of the day is written before the numbers.
    bool startsWithHalf() const;
    /// Takes what is no part of a number; whether nothing is left for the toolkit to do.
    bool takesSign(const QString &sign);
    void typeHalf(const QString &letter);
    void setHalf(bool evening);

    /// The letters of a half's name that were typed so far.
    QString m_typedHalf;
    bool m_isRefused = false;
};
