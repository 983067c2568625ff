// SPDX-License-Identifier: MIT
#include "controls/Alert.h"

#include "controls/ControlAccessibility.h"
#include "controls/ControlFont.h"
#include "controls/FloatingPanel.h"
#include "controls/Mirroring.h"
#include "controls/PushButton.h"
#include "controls/TextLabel.h"

#include <QLabel>

#include <algorithm>

namespace {

constexpr int kWidth = 320;
constexpr int kMargin = 20;
constexpr double kRadius = 16.0;
constexpr int kTextGap = 6;
constexpr int kButtonsGap = 20;
constexpr int kButtonGap = 10;
constexpr int kButtonWidth = 80;
constexpr int kButtonHeight = 24;

int widthOf(const PushButton &button)
{
    return std::max(kButtonWidth, button.sizeHint().width());
}

} // namespace

Alert::Alert(const QString &message, const QString &information, QWidget *sheet)
    : TamselSettingsWindow(sheet), m_message(labelWithString(message, {}, this)),
      m_information(labelWithString(information, {}, this))
{
    setAccessibleRole(this, QAccessible::AlertMessage);
    m_message->setFont(controlFont(QFont::DemiBold));
    for (QLabel *label : {m_message, m_information})
        label->setWordWrap(true);
    setAttribute(Qt::WA_DeleteOnClose);
    setOver(PanelOver::Window);
    setCornerRadius(kRadius);
    setMovableByWindowBackground(true);
    setWindowTitle(message);
    setAccessibleDescription(information);
    connect(this, &TamselSettingsWindow::defaultRequested, this,
            [this] { m_buttons.first()->click(); });
    connect(this, &TamselSettingsWindow::cancelRequested, this,
            [this] { m_buttons.last()->click(); });
}

QString Alert::message() const
{
    return m_message->text();
}

QString Alert::information() const
{
    return m_information->text();
}

void Alert::addButton(const QString &title, const std::function<void()> &chosen)
{
    auto *button = new PushButton(title, this);
    button->setProminent(m_buttons.isEmpty());
    m_buttons.append(button);
    connect(button, &QAbstractButton::clicked, this, [this, chosen] {
        hide();
        deleteLater();
        if (chosen)
            chosen();
    });
}

void Alert::layOut()
{
    int beside = -kButtonGap;
    int widest = 0;
    for (const PushButton *button : m_buttons) {
        beside += widthOf(*button) + kButtonGap;
        widest = std::max(widest, widthOf(*button));
    }
    // Inside the sheet, with some of it left on both sides.
    const bool areStacked = beside + 4 * kMargin > parentWidget()->width();
    const int textWidth = std::max(kWidth - 2 * kMargin, areStacked ? widest : beside);
    const int margin = shadowMargin(PanelOver::Window) + kMargin;
    int y = margin;
    for (QLabel *label : {m_message, m_information}) {
        const int height = label->heightForWidth(textWidth);
        label->setGeometry(margin, y, textWidth, height);
        y += height + kTextGap;
    }
    y += kButtonsGap - kTextGap;
    const int rows = areStacked ? int(m_buttons.size()) : 1;
    int right = margin + textWidth;
    resize(right + margin, y + rows * (kButtonHeight + kButtonGap) - kButtonGap + margin);
    for (PushButton *button : m_buttons) {
        const int width = areStacked ? textWidth : widthOf(*button);
        place(button, {right - width, y, width, kButtonHeight});
        if (areStacked)
            y += kButtonHeight + kButtonGap;
        else
            right -= width + kButtonGap;
    }
}

void Alert::present()
{
    layOut();
    const QWidget *sheet = parentWidget();
    move(sheet->mapToGlobal(sheet->rect().center()) - rect().center());
    show();
    activateWindow();
    m_buttons.first()->setFocus(Qt::ActiveWindowFocusReason);
}
