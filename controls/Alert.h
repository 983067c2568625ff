// SPDX-License-Identifier: MIT
#pragma once

#include "controls/TamselSettingsWindow.h"

#include <functional>

class QLabel;
class PushButton;

/// A message over a sheet, in the sheet's look. It blocks the sheet until it is answered and
/// deletes itself afterwards, or is deleted with the sheet.
class Alert : public TamselSettingsWindow
{
    Q_OBJECT

public:
    /// \p message says in a few words what happened, \p information what the user can do.
    Alert(const QString &message, const QString &information, QWidget *sheet);

    QString message() const;
    QString information() const;

    /// Adds a button that closes the alert and then calls \p chosen. Buttons are placed from right
    /// to left, or where the sheet is too narrow below each other; Return presses the first one,
    /// Escape the last.
    void addButton(const QString &title, const std::function<void()> &chosen = {});
    const QList<PushButton *> &buttons() const { return m_buttons; }

    /// Shows the alert centred on its sheet.
    void present();

private:
    void layOut();

    QLabel *m_message;
    QLabel *m_information;
    QList<PushButton *> m_buttons;
};
