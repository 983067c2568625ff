// SPDX-License-Identifier: MIT
// Polygons filled by exact area, against Qt's own drawing of them.
#include "platform/PolygonFill.h"
#include "tests/support/Pixels.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QRegion>
#include <QTest>

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
            painter.fillPath(path, Qt::black);
            painter.end();
            // In two halves, as strips are filled one by one.
            QRegion halves;
            const QRect rects[] = {{0, 0, kSide, kSide / 2}, {0, kSide / 2, kSide, kSide / 2}};
            halves.setRects(rects, 2);
            filler.fill(actual, halves, shape, rule, qRgb(0, 0, 0));
            const int difference = pixels::largestDifference(actual, expected);
            QVERIFY2(difference <= 3, qPrintable(QString::number(difference)));
        }
    }
};

QTEST_GUILESS_MAIN(TestPolygonFill)
#include "test_PolygonFill.moc"
