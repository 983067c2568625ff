// SPDX-License-Identifier: MIT
#include "controls/TamselModeControl.h"

#include "controls/ControlAccessibility.h"
#include "controls/FocusRing.h"
#include "controls/RoundedShape.h"
#include "controls/Symbol.h"
#include "controls/ViewAlpha.h"
#include "controls/ViewAppearance.h"
#include "platform/Clocks.h"

#include <QPainter>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double kFadeDuration = 0.28; // seconds
constexpr double kBackgroundAlpha = 0.1;
constexpr double kRadius = 6.0;
constexpr double kUnselectedAlpha = 0.4;

constexpr QRect kFirstButton(4, 2, 22, 20);
constexpr double kButtonRadius = 4.0;

struct ModeSymbol
{
    QStringView name;
    const char *description; ///< to be translated
    double pointSize;
};
constexpr std::array<ModeSymbol, 2> kSymbols{
    {{u"sun.max.fill", QT_TRANSLATE_NOOP("TamselModeControl", "Preview day colors"), 14.0},
     {u"moon.fill", QT_TRANSLATE_NOOP("TamselModeControl", "Preview night colors"), 12.0}}};

class ModeButton final : public QAbstractButton
{
public:
    ModeButton(const ModeSymbol &symbol, TamselModeControl *control)
        : QAbstractButton(control), m_control(control),
          m_image(Symbol::named(symbol.name.toString(), symbol.pointSize, QFont::Medium))
    {
        setAccessibleRole(this, QAccessible::RadioButton);
        setCheckable(true);
        setFocusPolicy(Qt::TabFocus);
        setAccessibleName(TamselModeControl::tr(symbol.description));
        new FocusRing(this, [this] {
            return FocusRing::Outline{QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0), kButtonRadius,
                                      m_control->ink()};
        });
    }

protected:
    /// Clicks do not toggle: the control checks the button of the selected segment.
    void nextCheckState() override {}

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setOpacity(isChecked() ? 1.0 : kUnselectedAlpha);
        m_image.draw(painter, rect(), m_control->ink());
    }

private:
    TamselModeControl *m_control;
    Symbol m_image;
};

} // namespace

TamselModeControl::TamselModeControl(const platform::Clocks &clocks, QWidget *parent)
    : QWidget(parent), m_visibilityTimer(clocks, kFadeDuration, [this](double alpha, bool atEnd) {
          setAlphaValue(this, alpha);
          if (atEnd)
              setVisible(m_fadingIn);
      })
{
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleName(tr("Preview palette"));
    for (const ModeSymbol &symbol : kSymbols) {
        const int segment = static_cast<int>(m_buttons.size());
        auto *button = new ModeButton(symbol, this);
        const int position = isRightToLeft() ? Night - segment : segment;
        button->setGeometry(kFirstButton.translated(kFirstButton.width() * position, 0));
        connect(button, &QAbstractButton::clicked, this, [this, segment] { selectMode(segment); });
        m_buttons.append(button);
    }
    updateIcons();
}

void TamselModeControl::setSelectedSegment(int segment)
{
    m_selectedSegment = segment;
    updateIcons();
}

void TamselModeControl::setInk(const QColor &ink)
{
    if (m_ink == ink)
        return;
    m_ink = ink;
    updateIcons();
}

void TamselModeControl::selectMode(int segment)
{
    setSelectedSegment(segment);
    Q_EMIT triggered();
}

void TamselModeControl::updateIcons()
{
    for (QAbstractButton *button : m_buttons) {
        button->setChecked(m_buttons.indexOf(button) == m_selectedSegment);
        button->update();
    }
    update();
}

void TamselModeControl::setVisible(bool visible, bool animated)
{
    m_visibilityTimer.stop();
    // Before its window is shown, a view counts as hidden only if it was hidden explicitly.
    const bool hidden = isHidden() && testAttribute(Qt::WA_WState_ExplicitShowHide);
    const double from = hidden ? 0.0 : alphaValue(this);
    const double to = visible ? 1.0 : 0.0;
    for (QAbstractButton *button : m_buttons)
        button->setEnabled(visible);
    if (animated && from != to) {
        m_fadingIn = visible;
        show();
        m_visibilityTimer.start(from, to);
        return;
    }
    setAlphaValue(this, to);
    setVisible(visible);
}

void TamselModeControl::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    fillRounded(painter, rect(), kRadius, withAlpha(m_ink, kBackgroundAlpha));
}
