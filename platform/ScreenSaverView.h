// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FrameTimer.h"

#include <QWidget>

#include <memory>

namespace platform {

class Clocks;
class FramePresenter;

/// The base class of a screen saver's picture on one screen. Origin top-left, y downwards, lengths
/// in points (device-independent pixels). The host makes it, gives it its size, starts it and shows
/// it.
class ScreenSaverView : public QWidget
{
    Q_OBJECT

public:
    /// \p clocks must outlive the view. \p isPreview marks the small picture in a settings window.
    ScreenSaverView(const Clocks &clocks, bool isPreview, QWidget *parent = nullptr);
    ~ScreenSaverView() override;

    bool isPreview() const { return m_isPreview; }
    const Clocks &clocks() const { return m_clocks; }

    /// Seconds between two frames.
    double animationTimeInterval() const { return m_interval; }
    void setAnimationTimeInterval(double seconds);
    bool isAnimating() const { return m_frames.isActive(); }

    /// Begins calling animateOneFrame once per interval, keeping the cadence over any length of
    /// time; a few times a second while nobody can see the view.
    virtual void startAnimation();
    virtual void stopAnimation();
    /// One tick of the frame loop: update state and mark for display; drawing follows by itself.
    /// Nothing is drawn while the view rests.
    virtual void animateOneFrame() {}

    /// Draws the view. \p dirtyRect is what must be drawn; more may be drawn.
    virtual void drawRect(QPainter &painter, const QRectF &dirtyRect);

    /// Whether somebody can see the view: it is shown, not wholly covered, and its display is on.
    virtual bool isSeen() const;

    virtual bool hasConfigureSheet() const { return false; }
    /// The options sheet, owned by the view; null when there is none.
    virtual QWidget *configureSheet() { return nullptr; }

protected:
    /// The last tick found that nobody can see the view, so that it only looks now and then whether
    /// that is still so; or it was never started.
    bool rests() const { return m_rests; }

    /// Presents the frames while the view is a window of its own and the window system lets it;
    /// null where they are painted by Qt. Another one only after the view was hidden.
    FramePresenter *presenter() const { return m_presenter.get(); }
    /// Leaves the frames to Qt from here on.
    void dropPresenter();

    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    QPaintEngine *paintEngine() const override;

private:
    void tick();

    const Clocks &m_clocks;
    const bool m_isPreview;
    double m_interval = 1.0 / 30.0;
    FrameTimer m_frames;
    bool m_rests = true;
    std::unique_ptr<FramePresenter> m_presenter;
};

} // namespace platform
