// SPDX-License-Identifier: MIT
#pragma once

#include "clock/FramePainter.h"
#include "platform/FrameTimer.h"

#include <QPixmap>
#include <QWidget>

namespace platform {
class Clocks;
}

/// The live miniature of the clock in the options sheet. It draws what it is handed and reads no
/// settings; colours cross-fade, the calendar slides in and out.
class TamselClockPreviewView : public QWidget
{
    Q_OBJECT

public:
    /// \p clocks must outlive the view.
    explicit TamselClockPreviewView(const platform::Clocks &clocks, QWidget *parent = nullptr);

    const Artwork &artwork() const { return m_artwork; }
    void setArtwork(const Artwork &artwork) { change(m_artwork, artwork); }
    /// The background; a plain orange when invalid.
    QColor backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const QColor &color) { change(m_backgroundColor, color); }
    /// The calendar's ink; black when invalid.
    QColor markColor() const { return m_markColor; }
    void setMarkColor(const QColor &color) { change(m_markColor, color); }

    /// Where the calendar is or is sliding to.
    bool calendarEnabled() const { return m_calendarEnabled; }
    /// Slides the calendar in or out, from where it is. It is there at once while nobody can see
    /// the preview, and for users who asked for less motion.
    void setCalendarEnabled(bool enabled);
    /// How far the calendar is in, eased, 0 to 1.
    double calendarProgress() const;

    /// Whether assistive technology finds the controls on the preview.
    bool showsModeSelector() const { return m_showsModeSelector; }
    void setShowsModeSelector(bool shows) { m_showsModeSelector = shows; }

    /// Corner radius in points; 0, the default, leaves the corners square.
    void setCornerRadius(double radius);

    /// Repaints what changed 60 times a second, as long as the view can be seen.
    void startAnimation();
    void stopAnimation();
    bool isAnimating() const { return m_animating; }
    /// Whether the repaint timer runs at this moment.
    bool isTicking() const { return m_frames.isActive(); }

    /// Keeps the present look and fades it out over what follows. To be called before any colour or
    /// image is changed. Does nothing while nobody can see the preview.
    void beginColorTransition();
    /// Whether a look of before is still fading out.
    bool isFading() const { return !m_transitionImage.isNull(); }

    QRectF displayRect() const { return rect(); }
    /// Draws the whole view, its corners square. Ends a cross-fade that has run its time.
    void drawRect(QPainter &painter);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    /// Hears whether the window can be seen, which not every hiding of it tells the widgets.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Shown with the next frame: a slider may bring several values between two.
    template <typename Value>
    void change(Value &shown, const Value &value)
    {
        shown = value;
        if (!isTicking())
            update();
    }

    ClockFrame frame() const;
    /// How much of the look of before is gone, 0 to 1.
    double fadedPart() const;
    void drawTransition(QPainter &painter, const QRegion &region, double faded) const;
    void transitionDrawn(double faded);
    /// The squares in which the corners are rounded.
    QRegion corners() const;
    void paintPart(QPainter &painter, const ClockFrame &frame, const QRegion &region, double faded);
    void paintRounded(QPainter &painter, const QRegion &region, double faded);
    void beginTicking();
    void tick();

    const platform::Clocks &m_clocks;
    Artwork m_artwork;
    QColor m_backgroundColor;
    QColor m_markColor;
    bool m_calendarEnabled = false;
    bool m_showsModeSelector = false;
    double m_cornerRadius = 0.0;

    /// The look that is fading out; null when none is.
    QPixmap m_transitionImage;
    /// Whether it has been drawn fading yet.
    bool m_transitionSeen = false;
    /// When that began, in seconds of the monotonic clock.
    double m_transitionStart = 0.0;
    /// The calendar's progress at its last toggle, and when that was on the same clock.
    double m_calendarStart = 0.0;
    double m_calendarTransitionStart = 0.0;

    bool m_animating = false;
    platform::FrameTimer m_frames;
    /// What is on screen but for a look that fades.
    ClockFrame m_shown;
    FramePainter m_painter;
};
