// SPDX-License-Identifier: MIT
// Strips of a picture in memory of their own: whatever area is cut up, each of its pixels is found
// once, and as it is.
#include "saver/HandLane.h"

#include <QTest>

namespace {

constexpr QSize kSize(100, 60);

/// What stands in the strips is told from the picture by this bit.
constexpr QRgb kInLane = 0x800000;

QRgb colorAt(int x, int y)
{
    return 0xff000000U + QRgb(y * kSize.width() + x);
}

} // namespace

class TestHandLane : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachPixelIsFoundOnce_data()
    {
        QTest::addColumn<QRegion>("area");
        QTest::addColumn<bool>("isCovered");
        const QRegion twoStrips = QRegion(40, 10, 5, 10) + QRegion(30, 20, 8, 10);
        QTest::newRow("nothing") << QRegion() << true;
        QTest::newRow("in a strip") << QRegion(41, 12, 2, 3) << true;
        QTest::newRow("a strip to its edges") << QRegion(40, 10, 8, 10) << true;
        QTest::newRow("in two strips") << twoStrips << true;
        QTest::newRow("beside") << QRegion(0, 0, 10, 60) << false;
        QTest::newRow("over an edge") << QRegion(35, 15, 10, 3) << false;
        QTest::newRow("over two strips") << QRegion(40, 15, 4, 10) << false;
        QTest::newRow("all") << QRegion(QRect({}, kSize)) << false;
        QTest::newRow("covered and not") << QRegion(41, 12, 2, 3) + QRegion(90, 50, 5, 5) << false;
    }

    void eachPixelIsFoundOnce()
    {
        QFETCH(QRegion, area);
        QImage image(kSize, QImage::Format_RGB32);
        for (int y = 0; y < kSize.height(); ++y) {
            for (int x = 0; x < kSize.width(); ++x)
                image.setPixel(x, y, colorAt(x, y));
        }
        const platform::PixelBlock picture = platform::blockOf(image);
        const QRegion strips =
            QRegion(40, 10, 8, 10) + QRegion(30, 20, 18, 10) + QRegion(0, 30, kSize.width(), 10);
        std::vector<QRgb> room(size_t(kSize.width() * kSize.height()));
        HandLane lane;
        lane.lay(picture, room.data(), strips);
        for (QRgb &pixel : room)
            pixel |= kInLane;
        QTEST(lane.covers(area), "isCovered");

        std::vector<platform::PixelBlock> blocks;
        lane.cut(area, picture, blocks);
        QRegion found;
        for (const platform::PixelBlock &block : blocks) {
            QVERIFY(!found.intersects(block.rect));
            found += block.rect;
            for (int y = block.rect.top(); y <= block.rect.bottom(); ++y) {
                for (int x = block.rect.left(); x <= block.rect.right(); ++x) {
                    const bool isInLane = strips.contains(QPoint(x, y));
                    QCOMPARE(block.row(y)[x - block.rect.left()],
                             colorAt(x, y) | (isInLane ? kInLane : 0));
                }
            }
        }
        QCOMPARE(found, area);
    }
};

QTEST_GUILESS_MAIN(TestHandLane)
#include "test_HandLane.moc"
