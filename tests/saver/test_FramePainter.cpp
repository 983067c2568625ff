// SPDX-License-Identifier: MIT
// Painting by copying and mending against drawing every frame afresh.
#include "clock/ColorBlend.h"
#include "clock/FrameDamage.h"
#include "clock/FramePainter.h"
#include "tests/support/Film.h"
#include "tests/support/Frames.h"

#include <QScreen>

#include <csignal>
#include <dlfcn.h>
#include <xcb/xcb.h>

using namespace Qt::StringLiterals;

namespace {

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

QImage windowPicture(TamselClockSaverView &view)
{
    return view.screen()->grabWindow(view.winId()).toImage();
}

/// How often the X server was asked whether it has done with a frame.
int g_questions = 0;

} // namespace

/// Stands in for the library's.
extern "C" xcb_get_input_focus_cookie_t xcb_get_input_focus(xcb_connection_t *connection)
{
    static const auto real =
        reinterpret_cast<decltype(&xcb_get_input_focus)>(dlsym(RTLD_NEXT, "xcb_get_input_focus"));
    ++g_questions;
    return real(connection);
}

class TestFramePainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Across two minutes, an hour, a day, a month, the night, the calendar, and other sizes.
    void whatIsOnScreenIsTheReference()
    {
        Film film(windowPicture);
        const PreferenceStores &stores = film.f.stores;
        film.play(
            2000,
            {
                {300, [&] { SaverFixture::set(stores.suite, kCalendarEnabledKey, true); }},
                {700, [&] { film.view->resize(100, 160); }},
                {900, [&] { film.f.setNight(Film::night(true)); }},
                {1100, [&] { film.f.setNight(Film::night(false)); }},
                {1300, [&] { SaverFixture::set(stores.suite, kCalendarEnabledKey, false); }},
                {1500, [&] { film.view->resize(300, 90); }},
                {1600, [&] { SaverFixture::set(stores.suite, kSelectedVariantKey, u"blue"_s); }},
            });
    }

    void aServerThatLagsLeavesNoTrace_data()
    {
        QTest::addColumn<bool>("isGrabbed");
        QTest::newRow("stopped") << false;
        QTest::newRow("grabbed by another client") << true;
    }

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
        Film film(windowPicture);
        QVERIFY(film.next());
        hold(true);
        film.run(20);
        const int asked = g_questions; // it may still read what it was given: no frame follows
        film.run(100);
        const bool isPatient = g_questions == asked;
        hold(false);
        QVERIFY(isPatient);
        film.lag(500, hold);
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
