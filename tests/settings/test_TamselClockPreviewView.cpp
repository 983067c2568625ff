// SPDX-License-Identifier: MIT
// The live preview: where things stand, how they move, and that nothing happens unseen.
#include "controls/ViewAppearance.h"
#include "platform/Appearance.h"
#include "platform/Clocks.h"
#include "settings/PreviewLayout.h"
#include "settings/TamselClockPreviewView.h"
#include "tests/support/ControlPicture.h"
#include "tests/support/Frames.h"
#include "tests/support/Pixels.h"

#include <QPainter>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kSize(344, 196);

/// A preview in a window of its own, at a moment that stands still.
struct Fixture
{
    platform::FixedClocks clocks{QDateTime(QDate(2026, 3, 14), QTime(10, 8, 42)), 500.0};
    platform::Appearance appearance{platform::Appearance::Scheme::Light};
    TamselClockPreviewView view{clocks};

    Fixture()
    {
        setAppearanceOf(&view, appearance);
        view.resize(kSize);
        view.setArtwork(frames::artworkOf(u"orange"_s));
        view.setBackgroundColor(Qt::red);
    }

    bool show()
    {
        view.show();
        return QTest::qWaitForWindowExposed(&view);
    }

    QImage drawn()
    {
        QImage image(kSize, QImage::Format_RGB32);
        QPainter painter(&image);
        view.drawRect(painter);
        return image;
    }
};

} // namespace

class TestTamselClockPreviewView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// At twice the size of its design, while the calendar is half-way in.
    void clockAndCalendarStandWhereTheyShould()
    {
        const PreviewLayout layout = previewLayout({688.0, 392.0}, 0.5);
        QCOMPARE(layout.clockRect, QRectF(111.8, 41.18, 307.539, 307.539));
        QCOMPARE(layout.calendarRect, QRectF(535.12, 70.46, 265.4, 244.0));
    }

    void theCalendarEasesFromRestToRest()
    {
        // A point of the curve, reckoned from its parameter: x(0.5) = 0.305, y(0.5) = 0.875.
        QVERIFY(qAbs(calendarEase(0.305) - 0.875) < 1e-6);
        QCOMPARE(calendarEase(-0.1), 0.0);
        QCOMPARE(calendarEase(1.1), 1.0);
        Fixture f;
        QVERIFY(f.show());
        f.view.setCalendarEnabled(true);
        QCOMPARE(f.view.calendarProgress(), 0.0);
        f.clocks.advance(0.5);
        const double reached = f.view.calendarProgress();
        QVERIFY(reached > 0.5 && reached < 1.0);
        f.view.setCalendarEnabled(false); // and back from where it stands
        QCOMPARE(f.view.calendarProgress(), reached);
        f.clocks.advance(1.76);
        QCOMPARE(f.view.calendarProgress(), 0.0);
    }

    void anUnseenCalendarIsThereAtOnce()
    {
        Fixture f;
        f.view.setCalendarEnabled(true);
        QCOMPARE(f.view.calendarProgress(), 1.0);
        const QImage with = f.drawn();
        f.view.setCalendarEnabled(false);
        QCOMPARE(f.view.calendarProgress(), 0.0);
        QVERIFY(pixels::largestDifference(with, f.drawn()) > 100);
    }

    void coloursCrossFade()
    {
        Fixture f;
        QVERIFY(f.show());
        const auto corner = [&] { return f.drawn().pixelColor(2, 2); };
        QCOMPARE(corner(), QColor(Qt::red));
        f.view.beginColorTransition();
        f.view.setBackgroundColor(Qt::blue);
        QCOMPARE(corner(), QColor(Qt::red));
        f.clocks.advance(0.14);
        QVERIFY(alike(corner(), QColor(128, 0, 127), 2));
        // A second change fades from what is seen, half of the first.
        f.view.beginColorTransition();
        f.view.setBackgroundColor(Qt::green);
        QVERIFY(alike(corner(), QColor(128, 0, 127), 2));
        f.clocks.advance(0.29);
        QCOMPARE(corner(), QColor(Qt::green));
        QVERIFY(!f.view.isFading());
    }

    /// On screen, where only what changed is painted: over a fade, a slide of the calendar and the
    /// turn of a minute.
    void whatIsOnScreenIsWhatIsDrawn()
    {
        Fixture f;
        QVERIFY(f.show());
        f.clocks.setNow(QDateTime(QDate(2026, 3, 14), QTime(10, 8, 58)));
        f.view.startAnimation();
        for (int i = 0; i < 200; ++i) {
            f.clocks.advance(1.0 / 60.0);
            if (i == 20 || i == 100)
                f.view.setCalendarEnabled(i == 20);
            if (i == 60) {
                f.view.beginColorTransition();
                f.view.setBackgroundColor(Qt::blue);
            }
            int difference = 255;
            for (int look = 0; look < 100 && difference > 4; ++look) {
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
                const QImage screen = f.view.screen()->grabWindow(f.view.winId()).toImage();
                difference = pixels::largestDifference(screen.convertToFormat(QImage::Format_RGB32),
                                                       f.drawn());
            }
            QVERIFY2(difference <= 4,
                     qPrintable(u"frame %1 differs by %2"_s.arg(i).arg(difference)));
        }
    }
};

QTEST_MAIN(TestTamselClockPreviewView)
#include "test_TamselClockPreviewView.moc"
