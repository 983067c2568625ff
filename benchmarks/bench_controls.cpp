// SPDX-License-Identifier: MIT
// What one movement of a colour slider costs: the event, the update of swatch and field as in the
// options sheet, and the repaint. At 60 frames a second there are 16.6 ms for it.
#include "controls/Popover.h"
#include "controls/TamselColorPopover.h"
#include "controls/TamselGradientSlider.h"
#include "controls/TamselHexField.h"
#include "controls/TamselSwatchButton.h"

#include <QCoreApplication>
#include <QMouseEvent>

#include <benchmark/benchmark.h>

namespace {

constexpr int kTravel = 252;
constexpr int kKnobReach = 14;

void drag(QWidget *slider, QEvent::Type type, int x)
{
    const QPointF position(x, kKnobReach);
    QMouseEvent event(type, position, slider->mapToGlobal(position), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(slider, &event);
}

/// Drags one of the three sliders to and fro over its whole length.
void sliderDrag(benchmark::State &state)
{
    QWidget sheet;
    sheet.resize(400, 482);
    TamselSwatchButton swatch(&sheet);
    swatch.setGeometry(310, 300, 28, 28);
    TamselHexField field(&sheet);
    field.setGeometry(217, 302, 85, 24);
    sheet.show();

    TamselColorPopover editor;
    editor.colorChanged = [&](const QColor &color) {
        swatch.setSwatchColor(color);
        field.setText(color.name().toUpper());
    };
    editor.showFor(&swatch, QColor(0x8A, 0x1C, 0x2B));
    TamselGradientSlider *sliders[] = {editor.hueSlider(), editor.saturationSlider(),
                                       editor.brightnessSlider()};
    QWidget *slider = sliders[state.range(0)];
    QCoreApplication::processEvents();

    drag(slider, QEvent::MouseButtonPress, kKnobReach);
    int x = 0;
    for (auto _ : state) {
        drag(slider, QEvent::MouseMove, kKnobReach + std::abs(kTravel - x++ % (2 * kTravel)));
        QCoreApplication::sendPostedEvents(); // paints
    }
    drag(slider, QEvent::MouseButtonRelease, kKnobReach);
}

} // namespace

BENCHMARK(sliderDrag)->ArgName("component")->DenseRange(0, 2)->Unit(benchmark::kMicrosecond);
