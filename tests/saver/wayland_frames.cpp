// SPDX-License-Identifier: MIT
// Frames presented to a Wayland compositor, by the pictures that it gives of its outputs.
#include "tests/support/Pixels.h"
#include "tests/support/SaverFixture.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

/// An edge drawn inside a clip may differ from one drawn whole by this much of 255.
constexpr int kEdgeTolerance = 4;

/// The compositor may be behind, so that a frame is left out.
constexpr int kLooks = 200;

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

QImage outputPicture()
{
    QProcess grim;
    grim.start(u"grim"_s, {u"-t"_s, u"ppm"_s, u"-o"_s, u"HEADLESS-1"_s, u"-"_s});
    grim.waitForFinished();
    return QImage::fromData(grim.readAllStandardOutput(), "PPM")
        .convertToFormat(QImage::Format_RGB32);
}

void tellCompositor(const QString &command)
{
    QCOMPARE(QProcess::execute(u"swaymsg"_s, {u"-q"_s, command}), 0);
}

/// The pixels of \p picture that an output of \p size pixels shows: at a scale between two whole
/// numbers the compositor takes the nearest.
QImage sampled(const QImage &picture, const QSize &size)
{
    const auto nearest = [](int at, int pixels, int of) {
        return ((2 * at + 1) * of - 1) / (2 * pixels);
    };
    QImage output(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            output.setPixel(x, y,
                            picture.pixel(nearest(x, size.width(), picture.width()),
                                          nearest(y, size.height(), picture.height())));
        }
    }
    return output;
}

/// A saver on the only output, one frame after the other.
class Film
{
public:
    Film()
    {
        f.clocks.setNow(QDateTime(QDate(2026, 3, 31), QTime(23, 59, 40)));
        view = f.makeView(false);
        view->setWindowFlag(Qt::FramelessWindowHint);
        view->setAnimationTimeInterval(0.001);
        show();
        view->startAnimation();
    }

    void show()
    {
        view->showFullScreen();
        QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    }

    /// Lets the next frame be shown; whether the output becomes the reference.
    bool next()
    {
        f.clocks.advance(1.0 / 30.0);
        int difference = kEdgeTolerance + 1;
        for (int look = 0; look < kLooks && difference > kEdgeTolerance; ++look) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            const QImage output = outputPicture();
            difference = pixels::largestDifference(output, sampled(reference(), output.size()));
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

private:
    QImage reference()
    {
        const double ratio = view->devicePixelRatioF();
        QImage picture((QSizeF(view->size()) * ratio).toSize(), QImage::Format_RGB32);
        picture.setDevicePixelRatio(ratio);
        QPainter painter(&picture);
        view->drawRect(painter, view->rect());
        return picture;
    }
};

} // namespace

class TestWaylandFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Across two minutes, an hour, a day, a month, the night, the calendar, other scales and
    /// sizes.
    void whatIsOnScreenIsTheReference()
    {
        Film film;
        const bool isLeftToQt = qEnvironmentVariableIsSet("QT_WAYLAND_RECONNECT");
        QCOMPARE(film.view->testAttribute(Qt::WA_PaintOnScreen), !isLeftToQt);
        const PreferenceStores &stores = film.f.stores;
        const std::map<int, std::function<void()>> turns{
            {300, [&] { SaverFixture::set(stores.suite, kCalendarEnabledKey, true); }},
            {600, [] { tellCompositor(u"output * scale 2"_s); }},
            {800, [&] { film.f.setNight(night(true)); }},
            {1000, [] { tellCompositor(u"output * scale 1.5"_s); }},
            {1040, [&] { film.f.setNight(night(false)); }},
            {1160, [] { tellCompositor(u"output * resolution 96x192 scale 1"_s); }},
            {1300, [&] { SaverFixture::set(stores.suite, kCalendarEnabledKey, false); }},
            {1400, [] { tellCompositor(u"output * resolution 288x96 scale 2"_s); }},
            {1500, [&] { film.view->hide(); }},
            {1501, [&] { film.show(); }},
            {1600, [&] { SaverFixture::set(stores.suite, kSelectedVariantKey, u"blue"_s); }},
            {1700, [] { tellCompositor(u"output * scale 1"_s); }},
        };
        // Qt does not follow the scale of a screen before 6.5.
        const int frames = isLeftToQt ? 600 : 2000;
        for (int frame = 0; frame < frames; ++frame) {
            if (const auto turn = turns.find(frame); turn != turns.end())
                turn->second();
            QVERIFY2(film.view->isHidden() || film.next(), qPrintable(u"frame %1"_s.arg(frame)));
        }
    }

    /// The hand passes a fifth of a second from frame to frame, so that delays go over many
    /// seconds.
    void aCompositorThatLagsLeavesNoTrace()
    {
        const int compositor = qEnvironmentVariableIntValue("COMPOSITOR");
        Film film;
        QRandomGenerator random(1);
        for (int delay = 0; delay < 15; ++delay) {
            film.run(random.bounded(30));
            ::kill(compositor, SIGSTOP);
            film.run(random.bounded(20, 1500));
            ::kill(compositor, SIGCONT);
            QVERIFY2(film.next(), qPrintable(u"after delay %1"_s.arg(delay)));
        }
    }
};

QTEST_MAIN(TestWaylandFrames)
#include "wayland_frames.moc"
