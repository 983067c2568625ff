// SPDX-License-Identifier: MIT
#pragma once

#include <QTimeEdit>

#include <optional>

/// An editor for hour and minute without frame, buttons or background. It uses the time format of
/// the user's locale and accepts digits of every script. Where the format has day halves, typed
/// letters select one by its local or Latin name, from any section.
class TimePicker : public QTimeEdit
{
    Q_OBJECT
    Q_PROPERTY(int value READ minuteOfDay WRITE setMinuteOfDay)

public:
    explicit TimePicker(QWidget *parent = nullptr);

    /// The time in minutes after midnight.
    int minuteOfDay() const { return time().hour() * 60 + time().minute(); }
    /// Does nothing unless \p minute is between 0 and 1439.
    void setMinuteOfDay(int minute) { setTime({minute / 60, minute % 60}); }

    /// Shows the time in red, as an invalid one.
    void setRefused(bool refused);

    /// Fits the widest time in one line.
    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    /// Selects the section at the caret, so that typed digits replace it.
    void selectCurrentSection();
    void takeColors();
    /// Whether the format has day halves.
    bool hasHalves() const;
    void typeText(const QString &text);
    void typeSign(char32_t sign);
    void typeDigit(int digit);
    void typeHalf(const QString &letter);
    void setNumber(Section section, int number);
    void setHalf(bool evening);
    void forgetTyped();

    /// Letters of a day half's name typed so far.
    QString m_typedHalf;
    /// The first digit of a number that may take another one.
    std::optional<int> m_typedNumber;
    bool m_isRefused = false;
};
