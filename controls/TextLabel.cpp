// SPDX-License-Identifier: MIT
#include "controls/TextLabel.h"

#include "controls/ControlFont.h"
#include "controls/Mirroring.h"

#include <QLabel>

QLabel *labelWithString(const QString &text, const QRect &frame, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    place(label, frame);
    label->setFont(controlFont());
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setTextFormat(Qt::PlainText);
    return label;
}
