// SPDX-License-Identifier: MIT
#include "controls/TamselColorPopover.h"

#include "controls/Popover.h"
#include "controls/PushButton.h"
#include "controls/TamselGradientSlider.h"
#include "controls/TamselHSBColor.h"
#include "controls/TamselHex.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kViewSize(300, 158);
constexpr QRect kHueFrame(10, 10, 280, 28);
constexpr QRect kSaturationFrame(10, 48, 280, 28);
constexpr QRect kBrightnessFrame(10, 86, 280, 28);
constexpr QRect kPanelButtonFrame(10, 127, 280, 24);
constexpr double kPanelButtonRadius = 12.0;
constexpr quint32 kPanelButtonFill = 0x303030;
constexpr quint32 kPanelButtonInk = 0xDEDEDE;
constexpr double kSymbolSize = 13.0;

TamselGradientSlider *makeSlider(QWidget *view, int component, const QString &label,
                                 const QRect &frame)
{
    auto *slider = new TamselGradientSlider(view);
    slider->setComponent(component);
    slider->setAccessibleName(label);
    slider->setToolTip(label);
    slider->setGeometry(frame);
    return slider;
}

} // namespace

TamselColorPopover::TamselColorPopover(QObject *parent) : QObject(parent)
{
}

TamselColorPopover::~TamselColorPopover()
{
    dropPopover();
    const QWidget *view = m_view;
    if (view && !view->parentWidget())
        delete view;
}

void TamselColorPopover::dropPopover()
{
    if (!m_popover)
        return;
    m_popover->disconnect(this);
    m_popover->close();
    m_popover->deleteLater(); // the popover may be handling an event
}

Popover *TamselColorPopover::popover() const
{
    return m_popover;
}

QWidget *TamselColorPopover::view()
{
    if (!m_view)
        loadView();
    return m_view;
}

void TamselColorPopover::loadView()
{
    auto *view = new QWidget;
    view->resize(kViewSize);
    m_view = view;
    m_hueSlider = makeSlider(view, TamselGradientSlider::Hue, tr("Hue"), kHueFrame);
    m_saturationSlider =
        makeSlider(view, TamselGradientSlider::Saturation, tr("Saturation"), kSaturationFrame);
    m_brightnessSlider =
        makeSlider(view, TamselGradientSlider::Brightness, tr("Brightness"), kBrightnessFrame);
    for (auto *slider : {m_hueSlider, m_saturationSlider, m_brightnessSlider})
        connect(slider, &TamselGradientSlider::edited, this, &TamselColorPopover::changed);

    auto *panelButton = new PushButton(tr("Color Picker"), view);
    panelButton->setGeometry(kPanelButtonFrame);
    panelButton->setSymbol(Symbol::named(u"eyedropper"_s, kSymbolSize));
    panelButton->setRadius(kPanelButtonRadius);
    panelButton->setFill(TamselHex(kPanelButtonFill));
    panelButton->setInk(TamselHex(kPanelButtonInk));
    connect(panelButton, &QAbstractButton::clicked, this, &TamselColorPopover::fullPicker);
}

void TamselColorPopover::setColor(const QColor &color)
{
    view();
    float hue = 0.0F;
    float saturation = 0.0F;
    float brightness = 0.0F;
    if (color.isValid())
        color.toRgb().getHsvF(&hue, &saturation, &brightness);
    m_hueSlider->setDoubleValue(std::max(0.0F, hue)); // -1 for greys
    m_saturationSlider->setDoubleValue(saturation);
    m_brightnessSlider->setDoubleValue(brightness);
    updateGradients();
}

void TamselColorPopover::showFor(QWidget *anchor, const QColor &color)
{
    setColor(color);
    auto *popover = new Popover(m_view, anchor);
    dropPopover();
    m_popover = popover;
    connect(m_popover, &Popover::closed, this, &TamselColorPopover::popoverDidClose);
    m_popover->present();
}

void TamselColorPopover::updateGradients()
{
    for (auto *slider : {m_hueSlider, m_saturationSlider, m_brightnessSlider}) {
        slider->setSelectedHue(m_hueSlider->doubleValue());
        slider->setSelectedSaturation(m_saturationSlider->doubleValue());
        slider->setSelectedBrightness(m_brightnessSlider->doubleValue());
    }
}

// Callbacks are called through copies, because their owner may replace them, or delete this object,
// during the call.

void TamselColorPopover::changed()
{
    updateGradients();
    if (const auto report = colorChanged)
        report(TamselHSBColor(m_hueSlider->doubleValue(), m_saturationSlider->doubleValue(),
                              m_brightnessSlider->doubleValue()));
}

void TamselColorPopover::fullPicker()
{
    m_openingFullPanel = true;
    const auto report = openPanel;
    if (m_popover)
        m_popover->close();
    if (report)
        report();
}

void TamselColorPopover::popoverDidClose() const
{
    if (m_openingFullPanel)
        return;
    if (const auto report = dismissed)
        report();
}
