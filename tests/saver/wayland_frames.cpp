// SPDX-License-Identifier: MIT
// Frames presented to a Wayland compositor, by the pictures that it gives of its outputs.
#include "tests/support/Film.h"

#include <QProcess>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

QImage outputPicture(TamselClockSaverView &)
{
    QProcess grim;
    grim.start(u"grim"_s, {u"-t"_s, u"ppm"_s, u"-o"_s, u"HEADLESS-1"_s, u"-"_s});
    grim.waitForFinished();
    return QImage::fromData(grim.readAllStandardOutput(), "PPM");
}

void tellCompositor(const QString &command)
{
    QCOMPARE(QProcess::execute(u"swaymsg"_s, {u"-q"_s, command}), 0);
}

} // namespace

class TestWaylandFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Across an hour, a day, a month, nights, the calendar, other scales and sizes, also amid a
    /// fade.
    void whatIsOnScreenIsTheReference()
    {
        Film film(outputPicture, Qt::WindowFullScreen);
        const bool isLeftToToolkit = qEnvironmentVariableIsSet("QT_WAYLAND_RECONNECT");
        QCOMPARE(film.view->testAttribute(Qt::WA_PaintOnScreen), !isLeftToToolkit);
        const PreferenceStores &stores = film.f.stores;
        const bool followsScale = !isLeftToToolkit || QT_VERSION >= QT_VERSION_CHECK(6, 5, 0);
        film.play(
            followsScale ? 1000 : 300,
            {
                {50, [&] { SaverFixture::set(stores.suite, kCalendarEnabledKey, true); }},
                {100, [&] { film.f.setNight(Film::night(true)); }},
                {200, [&] { film.f.setNight(Film::night(false)); }},
                {300, [] { tellCompositor(u"output * scale 2"_s); }},
                {400, [&] { film.f.setNight(Film::night(true)); }},
                {440, [] { tellCompositor(u"output * scale 1.5"_s); }},
                {500, [&] { film.f.setNight(Film::night(false)); }},
                {560, [] { tellCompositor(u"output * resolution 96x192 scale 1"_s); }},
                {700, [&] { SaverFixture::set(stores.suite, kCalendarEnabledKey, false); }},
                {760, [] { tellCompositor(u"output * resolution 288x96 scale 2"_s); }},
                {820, [&] { film.view->hide(); }},
                {821, [&] { film.show(); }},
                {880, [&] { SaverFixture::set(stores.suite, kSelectedVariantKey, u"blue"_s); }},
                {940, [] { tellCompositor(u"output * scale 1"_s); }},
            });
    }

    void aCompositorThatLagsLeavesNoTrace()
    {
        const int compositor = qEnvironmentVariableIntValue("COMPOSITOR");
        Film(outputPicture, Qt::WindowFullScreen).lag(1500, [compositor](bool held) {
            ::kill(compositor, held ? SIGSTOP : SIGCONT);
        });
    }

    /// The compositor asks a surface that is not on the screen for no frame.
    void whatNobodySeesRests()
    {
        Film film(outputPicture, Qt::WindowFullScreen);
        QVERIFY(film.next());
        tellCompositor(u"workspace other"_s);
        film.run(1000);
        QVERIFY(!film.view->isSeen());
        tellCompositor(u"workspace back_and_forth"_s);
        QVERIFY(film.next());
        QVERIFY(film.view->isSeen());
    }
};

QTEST_MAIN(TestWaylandFrames)
#include "wayland_frames.moc"
