// SPDX-License-Identifier: MIT
#include "location/SaveBar.h"

#include "location/Look.h"
#include "platform/Appearance.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace location {

SaveBar::SaveBar(QWidget *parent)
    : QWidget(parent), m_message(new QLabel), m_forget(new QPushButton(tr("Fo&rget location"))),
      m_close(new QPushButton(tr("&Close"))), m_save(new QPushButton(tr("&Save")))
{
    m_message->setWordWrap(true);
    m_message->setMinimumHeight(fontMetrics().lineSpacing());
    m_forget->setAutoDefault(false);
    m_close->setAutoDefault(false);
    m_save->setDefault(true);
    for (QPushButton *button : {m_forget, m_close, m_save})
        button->setMinimumHeight(kControlHeight);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(kControlSpacing);
    buttons->addWidget(m_forget);
    buttons->addStretch();
    buttons->addWidget(m_close);
    buttons->addWidget(m_save);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kWindowMargin, kSectionSpacing, kWindowMargin, kWindowMargin);
    layout->setSpacing(kControlSpacing);
    layout->addWidget(m_message);
    layout->addLayout(buttons);
}

void SaveBar::tell(const QString &text, Tone tone)
{
    m_tone = tone;
    m_message->setText(text);
    followAppearance();
    announce(m_message);
}

void SaveBar::followAppearance()
{
    const auto &appearance = platform::Appearance::shared();
    setTextColor(m_message, m_tone == Tone::Fault ? appearance.systemRedColor()
                                                  : appearance.secondaryLabelColor());
}

} // namespace location
