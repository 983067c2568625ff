// SPDX-License-Identifier: MIT
#pragma once

#include <QTimeEdit>

#include <optional>

/// An hour and a minute, typed or stepped one at a time, without frame, buttons or background of
/// its own. It follows the user's way to write a time. Where that has halves of the day, letters
/// choose one, by its local or its Latin name, whichever number is being typed. Digits of every
/// script are taken.
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
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    /// Lets the next digits replace the hour or minute that the caret stands in.
    void selectCurrentSection();
    void takeColors();
    /// Whether the time is written with halves of the day.
    bool hasHalves() const;
    void typeText(const QString &text);
    void typeSign(char32_t sign);
    void typeDigit(int digit);
    void typeHalf(const QString &letter);
    void setNumber(Section section, int number);
    void setHalf(bool evening);
    void forgetTyped();

    /// The letters of a half's name that were typed so far.
    QString m_typedHalf;
    /// What was typed of a number that may get another digit.
    std::optional<int> m_typedNumber;
    bool m_isRefused = false;
};
