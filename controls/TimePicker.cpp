// SPDX-License-Identifier: MIT
#include "controls/TimePicker.h"

#include "controls/ControlAccessibility.h"
#include "controls/ControlFont.h"
#include "controls/Emphasis.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "platform/ShortTime.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Padding of the line edit around its text, caret included.
constexpr double kEditorPadding = 6.0;
constexpr int kCaretSpace = 2;
/// Space below the text. It centres the text line in a time input, which places the picker below
/// its middle.
constexpr double kSpaceBelow = 5.0;
/// A time with two digits in every field and the longer of the day halves.
constexpr QTime kWidestTime = QTime::fromMSecsSinceStartOfDay((22 * 60 + 58) * 60 * 1000);
constexpr int kHalfDay = 12; // hours
constexpr int kLastHour = 23;
constexpr int kLastMinute = 59;

/// The hour of the day, 0 to 23, for \p hour of a 12-hour clock, where 12 means 0.
int hourOf(int hour, bool evening)
{
    return hour % kHalfDay + (evening ? kHalfDay : 0);
}

/// The letters of \p text in folded case; reduces "a. m." to "am".
QString lettersOf(const QString &text)
{
    QString letters;
    std::ranges::copy_if(text, std::back_inserter(letters),
                         [](QChar c) { return c.isLetter() || c.isMark() || c.isSurrogate(); });
    return letters.toCaseFolded();
}

/// The text that a key types; empty for shortcuts and for keys that type nothing.
QString typedText(const QKeyEvent &event)
{
    const bool isCommand =
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    const bool isSign =
        !event.text().isEmpty() && QChar::isPrint(event.text().toUcs4().constFirst());
    return isSign && !isCommand ? event.text() : QString();
}

} // namespace

TimePicker::TimePicker(QWidget *parent) : QTimeEdit(parent)
{
    setAccessibleRole(this, QAccessible::SpinBox);
    // In the other direction the toolkit would write the minutes first.
    setLayoutDirection(Qt::LeftToRight);
    setFrame(false);
    setFocusPolicy(Qt::StrongFocus); // QTimeEdit also takes the focus by the wheel
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignTop);
    // QLineEdit reserves space for the caret; a negative margin aligns the digits with other
    // fields.
    lineEdit()->setTextMargins(0, 0, -kCaretSpace, 0);
    setDisplayFormat(platform::shortTimeFormat(locale()));
    setFont(controlFont());
    lineEdit()->installEventFilter(this);
    // With the object name that Qt gives it, Qt hides the line edit from assistive technology, and
    // the picker's text interface with it.
    lineEdit()->setObjectName(QStringLiteral("time"));
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

bool TimePicker::event(QEvent *event)
{
    // An input method may compose the names of the halves, and digits too.
    if (event->type() == QEvent::InputMethod) {
        typeText(static_cast<QInputMethodEvent *>(event)->commitString());
        return true;
    }
    return QTimeEdit::event(event);
}

bool TimePicker::eventFilter(QObject *watched, QEvent *event)
{
    const bool handled = QTimeEdit::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonRelease)
        QMetaObject::invokeMethod(this, &TimePicker::selectCurrentSection, Qt::QueuedConnection);
    return handled;
}

void TimePicker::focusInEvent(QFocusEvent *event)
{
    forgetTyped();
    QTimeEdit::focusInEvent(event);
}

void TimePicker::keyPressEvent(QKeyEvent *event)
{
    const QString text = typedText(*event);
    if (!text.isEmpty()) {
        typeText(text);
        return;
    }
    forgetTyped();
    if (event->matches(QKeySequence::SelectAll) || event->matches(QKeySequence::MoveToStartOfLine))
        setSelectedSection(HourSection);
    else if (event->matches(QKeySequence::MoveToEndOfLine))
        setSelectedSection(sectionAt(sectionCount() - 1));
    else
        QTimeEdit::keyPressEvent(event);
}

bool TimePicker::hasHalves() const
{
    return displayedSections().testFlag(AmPmSection);
}

// QTimeEdit's own typing is not used: it refuses digits outside the basic multilingual plane,
// cannot parse every format it writes, and reads 130 as 10:30.

void TimePicker::typeText(const QString &text)
{
    for (const char32_t sign : text.toUcs4())
        typeSign(sign);
}

void TimePicker::typeSign(char32_t sign)
{
    const int digit = QChar::digitValue(sign);
    const QString text = QString::fromUcs4(&sign, 1);
    if (digit >= 0) {
        typeDigit(digit);
    } else if (hasHalves() && !lettersOf(text).isEmpty()) {
        typeHalf(text.toCaseFolded());
    } else if (m_typedNumber) {
        m_typedNumber.reset();
        setSelectedSection(MinuteSection);
    }
}

void TimePicker::typeDigit(int digit)
{
    if (currentSection() == AmPmSection) {
        if (sectionAt(0) != AmPmSection)
            return;
        setSelectedSection(HourSection);
    }
    const Section section = currentSection();
    const int last = section == MinuteSection ? kLastMinute : hasHalves() ? kHalfDay : kLastHour;
    const int number = 10 * m_typedNumber.value_or(0) + digit;
    if (number > last) { // the hour had one digit; this digit belongs to the minute
        m_typedNumber.reset();
        setSelectedSection(MinuteSection);
        typeDigit(digit);
        return;
    }
    const bool isComplete = m_typedNumber || 10 * number > last;
    m_typedNumber = isComplete ? std::nullopt : std::optional(number);
    setNumber(section, number);
    lineEdit()->home(false); // setSelectedSection() needs a caret that moves
    setSelectedSection(isComplete ? MinuteSection : section);
}

void TimePicker::setNumber(Section section, int number)
{
    const QTime now = time();
    if (section == MinuteSection)
        setTime({now.hour(), number});
    else
        setTime({hasHalves() ? hourOf(number, now.hour() >= kHalfDay) : number, now.minute()});
}

void TimePicker::typeHalf(const QString &letter)
{
    m_typedNumber.reset();
    for (const QString &letters : {m_typedHalf + letter, letter}) {
        for (const auto &[am, pm] :
             {std::pair(locale().amText(), locale().pmText()), std::pair(u"AM"_s, u"PM"_s)}) {
            const bool isMorning = lettersOf(am).startsWith(letters);
            const bool isEvening = lettersOf(pm).startsWith(letters);
            if (!isMorning && !isEvening)
                continue;
            m_typedHalf = letters;
            if (isMorning != isEvening)
                setHalf(isEvening);
            return;
        }
    }
    m_typedHalf.clear();
}

void TimePicker::setHalf(bool evening)
{
    setTime({hourOf(time().hour(), evening), time().minute()});
    setSelectedSection(AmPmSection);
}

void TimePicker::forgetTyped()
{
    m_typedHalf.clear();
    m_typedNumber.reset();
}

void TimePicker::wheelEvent(QWheelEvent *event)
{
    // The wheel over an unfocused picker scrolls the sheet.
    if (hasFocus())
        QTimeEdit::wheelEvent(event);
    else
        event->ignore();
}

void TimePicker::selectCurrentSection()
{
    forgetTyped();
    setSelectedSection(currentSection());
}

void TimePicker::paintEvent(QPaintEvent *)
{
    // The line edit draws the text; the frame is not drawn.
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
