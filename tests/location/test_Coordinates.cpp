// SPDX-License-Identifier: MIT
#include "location/CommandLine.h"
#include "location/Coordinates.h"

#include <QHash>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;
using location::Axis;

namespace {

/// What the command line asks for in one word, or the location it sets.
QString nameOf(const std::variant<location::Options, location::UsageError> &parsed)
{
    using location::Mode;
    static const QHash<Mode, QString> kNames{{Mode::Window, u"window"_s},
                                             {Mode::Help, u"help"_s},
                                             {Mode::Version, u"version"_s},
                                             {Mode::Show, u"show"_s},
                                             {Mode::Forget, u"forget"_s}};
    const auto *options = std::get_if<location::Options>(&parsed);
    if (!options)
        return u"error"_s;
    return kNames.value(options->mode, location::degreesText(options->location.latitude) + u',' +
                                           location::degreesText(options->location.longitude));
}

} // namespace

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

    void readsTheCommandLine_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("request");
        QTest::newRow("none") << QStringList{} << u"window"_s;
        QTest::newRow("help") << QStringList{u"--help"_s} << u"help"_s;
        QTest::newRow("version") << QStringList{u"--version"_s} << u"version"_s;
        QTest::newRow("show") << QStringList{u"--show"_s} << u"show"_s;
        QTest::newRow("forget") << QStringList{u"--forget"_s} << u"forget"_s;
        QTest::newRow("set") << QStringList{u"--set"_s, u"-33.87,151.21"_s} << u"-33.87,151.21"_s;
        QTest::newRow("set, one word") << QStringList{u"--set=60.17, 24.94"_s} << u"60.17,24.94"_s;
        QTest::newRow("set, nothing") << QStringList{u"--set"_s} << u"error"_s;
        QTest::newRow("set, one number") << QStringList{u"--set"_s, u"60.17"_s} << u"error"_s;
        QTest::newRow("set, decimal commas")
            << QStringList{u"--set"_s, u"60,17,24,94"_s} << u"error"_s;
        QTest::newRow("set, off the earth") << QStringList{u"--set"_s, u"91,0"_s} << u"error"_s;
        QTest::newRow("two at once") << QStringList{u"--show"_s, u"--forget"_s} << u"error"_s;
        QTest::newRow("unknown") << QStringList{u"--where"_s} << u"error"_s;
        QTest::newRow("a word") << QStringList{u"Helsinki"_s} << u"error"_s;
    }

    void readsTheCommandLine()
    {
        QFETCH(QStringList, arguments);
        arguments.prepend(u"pelko-location"_s);
        QTEST(nameOf(location::parseCommandLine(arguments)), "request");
    }
};

QTEST_GUILESS_MAIN(test_Coordinates)
#include "test_Coordinates.moc"
