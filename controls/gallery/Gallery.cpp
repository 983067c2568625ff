// SPDX-License-Identifier: MIT
#include "controls/gallery/Gallery.h"

#include "controls/ControlFont.h"
#include "controls/Popover.h"
#include "controls/PushButton.h"
#include "controls/RoundedShape.h"
#include "controls/TamselColorPopover.h"
#include "controls/TamselGradientSlider.h"
#include "controls/TamselHexField.h"
#include "controls/TamselModeControl.h"
#include "controls/TamselSeparator.h"
#include "controls/TamselSettingsView.h"
#include "controls/TamselSwatchButton.h"
#include "controls/TamselTimeInput.h"
#include "controls/TamselTimeMenu.h"
#include "controls/TamselToggle.h"
#include "controls/TextLabel.h"
#include "controls/TimePicker.h"
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "platform/Clocks.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 28;
constexpr int kRowWidth = 344;
constexpr int kRowRight = 334;
constexpr int kRowGap = 10;

void hover(QWidget *control)
{
    QEnterEvent event({1, 1}, {1, 1}, {1, 1});
    QCoreApplication::sendEvent(control, &event);
}

void focusByKey(QWidget *control)
{
    QFocusEvent event(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(control, &event);
}

/// A coloured background, as the preview is below a mode control.
class Ground final : public QWidget
{
public:
    Ground(const QColor &color, QWidget *parent) : QWidget(parent), m_color(color) {}

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        fillRounded(painter, rect(), 10, m_color);
    }

private:
    QColor m_color;
};

/// Text beside symbols, to compare their base lines and weights.
class SymbolLine final : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(controlFont());
        const QColor ink = appearanceOf(this).labelColor();
        painter.setPen(ink);
        const QStringList names{u"sun.max.fill"_s, u"moon.fill"_s, u"chevron.up.chevron.down"_s,
                                u"arrow.up.arrow.down"_s, u"eyedropper"_s};
        double x = 10;
        for (const double size : {13.0, 26.0}) {
            for (const QString &name : names) {
                const QRectF box(x, 0, size * 1.4, height());
                Symbol::named(name, size, QFont::Medium).draw(painter, box, ink);
                x += size * 1.4;
            }
            painter.drawText(QRectF(x + 4, (height() - 16) / 2.0, 30, 16), u"Hx"_s);
            x += 32;
        }
    }
};

TamselSymbolButton *addSymbolButton(QWidget *row, int x)
{
    auto *button = new TamselSymbolButton(row);
    button->setGeometry(x, 9, 24, 24);
    button->setRadius(6);
    button->setImage(Symbol::named(u"arrow.up.arrow.down"_s, 10, QFont::DemiBold));
    button->setAccessibleName(u"Swap colors"_s);
    button->setToolTip(u"Swap day colors"_s);
    return button;
}

TamselTimeMenu *addTimeMenu(QWidget *row, const QString &title, double y)
{
    auto *menu = new TamselTimeMenu(row);
    menu->setFont(controlFont());
    menu->setText(title);
    menu->setImage(Symbol::named(u"chevron.up.chevron.down"_s, 10, QFont::DemiBold));
    menu->setAccessibleName(title.isEmpty() ? u"Night mode end setting"_s : title);
    menu->setRadius(10);
    followAppearance(menu, [menu] { menu->setInk(appearanceOf(menu).controlTextColor()); });
    menu->setGeometry(0, 0, kRowRight, 24);
    menu->alignAtRowCenter(y);
    return menu;
}

} // namespace

Gallery::Gallery(const platform::Appearance &appearance, QWidget *parent)
    : QWidget(parent), m_bottom(kMargin)
{
    setAppearanceOf(this, appearance);
    setPalette(appearance.palette());
    auto *background = new TamselSettingsView(this);
    addSwatches();
    addFields();
    addSymbolButtons();
    addTimeRows();
    addToggles();
    addPushButtons();
    addModeControls();
    addSymbols();
    addPopover();
    resize(kRowWidth + 2 * kMargin, m_bottom + kMargin - kRowGap);
    background->resize(size());
}

