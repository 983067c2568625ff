// SPDX-License-Identifier: MIT
#pragma once

#include "controls/TamselSettingsWindow.h"

#include <functional>

class QLabel;
class PushButton;

/// A message on a sheet, in the sheet's look, which keeps the sheet from being used until it is
/// answered. It destroys itself with its answer, or with the sheet.
class Alert : public TamselSettingsWindow
{
    Q_OBJECT

public:
    /// \p message is what happened, in a few words; \p information what can be done about it.
    Alert(const QString &message, const QString &information, QWidget *sheet);

    QString message() const;
    QString information() const;

    /// Adds a button that closes the alert and then calls \p chosen. Buttons stand from right to
    /// left; Return stands for the first one and Escape for the last.
    void addButton(const QString &title, const std::function<void()> &chosen = {});
    const QList<PushButton *> &buttons() const { return m_buttons; }

    /// Shows the alert in the middle of its sheet.
    void present();

private:
    QLabel *addText(const QString &text, const QFont &font);
    void layOut();

    QLabel *m_message;
    QLabel *m_information;
    QList<PushButton *> m_buttons;
};
