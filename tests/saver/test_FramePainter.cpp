// SPDX-License-Identifier: MIT
// Painting by copying and mending against drawing every frame afresh.
#include "clock/ColorBlend.h"
#include "clock/FrameDamage.h"
#include "clock/FramePainter.h"
#include "tests/support/Frames.h"
#include "tests/support/Pixels.h"
#include "tests/support/SaverFixture.h"

#include <QDeadlineTimer>
#include <QRandomGenerator>
#include <QScreen>
#include <QTest>

#include <csignal>
#include <xcb/xcb.h>

using namespace Qt::StringLiterals;

namespace {

/// An edge drawn inside a clip may differ from one drawn whole by this much of 255.
constexpr int kEdgeTolerance = 4;

/// A window system may be behind, so that a frame is left out.
constexpr int kLooks = 200;

const QDateTime kShortlyBeforeMidnight(QDate(2026, 3, 31), QTime(23, 59, 40));

QVariantMap night(bool enabled)
{
    return {{u"enabled"_s, enabled},
            {u"from"_s, 0},
            {u"to"_s, 1439},
            {u"fromMode"_s, u"custom"_s},
            {u"toMode"_s, u"custom"_s},
            {u"base"_s, u"#101820"_s},
            {u"mark"_s, u"#C0A080"_s}};
}

/// Whether \p actual is \p expected but for edges.
bool isSamePicture(const QImage &actual, const QImage &expected)
{
    const int difference = pixels::largestDifference(actual, expected);
    if (difference > kEdgeTolerance)
        qWarning("differs by %d of 255", difference);
    return difference <= kEdgeTolerance;
}

constexpr int kFrames = 40;

/// A new minute begins among these frames.
ClockFrame steadyFrame(int i)
{
    return frames::frameAt(QTime(10, 8, 59).addMSecs(33 * i));
}

/// Every second one has the colours of the last; in the middle the clock grows by a breath.
ClockFrame fadingFrame(int i)
{
    const bool isGrown = i > kFrames / 2;
    ClockFrame frame =
        frames::frameAt(QTime(10, 8, 59).addMSecs(33 * i), {320, 180}, isGrown ? 1.0 : 0.9987);
    const double progress = double(i / 2 * 2) / kFrames;
    frame.tinted = true;
    frame.background = blendedColor(QColor(0xff, 0x46, 0x00), QColor(0x10, 0x18, 0x20), progress);
    frame.mark = blendedColor(Qt::black, QColor(0xc0, 0xa0, 0x80), progress);
    frame.calendar = {QRectF(214.3, 61.2, 96.5, 0.0),
                      {QDate(2026, 3, 14), false, QLocale(QLocale::English)}};
    return frame;
}

using FrameAt = std::function<ClockFrame(int)>;

/// Half transparent, in two colours.
platform::SvgImage shadedHand()
{
    return platform::SvgImage::fromSvg(
        R"(<svg viewBox="0 0 100 100"><g fill-opacity="0.5"><path fill="red" d="M48 2H52V50H48Z"/>
           <circle cx="50" cy="50" r="6" fill="#00f"/></g></svg>)");
}

/// A saver on the screen of this test's platform, one frame after the other.
class Film
{
public:
    Film()
    {
        f.clocks.setNow(kShortlyBeforeMidnight);
        view = f.makeView(false);
        view->resize(160, 100);
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view.get()));
        view->setAnimationTimeInterval(0.001);
        view->startAnimation();
    }

    /// Lets the next frame be shown; whether the screen becomes the reference.
    bool next()
    {
        f.clocks.advance(1.0 / 30.0);
        int difference = kEdgeTolerance + 1;
        for (int look = 0; look < kLooks && difference > kEdgeTolerance; ++look) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            const QImage screen = view->screen()->grabWindow(view->winId()).toImage();
            difference = pixels::largestDifference(screen.convertToFormat(QImage::Format_RGB32),
                                                   SaverFixture::picture(*view));
        }
        if (difference > kEdgeTolerance)
            qWarning("differs by %d of 255", difference);
        return difference <= kEdgeTolerance;
    }

    /// Lets frames be shown that nobody looks at.
    void run(int milliseconds)
    {
        for (const QDeadlineTimer end(milliseconds); !end.hasExpired();) {
            f.clocks.advance(0.2);
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    SaverFixture f;
    std::unique_ptr<TamselClockSaverView> view;
};

} // namespace

class TestFramePainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Across two minutes, an hour, a day, a month, the night, the calendar, and other sizes.
    void whatIsOnScreenIsTheReference()
    {
        Film film;
        const std::map<int, std::function<void()>> turns{
            {300, [&] { SaverFixture::set(film.f.stores.suite, kCalendarEnabledKey, true); }},
            {700, [&] { film.view->resize(100, 160); }},
            {900, [&] { film.f.setNight(night(true)); }},
            {1100, [&] { film.f.setNight(night(false)); }},
            {1300, [&] { SaverFixture::set(film.f.stores.suite, kCalendarEnabledKey, false); }},
            {1500, [&] { film.view->resize(300, 90); }},
            {1600, [&] { SaverFixture::set(film.f.stores.suite, kSelectedVariantKey, u"blue"_s); }},
        };
        for (int frame = 0; frame < 2000; ++frame) {
            if (const auto turn = turns.find(frame); turn != turns.end())
                turn->second();
            QVERIFY2(film.next(), qPrintable(u"frame %1"_s.arg(frame)));
        }
    }

    void aServerThatLagsLeavesNoTrace_data()
    {
        QTest::addColumn<bool>("isGrabbed");
        QTest::newRow("stopped") << false;
        QTest::newRow("grabbed by another client") << true;
    }

    /// The hand passes a fifth of a second from frame to frame, so that delays go over many
    /// seconds.
    void aServerThatLagsLeavesNoTrace()
    {
        QFETCH(bool, isGrabbed);
        const int server = qEnvironmentVariableIntValue("X_SERVER");
        if (server == 0)
            QSKIP("needs an X server of its own");
        const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> other(
            xcb_connect(nullptr, nullptr), &xcb_disconnect);
        const auto hold = [&](bool held) {
            if (!isGrabbed) {
                ::kill(server, held ? SIGSTOP : SIGCONT);
                return;
            }
            held ? xcb_grab_server(other.get()) : xcb_ungrab_server(other.get());
            std::free(xcb_get_input_focus_reply(other.get(), xcb_get_input_focus(other.get()), {}));
        };
        Film film;
        QRandomGenerator random(1);
        for (int delay = 0; delay < 15; ++delay) {
            film.run(random.bounded(30));
            hold(true);
            film.run(random.bounded(20, 500));
            hold(false);
            QVERIFY2(film.next(), qPrintable(u"after delay %1"_s.arg(delay)));
        }
    }

    void everyDensityIsExact_data()
    {
        QTest::addColumn<double>("ratio");
        QTest::addColumn<FrameAt>("frameAt");
        for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
            QTest::addRow("%g", ratio) << ratio << FrameAt(steadyFrame);
            QTest::addRow("%g, fading", ratio) << ratio << FrameAt(fadingFrame);
        }
        QTest::addRow("fading, a hand that is more than shapes")
            << 1.5 << FrameAt([hand = shadedHand()](int i) {
                   ClockFrame frame = fadingFrame(i);
                   frame.artwork.secondImage = hand;
                   return frame;
               });
    }

    /// One painter serves a surface that is painted whole and then mended, also after its density
    /// changed.
    void everyDensityIsExact()
    {
        QFETCH(double, ratio);
        QFETCH(FrameAt, frameAt);
        FramePainter painter;
        for (const double density : {1.0, ratio}) {
            ClockFrame shown = frameAt(0);
            QImage surface = frames::surfaceFor(shown, density);
            QRegion damage(shown.bounds.toRect());
            for (int i = 1; i <= kFrames; ++i) {
                QPainter screen(&surface);
                painter.paint(screen, shown, damage);
                screen.end();
                QVERIFY(isSamePicture(surface, frames::reference(shown, density)));
                const ClockFrame next = frameAt(i);
                damage = pointsCovering(frameDamage(shown, next, density), density);
                shown = next;
            }
        }
    }

    /// Inside a window that draws more than the clock: at an offset, and nothing beyond the region.
    void paintsInPlaceAndNowhereElse()
    {
        const ClockFrame frame = frames::frameAt(QTime(10, 8, 15), {160, 100});
        QImage window(300, 200, QImage::Format_RGB32);
        window.fill(Qt::magenta);
        QPainter screen(&window);
        screen.translate(40, 30);
        FramePainter().paint(screen, frame, QRect(80, 0, 60, 100));
        screen.end();
        QImage expected(300, 200, QImage::Format_RGB32);
        expected.fill(Qt::magenta);
        QPainter(&expected).drawImage(QPoint(120, 30), frames::reference(frame, 1.0),
                                      QRect(80, 0, 60, 100));
        QVERIFY(isSamePicture(window, expected));
    }
};

QTEST_MAIN(TestFramePainter)
#include "test_FramePainter.moc"
