// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QObject>
#include <QPointer>

#include <functional>

class Popover;
class QWidget;
class TamselGradientSlider;

/// The compact colour editor that a swatch opens: three sliders for hue, saturation and brightness
/// and a button that hands over to the full colour panel. One serves one opening: its end is
/// reported by exactly one call of `openPanel` or `dismissed`, after which it may be destroyed,
/// even from inside that call. Destroying it while it is open closes it without a report.
class TamselColorPopover : public QObject
{
    Q_OBJECT

public:
    explicit TamselColorPopover(QObject *parent = nullptr);
    ~TamselColorPopover() override;

    /// Called with each colour the user comes to.
    std::function<void(const QColor &)> colorChanged;
    /// Called when the user asks for the full panel; the popover is closed by then.
    std::function<void()> openPanel;
    /// Called when the popover has closed for any other reason.
    std::function<void()> dismissed;

    /// The panel on screen; null before showFor() and once its window has gone.
    Popover *popover() const;
    /// The content, 300 x 158 points, made when it is first asked for.
    QWidget *view();
    /// Valid once there is a view.
    TamselGradientSlider *hueSlider() const { return m_hueSlider; }
    TamselGradientSlider *saturationSlider() const { return m_saturationSlider; }
    TamselGradientSlider *brightnessSlider() const { return m_brightnessSlider; }
    bool openingFullPanel() const { return m_openingFullPanel; }

    /// Moves the sliders to \p color; black when it is invalid. Reports nothing.
    void setColor(const QColor &color);
    /// Opens the popover at \p anchor, which need not outlive it.
    void showFor(QWidget *anchor, const QColor &color);
    void updateGradients();
    /// A slider moved: shows the colour and reports it.
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
