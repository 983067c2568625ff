// SPDX-License-Identifier: MIT
#include "controls/TextLabel.h"

#include "controls/ControlFont.h"
#include "controls/Mirroring.h"

#include <QLabel>
#include <QTextLayout>

QLabel *labelWithString(const QString &text, const QRect &frame, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setFont(controlFont());
    // On the line of the controls beside it, in every script.
    place(label, frame.translated(0, -baselineShift(text, label->font())));
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setTextFormat(Qt::PlainText);
    return label;
}

int baselineShift(const QString &text, const QFont &font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line.isValid() ? qRound(line.ascent() - QFontMetricsF(font).ascent()) : 0;
}
