// SPDX-License-Identifier: MIT
// The drawing of one frame, measured from its pixels.
#include "tests/support/Frames.h"
#include "tests/support/Pixels.h"

#include <QPainter>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr QRgb kPaper = 0xffff4600;
constexpr QRgb kInk = 0xff000000;

using frames::artworkOf;

ClockFrame emptyFrame(double side)
{
    ClockFrame frame;
    frame.bounds = QRectF(0, 0, side, side);
    frame.clockRect = frame.bounds;
    frame.background = QColor(kPaper);
    frame.mark = QColor(kInk);
    return frame;
}

QImage picture(const ClockFrame &frame, double ratio = 1.0)
{
    return frames::reference(frame, ratio);
}

} // namespace

class TestClockFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handsPointWhereTheTimeSays_data()
    {
        QTest::addColumn<QString>("time");
        QTest::addColumn<double>("hour");
        QTest::addColumn<double>("minute");
        QTest::addColumn<double>("second");
        QTest::newRow("sweeping second") << u"22:08:30.5"_s << 304.0 << 48.0 << 183.0;
        QTest::newRow("last tenth of the day") << u"23:59:59.9"_s << 359.5 << 354.0 << 359.4;
        QTest::newRow("noon") << u"12:00:00"_s << 0.0 << 0.0 << 0.0;
        QTest::newRow("seconds move no other hand")
            << u"09:15:59.999"_s << 277.5 << 90.0 << 359.994;
    }

    void handsPointWhereTheTimeSays()
    {
        QFETCH(QString, time);
        QFETCH(double, hour);
        QFETCH(double, minute);
        QFETCH(double, second);
        const QDateTime date(QDate(2026, 3, 14), QTime::fromString(time, Qt::ISODateWithMs));
        const Artwork all = artworkOf(u"orange"_s);
        const auto fault = [&](platform::SvgImage Artwork::*hand, double expected) {
            ClockFrame frame = emptyFrame(400);
            frame.artwork.*hand = all.*hand;
            frame.angles = TamselClockAnglesForDate(date);
            const double measured = pixels::inkDirection(picture(frame), kPaper, kInk);
            return std::abs(std::remainder(measured - expected, 360.0));
        };
        QVERIFY(fault(&Artwork::hourImage, hour) < 0.1);
        QVERIFY(fault(&Artwork::minuteImage, minute) < 0.1);
        QVERIFY(fault(&Artwork::secondImage, second) < 0.1);
    }

    void laterHandsLieOnTop()
    {
        ClockFrame frame = emptyFrame(800);
        frame.artwork = artworkOf(u"cream"_s); // its second hand is the only coloured one
        const QImage noon = picture(frame);
        QCOMPARE(noon.pixel(400, 240), QRgb(0xffff4600));
        frame.artwork.secondImage = {};
        QCOMPARE(picture(frame).pixel(400, 240), QRgb(0xff000000));
    }

    /// The artwork turns about the exact centre and reaches neither beyond the dial nor short of
    /// its ring.
    void everyVariantIsCentred()
    {
        for (const QString &variant : {u"orange"_s, u"blue"_s, u"cream"_s, u"nero"_s}) {
            ClockFrame frame = emptyFrame(400);
            frame.background = QColor(0, 0, 255);
            for (auto hand : {&Artwork::hourImage, &Artwork::minuteImage, &Artwork::secondImage}) {
                frame.artwork = {};
                frame.artwork.*hand = artworkOf(variant).*hand;
                QVERIFY(!(frame.artwork.*hand).isNull());
                frame.angles = {};
                const QImage upright = picture(frame);
                QVERIFY(pixels::largestDifference(upright, upright.mirrored(true, false)) <= 2);
                frame.angles = {180.0, 180.0, 180.0};
                QVERIFY(pixels::largestDifference(upright, picture(frame).mirrored(false, true)) <=
                        2);
            }
            frame.artwork = {artworkOf(variant).faceImage, {}, {}, {}};
            const QImage face = picture(frame);
            QCOMPARE(int(pixels::arcsOnCircle(face, 194, frame.background.rgb()).size()), 60);
            QCOMPARE(int(pixels::arcsOnCircle(face, 170, frame.background.rgb()).size()), 12);
        }
    }

    void silhouetteKeepsCoverageAndTakesTheMarkColour_data()
    {
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QPointF>("at");
        QTest::newRow("device pixels are points") << 1.0 << QPointF(0, 0);
        QTest::newRow("high density") << 2.0 << QPointF(0, 0);
        QTest::newRow("between pixels") << 1.0 << QPointF(10.37, 3.81);
        QTest::newRow("fractional density, between pixels") << 1.5 << QPointF(10.37, 3.81);
    }

    void silhouetteKeepsCoverageAndTakesTheMarkColour()
    {
        QFETCH(double, ratio);
        QFETCH(QPointF, at);
        ClockFrame frame = emptyFrame(220);
        frame.clockRect = QRectF(at, QSizeF(187.3, 187.3));
        frame.artwork = artworkOf(u"orange"_s);
        frame.angles = {304.0, 48.0, 183.0};
        const QImage plain = picture(frame, ratio);
        frame.tinted = true;
        QVERIFY(pixels::largestDifference(plain, picture(frame, ratio)) <= 2);
        frame.artwork =
            artworkOf(u"cream"_s); // even a coloured hand becomes part of the silhouette
        QVERIFY(pixels::largestDifference(plain, picture(frame, ratio)) <= 2);
        frame.mark = QColor(0, 200, 40);
        QCOMPARE(picture(frame).pixelColor((at + QPointF(187.3 / 2, 10)).toPoint()),
                 QColor(0, 200, 40));
    }

    void recolouringTouchesTwoSpellingsOnly()
    {
        const QByteArray svg = "<a fill=\"black\"/><b fill=\"#000000\"/><c fill='black'/>"
                               "<d fill=\"#000\"/><e style=\"fill:black\"/><f stroke=\"black\"/>";
        QCOMPARE(recoloredArtwork(svg, Qt::white),
                 QByteArray("<a fill=\"#FFFFFF\"/><b fill=\"#FFFFFF\"/><c fill='black'/>"
                            "<d fill=\"#000\"/><e style=\"fill:black\"/><f stroke=\"black\"/>"));
    }

    /// On black paper the template is invisible: each of its shapes is black, so each takes the
    /// mark colour.
    void templateArtworkRecoloursWhole()
    {
        ClockFrame paper = emptyFrame(200);
        paper.background = Qt::black;
        ClockFrame drawn = paper;
        drawn.artwork = artworkOf(u"orange"_s);
        QCOMPARE(pixels::largestDifference(picture(drawn), picture(paper)), 0);
    }
};

QTEST_MAIN(TestClockFrame)
#include "test_ClockFrame.moc"
