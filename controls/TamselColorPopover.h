// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>
#include <QPointer>

#include <functional>

class Popover;
class QWidget;
class TamselGradientSlider;

/// The compact colour editor of a swatch: sliders for hue, saturation and brightness, and a button
/// that opens the full colour panel. One object serves one opening. It reports the end by exactly
/// one call of `openPanel` or `dismissed`; from that call on it may be destroyed. Destroying it
/// while it is open closes it without a report.
class TamselColorPopover : public QObject
{
    Q_OBJECT

public:
    explicit TamselColorPopover(QObject *parent = nullptr);
    ~TamselColorPopover() override;

    /// Called with the new colour whenever the user moves a slider.
    std::function<void(const QColor &)> colorChanged;
    /// Called when the user asks for the full panel, after the popover has closed.
    std::function<void()> openPanel;
    /// Called when the popover has closed for any other reason.
    std::function<void()> dismissed;

    /// Null before showFor() and once the popover is destroyed.
    Popover *popover() const;
    /// The content, 300 x 158 points, created on first use.
    QWidget *view();
    /// The sliders are null until view() is called.
    TamselGradientSlider *hueSlider() const { return m_hueSlider; }
    TamselGradientSlider *saturationSlider() const { return m_saturationSlider; }
    TamselGradientSlider *brightnessSlider() const { return m_brightnessSlider; }
    bool openingFullPanel() const { return m_openingFullPanel; }

    /// Moves the sliders to \p color, or to black when it is invalid, without a callback.
    void setColor(const QColor &color);
    /// Opens the popover at \p anchor. The anchor may be destroyed first.
    void showFor(QWidget *anchor, const QColor &color);
    void updateGradients();
    /// Called when a slider moves: redraws the gradients and reports the colour.
    void changed();
    /// Closes the popover and asks for the full panel.
    void fullPicker();
    void popoverDidClose() const;

private:
    void loadView();
    void dropPopover();

    QPointer<Popover> m_popover;
    QPointer<QWidget> m_view;
    TamselGradientSlider *m_hueSlider = nullptr;
    TamselGradientSlider *m_saturationSlider = nullptr;
    TamselGradientSlider *m_brightnessSlider = nullptr;
    bool m_openingFullPanel = false;
};
