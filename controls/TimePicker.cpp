// SPDX-License-Identifier: MIT
#include "controls/TimePicker.h"

#include "controls/ControlAccessibility.h"
#include "controls/Emphasis.h"
#include "controls/LineHeight.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "platform/ShortTime.h"

#include <QKeyEvent>
#include <QLineEdit>

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

} // namespace

TimePicker::TimePicker(QWidget *parent) : QTimeEdit(parent)
{
    setFrame(false);
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignTop);
    // The caret's place is taken from the margin, so that the digits end where other input does.
    lineEdit()->setTextMargins(0, 0, -kCaretSpace, 0);
    setDisplayFormat(platform::shortTimeFormat(locale()));
    setFont(platform::systemFont(kFontSize, QFont::Normal));
    lineEdit()->installEventFilter(this);
    // By its usual name the toolkit keeps the editor from assistive technology.
    lineEdit()->setObjectName(QStringLiteral("time"));
    installControlAccessibility();
    followAppearance(this, [this] { takeColors(); });
}

void TimePicker::setRefused(bool refused)
{
    m_isRefused = refused;
    takeColors();
}

QSize TimePicker::sizeHint() const
{
    const double text =
        QFontMetricsF(font()).horizontalAdvance(locale().toString(kWidestTime, displayFormat()));
    return {static_cast<int>(std::ceil(text + kEditorPadding)),
            static_cast<int>(lineHeight(font()) + kSpaceBelow)};
}

bool TimePicker::eventFilter(QObject *watched, QEvent *event)
{
    const bool handled = QTimeEdit::eventFilter(watched, event);
    // With the caret inside a number the editor refuses every digit.
    if (event->type() == QEvent::MouseButtonRelease)
        QMetaObject::invokeMethod(this, &TimePicker::selectCurrentSection, Qt::QueuedConnection);
    return handled;
}

void TimePicker::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::SelectAll) || event->matches(QKeySequence::MoveToStartOfLine))
        setSelectedSection(sectionAt(0));
    else if (event->matches(QKeySequence::MoveToEndOfLine))
        setSelectedSection(sectionAt(sectionCount() - 1));
    else
        QTimeEdit::keyPressEvent(event);
}

void TimePicker::selectCurrentSection()
{
    setSelectedSection(currentSection());
}

void TimePicker::paintEvent(QPaintEvent *)
{
    // The editor inside draws the text; there is nothing else to see.
}

void TimePicker::takeColors()
{
    const platform::Appearance &appearance = appearanceOf(this);
    const QColor text = m_isRefused ? appearance.systemRedColor() : appearance.controlTextColor();
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    colors.setColor(QPalette::Text, text);
    const Emphasis selection = emphasisFrom(appearance.controlAccentColor());
    colors.setColor(QPalette::Highlight, selection.fill);
    colors.setColor(QPalette::HighlightedText, selection.ink);
    setPalette(colors);
}