Gallery::~Gallery() = default;

QWidget *Gallery::addRow(const QString &title, int height)
{
    auto *row = new TamselSettingsView(this);
    row->setGroup(true);
    row->setGroupRadius(12);
    row->setGroupContrast(0.03);
    row->setAccessibleName(title);
    row->setGeometry(kMargin, m_bottom, kRowWidth, height);
    m_bottom += height + kRowGap;
    labelWithString(title, {10, 13, 150, 18}, row);
    return row;
}

void Gallery::addSwatches()
{
    QWidget *row = addRow(u"Swatches"_s);
    const QColor colors[] = {QColor(0xF3, 0xE9, 0xD2), QColor(0xE8, 0x5D, 0x25),
                             QColor(0x24, 0x50, 0x8C), QColor(0x1A, 0x1A, 0x1A), QColor()};
    const QStringList names{u"Cream"_s, u"Orange"_s, u"Blue"_s, u"Nero"_s, u"Custom"_s};
    for (int i = 0; i < names.size(); ++i) {
        auto *swatch = new TamselSwatchButton(row);
        swatch->setGeometry(182 + 32 * i, 7, 28, 28);
        swatch->setCheckable(true);
        swatch->setChecked(i == 1);
        swatch->setRainbow(i == 4);
        swatch->setSwatchColor(colors[i]);
        swatch->setAccessibleName(names[i]);
        swatch->setToolTip(names[i]);
        if (i == 3)
            focusByKey(swatch);
    }
}

void Gallery::addFields()
{
    QWidget *row = addRow(u"Colors"_s, 84);
    auto *divider = new TamselSeparator(row);
    divider->setGeometry(10, 42, 324, 1);
    const QColor colors[] = {QColor(0x8A, 0x1C, 0x2B), QColor(0xFF, 0xFF, 0xFF)};
    const QStringList names{u"Primary"_s, u"Background"_s};
    for (int i = 0; i < 2; ++i) {
        auto *field = new TamselHexField(row);
        field->setGeometry(217, 9 + 42 * i, 85, 24);
        field->setText(colors[i].name().toUpper());
        field->setAccessibleName(u"Day %1 hex color"_s.arg(names[i].toLower()));
        if (i == 1)
            field->selectAll();
        auto *swatch = new TamselSwatchButton(row);
        swatch->setGeometry(310, 7 + 42 * i, 28, 28);
        swatch->setUsesPickerSelection(true);
        swatch->setPickerActive(i == 1);
        swatch->setSwatchColor(colors[i]);
        swatch->setAccessibleName(u"Day %1 color"_s.arg(names[i].toLower()));
        connect(swatch, &QAbstractButton::clicked, this, [=, this] { edit(swatch, field); });
        connect(field, &QLineEdit::returnPressed, swatch,
                [=] { swatch->setSwatchColor(QColor(field->text())); });
    }
}

void Gallery::addSymbolButtons()
{
    QWidget *row = addRow(u"Symbol buttons"_s);
    addSymbolButton(row, 150);
    auto *hovered = addSymbolButton(row, 190);
    hovered->setHoverInk(appearanceOf(this).controlTextColor());
    hover(hovered);
    addSymbolButton(row, 230)->setDown(true);
    focusByKey(addSymbolButton(row, 270));
    auto *round = addSymbolButton(row, 310);
    round->setRadius(12);
    round->setFill(appearanceOf(this).controlAccentColor());
    round->setInk(Qt::white);
}

void Gallery::addTimeRows()
{
    QWidget *row = addRow(u"From, hovered"_s, 126);
    labelWithString(u"From"_s, {10, 55, 100, 18}, row);
    labelWithString(u"To"_s, {10, 97, 100, 18}, row);
    for (const int y : {42, 84})
        (new TamselSeparator(row))->setGeometry(10, y, 324, 1);
    hover(addTimeMenu(row, u"Sunset"_s, 21));
    addTimeMenu(row, u"Sunset"_s, 63);
    addTimeMenu(row, {}, 105);
    auto *input = new TamselTimeInput(row);
    input->setGeometry(217, 93, 85, 24);
    auto *picker = new TimePicker(input);
    picker->setTime({7, 30});
    picker->setAccessibleName(u"Night mode ends at"_s);
    input->setPicker(picker);
    input->alignPicker();
}

