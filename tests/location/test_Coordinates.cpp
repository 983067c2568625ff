// SPDX-License-Identifier: MIT
#include "location/Coordinates.h"

#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;
using location::Axis;

class test_Coordinates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsDegrees_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Axis>("axis");
        QTest::addColumn<std::optional<double>>("degrees");
        const auto row = [](const QString &text, Axis axis, std::optional<double> degrees) {
            QTest::addRow("'%s' on axis %d", qUtf8Printable(text), int(axis))
                << text << axis << degrees;
        };
        row(u"60.17"_s, Axis::Latitude, 60.17);
        row(u" -33,87 "_s, Axis::Latitude, -33.87);
        row(u"−33.87"_s, Axis::Latitude, -33.87);
        row(u"33.87° S"_s, Axis::Latitude, -33.87);
        row(u"70.5w"_s, Axis::Longitude, -70.5);
        row(u"24.94 E"_s, Axis::Longitude, 24.94);
        row(u"-90"_s, Axis::Latitude, -90.0);
        row(u"180"_s, Axis::Longitude, 180.0);
        row(u"90.0001"_s, Axis::Latitude, std::nullopt);
        row(u"181"_s, Axis::Longitude, std::nullopt);
        row(u"33.87 E"_s, Axis::Latitude, std::nullopt);
        row(u"-33.87 S"_s, Axis::Latitude, std::nullopt);
        for (const QString &text : {u""_s, u"N"_s, u"."_s, u"nan"_s, u"inf"_s, u"1e1"_s, u"0x10"_s,
                                    u"60 10"_s, u"60.17.1"_s, u"1,234.5"_s, u"６０"_s, u"60\nx"_s})
            row(text, Axis::Latitude, std::nullopt);
    }

    void readsDegrees()
    {
        QFETCH(QString, text);
        QFETCH(Axis, axis);
        QTEST(location::degreesFrom(text, axis), "degrees");
    }

    void writesDegrees()
    {
        QCOMPARE(location::degreesText(60.169857), u"60.1699"_s);
        QCOMPARE(location::degreesText(-151.0), u"-151"_s);
        QCOMPARE(location::degreesText(0.00001), u"0"_s);
        QCOMPARE(location::coordinatesText({-33.87, 151.21}), u"33.87° S, 151.21° E"_s);
    }

    void measuresDistances()
    {
        QCOMPARE(std::round(location::distance({60, 25}, {-30, 25})), 10008.0);
        QVERIFY(location::distance({0, 179.9}, {0, -179.9}) < 23.0);
        QVERIFY(location::distance({90, 0}, {90, 120}) < 1.0);
        QCOMPARE(std::round(location::distance({0, 0}, {0, 180})), 20015.0);
    }
};

QTEST_GUILESS_MAIN(test_Coordinates)
#include "test_Coordinates.moc"
