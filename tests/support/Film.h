// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/Pixels.h"
#include "tests/support/SaverFixture.h"

#include <QDeadlineTimer>
#include <QRandomGenerator>
#include <QTest>

#include <functional>
#include <map>

/// An edge drawn inside a clip may differ from one drawn whole by this much of 255.
constexpr int kEdgeTolerance = 4;

/// A saver on the screen of the test's platform, one frame after the other, beginning shortly
/// before midnight.
class Film
{
public:
    using Picture = std::function<QImage(TamselClockSaverView &)>;

    /// \p screen pictures what the screen shows of the view.
    explicit Film(Picture screen, Qt::WindowState state = Qt::WindowNoState)
        : m_screen(std::move(screen)), m_state(state)
    {
        f.clocks.setNow(QDateTime(QDate(2026, 3, 31), QTime(23, 59, 40)));
        view = f.makeView(false);
        view->setWindowFlag(Qt::FramelessWindowHint);
        view->setAnimationTimeInterval(0.001);
        view->resize(160, 100);
        show();
        view->startAnimation();
    }

    void show()
    {
        view->setWindowState(m_state);
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    }

    /// Lets the next frame be shown; whether the screen becomes the reference.
    bool next()
    {
        f.clocks.advance(1.0 / 30.0);
        int difference = kEdgeTolerance + 1;
        for (int look = 0; look < kLooks && difference > kEdgeTolerance; ++look) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            const QImage screen = m_screen(*view).convertToFormat(QImage::Format_RGB32);
            const QImage reference = SaverFixture::picture(*view, view->devicePixelRatioF());
            difference = pixels::largestDifference(screen, sampled(reference, screen.size()));
        }
        if (difference > kEdgeTolerance)
            qWarning("differs by %d of 255", difference);
        return difference <= kEdgeTolerance;
    }

    /// Shows that many frames, and before those with the numbers of \p turns does what they say.
    void play(int frames, const std::map<int, std::function<void()>> &turns)
    {
        for (int frame = 0; frame < frames; ++frame) {
            if (const auto turn = turns.find(frame); turn != turns.end())
                turn->second();
            QVERIFY2(view->isHidden() || next(), qPrintable(QString::number(frame)));
        }
    }

    /// Has the window system \p held for up to \p longest milliseconds again and again. The hand
    /// passes a fifth of a second from frame to frame, so that this goes over many seconds.
    void lag(int longest, const std::function<void(bool held)> &hold)
    {
        QRandomGenerator random(1);
        for (int delay = 0; delay < kDelays; ++delay) {
            run(random.bounded(30));
            hold(true);
            run(random.bounded(20, longest));
            hold(false);
            QVERIFY2(next(), qPrintable(QString::number(delay)));
        }
    }

    /// Lets frames be shown that nobody looks at.
    void run(int milliseconds)
    {
        for (const QDeadlineTimer end(milliseconds); !end.hasExpired();) {
            f.clocks.advance(0.2);
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    static QVariantMap night(bool enabled)
    {
        return {{QStringLiteral("enabled"), enabled},
                {QStringLiteral("from"), 0},
                {QStringLiteral("to"), 1439},
                {QStringLiteral("fromMode"), QStringLiteral("custom")},
                {QStringLiteral("toMode"), QStringLiteral("custom")},
                {QStringLiteral("base"), QStringLiteral("#101820")},
                {QStringLiteral("mark"), QStringLiteral("#C0A080")}};
    }

    SaverFixture f;
    std::unique_ptr<TamselClockSaverView> view;

private:
    static constexpr int kDelays = 15;
    /// The window system may be behind, so that a frame is left out.
    static constexpr int kLooks = 200;

    /// The pixels of \p picture that a screen of \p size pixels shows: at a scale between two whole
    /// numbers the nearest.
    static QImage sampled(const QImage &picture, const QSize &size)
    {
        const auto nearest = [](int at, int pixels, int of) {
            return ((2 * at + 1) * of - 1) / (2 * pixels);
        };
        QImage screen(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                screen.setPixel(x, y,
                                picture.pixel(nearest(x, size.width(), picture.width()),
                                              nearest(y, size.height(), picture.height())));
            }
        }
        return screen;
    }

    Picture m_screen;
    Qt::WindowState m_state;
};