void Gallery::addToggles()
{
    QWidget *row = addRow(u"Toggles"_s);
    const QStringList names{u"Off"_s, u"On"_s, u"Pressed"_s, u"Disabled"_s, u"Focused"_s};
    for (int i = 0; i < names.size(); ++i) {
        auto *toggle = new TamselToggle(platform::systemClocks(), row);
        toggle->setAccessibleName(names[i]);
        toggle->move(kRowRight - 36 - 46 * (4 - i), 13);
        toggle->setChecked(i % 2 == 1 || i == 4);
        toggle->setDown(i == 2);
        toggle->setEnabled(i != 3);
        if (i == 4)
            focusByKey(toggle);
    }
}

void Gallery::addPushButtons()
{
    QWidget *row = addRow({}, 84);
    const QStringList names{u"Cancel"_s, u"Pressed"_s, u"Focused"_s, u"Disabled"_s};
    for (int i = 0; i < 8; ++i) {
        auto *button = new PushButton(i == 4 ? u"OK"_s : names[i % 4], row);
        button->setGeometry(10 + 82 * (i % 4), 7 + 42 * (i / 4), 74, 28);
        button->setProminent(i >= 4);
        button->setDown(i % 4 == 1);
        button->setEnabled(i % 4 != 3);
        if (i % 4 == 2)
            focusByKey(button);
    }
}

void Gallery::addModeControls()
{
    QWidget *row = addRow({}, 60);
    const QColor grounds[] = {QColor(0xF3, 0xE9, 0xD2), QColor(0xE8, 0x5D, 0x25),
                              QColor(0x1A, 0x1A, 0x1A)};
    for (int i = 0; i < 3; ++i) {
        auto *ground = new Ground(grounds[i], row);
        ground->setGeometry(10 + 110 * i, 10, 104, 40);
        auto *control = new TamselModeControl(platform::systemClocks(), ground);
        control->setGeometry(10, 8, 50, 24);
        control->setInk(i == 0 ? Qt::black : Qt::white);
        control->setSelectedSegment(i % 2);
        if (i == 1)
            focusByKey(control->buttons().at(1));
        if (i == 2) {
            auto *shown = new TamselToggle(platform::systemClocks(), ground);
            shown->move(64, 12);
            shown->setAccessibleName(u"Mode control shown"_s);
            shown->setChecked(true);
            connect(shown, &QAbstractButton::toggled, control,
                    [control](bool on) { control->setVisible(on, true); });
        }
    }
}

void Gallery::addSymbols()
{
    QWidget *row = addRow({}, 48);
    auto *line = new SymbolLine(row);
    line->resize(row->size());
}

void Gallery::addPopover()
{
    m_specimen = std::make_unique<TamselColorPopover>();
    m_specimen->setColor(QColor(0xE8, 0x5D, 0x25));
    focusByKey(m_specimen->saturationSlider());
    auto *panel = new Popover(m_specimen->view(), this);
    panel->setParent(this, Qt::Widget);
    panel->show();
    panel->move(kMargin + (kRowWidth - panel->width()) / 2, m_bottom);
    m_bottom += panel->height() + kRowGap;
}

void Gallery::edit(TamselSwatchButton *swatch, TamselHexField *field)
{
    m_editor = std::make_unique<TamselColorPopover>();
    swatch->setPickerActive(true);
    m_editor->colorChanged = [=](const QColor &color) {
        swatch->setSwatchColor(color);
        field->setText(color.name().toUpper());
    };
    m_editor->dismissed = [=] { swatch->setPickerActive(false); };
    m_editor->openPanel = m_editor->dismissed;
    m_editor->showFor(swatch, swatch->swatchColor());
}
