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
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

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
constexpr int kHalfDay = 12; // hours
constexpr int kLastHour = 23;
constexpr int kLastMinute = 59;

/// The hour of the day that a clock with halves calls \p hour, where 12 is the same as 0.
int hourOf(int hour, bool evening)
{
    return hour % kHalfDay + (evening ? kHalfDay : 0);
}

/// The letters of \p text alone, so that "a. m." is the same as "AM".
QString lettersOf(const QString &text)
{
    QString letters;
    std::copy_if(text.begin(), text.end(), std::back_inserter(letters),
                 [](QChar c) { return c.isLetter() || c.isMark() || c.isSurrogate(); });
    return letters.toCaseFolded();
}

/// What a key types; empty for shortcuts and keys without a sign.
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
    setFrame(false);
    setFocusPolicy(Qt::StrongFocus); // the toolkit's own comes with the wheel as well
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

// The toolkit refuses digits beyond 16 bits, does not read every time that it writes, and takes
// 130 for half past ten.

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
    if (number > last) { // an hour of one digit is followed by the minute
        m_typedNumber.reset();
        setSelectedSection(MinuteSection);
        typeDigit(digit);
        return;
    }
    const bool isComplete = m_typedNumber || 10 * number > last;
    m_typedNumber = isComplete ? std::nullopt : std::optional(number);
    setNumber(section, number);
    lineEdit()->home(false); // the toolkit knows another section by a caret that moves
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
    // Whoever scrolls past it does not mean it.
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
