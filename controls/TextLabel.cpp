// SPDX-License-Identifier: MIT
#include "controls/TextLabel.h"

#include "controls/ControlFont.h"
#include "controls/ViewAppearance.h"

#include <QLabel>

QLabel *labelWithString(const QString &text, const QRect &frame, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setGeometry(frame);
    label->setFont(controlFont());
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setTextFormat(Qt::PlainText);
    setLabelColor(label, &platform::Appearance::labelColor);
    return label;
}

void setLabelColor(QLabel *label, QColor (platform::Appearance::*color)() const)
{
    followAppearance(label, [label, color] {
        QPalette colors = label->palette();
        colors.setColor(QPalette::WindowText, (appearanceOf(label).*color)());
        label->setPalette(colors);
    });
}
