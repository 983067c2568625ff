// SPDX-License-Identifier: MIT
#pragma once

#include <QTimeEdit>

/// An hour and a minute, typed or stepped one at a time, without frame, buttons or background of
/// its own. It follows the user's way to write a time.
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

private:
    /// Lets the next digits replace the hour or minute that the caret stands in.
    void selectCurrentSection();
    void takeColors();

    bool m_isRefused = false;
};
