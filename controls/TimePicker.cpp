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

bool isLetter(QChar c)
{
    return c.isLetter() || c.isMark() || c.isSurrogate();
}

/// The letters of \p text alone, so that "a. m." is the same as "AM".
QString lettersOf(const QString &text)
{
    QString letters;
    std::copy_if(text.begin(), text.end(), std::back_inserter(letters), isLetter);
    return letters.toCaseFolded();
}

/// Whether \p letters begin the name of the half of the day that has the local name \p local and
/// the Latin one \p latin.
bool begins(const QString &letters, const QString &local, QLatin1StringView latin)
{
    return lettersOf(local).startsWith(letters) || latin.startsWith(letters);
}

/// What a key types; empty for shortcuts and keys without a sign.
QString typedText(const QKeyEvent &event)
{
    const bool isCommand =
        (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    return isCommand || event.text().isEmpty() || !event.text().front().isPrint() ? QString()
                                                                                  : event.text();
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
    const QString text = typedText(*event);
    if (event->matches(QKeySequence::SelectAll) || event->matches(QKeySequence::MoveToStartOfLine))
        setSelectedSection(sectionAt(startsWithHalf() ? 1 : 0));
    else if (event->matches(QKeySequence::MoveToEndOfLine))
        setSelectedSection(sectionAt(sectionCount() - 1));
    else if (!text.isEmpty() && displayedSections().testFlag(AmPmSection) && takesSign(text))
        return;
    else
        QTimeEdit::keyPressEvent(event);
    m_typedHalf.clear();
}

bool TimePicker::startsWithHalf() const
{
    return sectionAt(0) == AmPmSection;
}

bool TimePicker::takesSign(const QString &sign)
{
    if (isLetter(sign.front())) {
        typeHalf(sign.toCaseFolded());
        return true;
    }
    if (currentSection() != AmPmSection)
        return sign.front().isSpace() && lineEdit()->hasSelectedText();
    if (startsWithHalf())
        setSelectedSection(sectionAt(1));
    return !sign.front().isDigit();
}

void TimePicker::typeHalf(const QString &letter)
{
    for (const QString &letters : {m_typedHalf + letter, letter}) {
        const bool isMorning = begins(letters, locale().amText(), QLatin1StringView("am"));
        const bool isEvening = begins(letters, locale().pmText(), QLatin1StringView("pm"));
        if (!isMorning && !isEvening)
            continue;
        m_typedHalf = letters;
        if (isMorning != isEvening)
            setHalf(isEvening);
        return;
    }
    m_typedHalf.clear();
}

void TimePicker::setHalf(bool evening)
{
    interpretText();
    setTime({time().hour() % kHalfDay + (evening ? kHalfDay : 0), time().minute()});
    setSelectedSection(AmPmSection);
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
