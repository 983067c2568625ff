// SPDX-License-Identifier: MIT
// Polygons filled by exact area, against Qt's own drawing of them.
#include "platform/PolygonFill.h"
#include "tests/support/Pixels.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QTest>
#include <QTransform>

class TestPolygonFill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithQt_data()
    {
        QTest::addColumn<int>("corners");
        QTest::addColumn<int>("outlines");
        QTest::addColumn<Qt::FillRule>("rule");
        QTest::newRow("triangles") << 3 << 1 << Qt::WindingFill;
        QTest::newRow("crossing itself, winding") << 7 << 1 << Qt::WindingFill;
        QTest::newRow("crossing itself, odd-even") << 7 << 1 << Qt::OddEvenFill;
        QTest::newRow("two outlines") << 5 << 2 << Qt::OddEvenFill;
    }

    void agreesWithQt()
    {
        QFETCH(int, corners);
        QFETCH(int, outlines);
        QFETCH(Qt::FillRule, rule);
        constexpr int kSide = 60;
        // Reaches beyond every side of the picture.
        const QTransform place = QTransform::fromTranslate(-15.0, -15.0).scale(1.5, 1.5);
        QRandomGenerator random(1);
        platform::PolygonFill filler;
        for (int i = 0; i < 300; ++i) {
            QList<QPolygonF> shape;
            QPainterPath path;
            path.setFillRule(rule);
            for (int outline = 0; outline < outlines; ++outline) {
                QPolygonF polygon;
                for (int corner = 0; corner < corners; ++corner)
                    polygon << QPointF(random.generateDouble(), random.generateDouble()) * kSide;
                shape.append(polygon);
                path.addPolygon(polygon);
                path.closeSubpath();
            }
            QImage expected(kSide, kSide, QImage::Format_RGB32);
            expected.fill(Qt::white);
            QImage actual = expected;
            QPainter painter(&expected);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.fillPath(place.map(path), Qt::black);
            painter.end();
            const QImage blank = actual.copy();
            platform::CoveredPixels covered;
            // In two pieces.
            const platform::PixelBlock all = platform::blockOf(actual);
            const std::array blocks{all.in({0, 0, kSide, 25}), all.in({0, 25, kSide, kSide - 25})};
            filler.fill(blocks, shape, place, rule, qRgb(0, 0, 0), covered);
            const int difference = pixels::largestDifference(actual, expected);
            QVERIFY2(difference <= 3, qPrintable(QString::number(difference)));
            // Another on top, and both taken off again.
            filler.fill(blocks, shape, QTransform::fromScale(0.5, 1.0), rule, qRgb(255, 0, 0),
                        covered);
            covered.restore();
            QCOMPARE(actual, blank);
        }
    }
};

QTEST_GUILESS_MAIN(TestPolygonFill)
#include "test_PolygonFill.moc"
