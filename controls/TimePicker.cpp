// SPDX-License-Identifier: MIT
#include "controls/TimePicker.h"

#include "controls/LineHeight.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"

#include <QLineEdit>
#include <QRegularExpression>

#include <cmath>

namespace {

constexpr double kFontSize = 13.0;
/// What the toolkit's editor keeps free around its text, and the caret.
constexpr double kEditorPadding = 6.0;
constexpr int kCaretSpace = 2;
/// Below the text, so that its line comes to the middle of a time input, which puts the picker a
/// little below it.
constexpr double kSpaceBelow = 5.0;
/// Late enough to have two digits everywhere, and the longer half of a day.
constexpr QTime kWidestTime = QTime::fromMSecsSinceStartOfDay((22 * 60 + 58) * 60 * 1000);

/// How \p locale writes a time, without seconds where it would have them.
QString hourAndMinute(const QLocale &locale)
{
    static const QRegularExpression seconds(QStringLiteral("[:.]?s+"));
    return locale.timeFormat(QLocale::ShortFormat).remove(seconds);
}

} // namespace

TimePicker::TimePicker(QWidget *parent) : QTimeEdit(parent)
{
    setFrame(false);
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignTop);
    // The caret's place is taken from the margin, so that the digits end where other input does.
    lineEdit()->setTextMargins(0, 0, -kCaretSpace, 0);
    setDisplayFormat(hourAndMinute(locale()));
    setFont(platform::systemFont(kFontSize, QFont::Normal));
    followAppearance(this, [this] { takeColors(); });
}

void TimePicker::setTextColor(const QColor &color)
{
    m_textColor = color;
    takeColors();
}

QSize TimePicker::sizeHint() const
{
    const double text =
        QFontMetricsF(font()).horizontalAdvance(locale().toString(kWidestTime, displayFormat()));
    return {static_cast<int>(std::ceil(text + kEditorPadding)),
            static_cast<int>(lineHeight(font()) + kSpaceBelow)};
}

void TimePicker::paintEvent(QPaintEvent *)
{
    // The editor inside draws the text; there is nothing else to see.
}

void TimePicker::takeColors()
{
    const platform::Appearance &appearance = appearanceOf(this);
    const QColor text = m_textColor.isValid() ? m_textColor : appearance.controlTextColor();
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    colors.setColor(QPalette::Text, text);
    colors.setColor(QPalette::Highlight, appearance.controlAccentColor());
    colors.setColor(QPalette::HighlightedText, Qt::white);
    setPalette(colors);
}
