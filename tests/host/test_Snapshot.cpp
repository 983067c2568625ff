// SPDX-License-Identifier: MIT
// The finished program's pictures, measured as a stranger would: three hands on a circle, by their
// widths.
#include "prefs/StoredSettings.h"
#include "tests/support/Pixels.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

class TestSnapshot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handsOfEveryVariant_data()
    {
        QTest::addColumn<QString>("variant");
        QTest::addColumn<QString>("size");
        QTest::addColumn<double>("tolerance"); // degrees
        for (const QString &variant : {u"orange"_s, u"blue"_s, u"cream"_s, u"nero"_s}) {
            QTest::addRow("%s, full size", qPrintable(variant)) << variant << u"1920x1080"_s << 0.2;
            QTest::addRow("%s, thumbnail", qPrintable(variant)) << variant << u"240x135"_s << 1.5;
        }
    }

    void handsOfEveryVariant()
    {
        QFETCH(QString, variant);
        QFETCH(QString, size);
        QFETCH(double, tolerance);
        const QTemporaryDir folder;
        const PreferenceStores stores(folder.filePath(u"tamsel-clock"_s), u"test"_s);
        QVERIFY(stores.suite.setValue(kSelectedVariantKey, variant));
        const QString file = folder.filePath(u"clock.png"_s);
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_CONFIG_HOME"_s, folder.path());
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(TAMSEL_PROGRAM),
                      {u"--snapshot"_s, file, u"--size"_s, size, u"--at"_s,
                       u"2026-03-14T22:08:30.5"_s, u"--preview"_s});
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), 0);

        const QImage picture(file);
        const double radius = 0.42 * std::min(picture.width(), picture.height());
        // Inside the batons, outside the counterweight: only the hands cross this circle.
        auto hands = pixels::arcsOnCircle(picture, 0.6 * radius, picture.pixel(0, 0));
        QCOMPARE(int(hands.size()), 3);
        std::sort(hands.begin(), hands.end(), [](auto &a, auto &b) { return a.width > b.width; });
        QVERIFY(std::abs(hands[0].centre - 304.0) < tolerance);
        QVERIFY(std::abs(hands[1].centre - 48.0) < tolerance);
        QVERIFY(std::abs(hands[2].centre - 183.0) < tolerance);
        QVERIFY(hands[0].width > 2.0 * hands[1].width); // told apart across a room
    }
};

QTEST_GUILESS_MAIN(TestSnapshot)
#include "test_Snapshot.moc"
