// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace location {

/// The lower edge of the window: a message, and the buttons that forget, close and save.
class SaveBar : public QWidget
{
    Q_OBJECT

public:
    explicit SaveBar(QWidget *parent = nullptr);

    enum class Tone { Calm, Fault };

    /// Shows \p text in place of the last message; a screen reader speaks it.
    void tell(const QString &text, Tone tone = Tone::Calm);
    /// Updates the colours to those of the desktop.
    void followAppearance();

    QPushButton *forgetButton() const { return m_forget; }
    QPushButton *closeButton() const { return m_close; }
    QPushButton *saveButton() const { return m_save; }

private:
    QLabel *m_message;
    QPushButton *m_forget;
    QPushButton *m_close;
    QPushButton *m_save;
    Tone m_tone = Tone::Calm;
};

} // namespace location
