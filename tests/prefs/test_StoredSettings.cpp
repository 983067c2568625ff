// SPDX-License-Identifier: MIT
// What the stores say, and how it is read.
#include "night/NightSchedule.h"
#include "prefs/NightSettings.h"
#include "prefs/StoredSettings.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestStoredSettings : public QObject
{
    Q_OBJECT

    static QVariantMap one(const QString &key, const QVariant &value)
    {
        return value.isValid() ? QVariantMap{{key, value}} : QVariantMap();
    }

private Q_SLOTS:
    void variantReadOrder_data()
    {
        QTest::addColumn<QVariant>("suite");
        QTest::addColumn<QVariant>("saver");
        QTest::addColumn<QVariant>("shortName");
        QTest::addColumn<QString>("variant");
        const QVariant none;
        QTest::newRow("nothing stored") << none << none << none << u"orange"_s;
        QTest::newRow("suite first")
            << QVariant(u"blue"_s) << QVariant(u"nero"_s) << none << u"blue"_s;
        QTest::newRow("empty text is a miss")
            << QVariant(u""_s) << QVariant(u"blue"_s) << none << u"blue"_s;
        QTest::newRow("alias") << QVariant(u"black"_s) << none << none << u"nero"_s;
        QTest::newRow("random is honoured") << QVariant(u"random"_s) << none << none << u"random"_s;
        QTest::newRow("a number is no variant")
            << QVariant(7) << QVariant(u"blue"_s) << none << u"blue"_s;
    }

    void variantReadOrder()
    {
        QFETCH(QVariant, suite);
        QFETCH(QVariant, saver);
        QFETCH(QVariant, shortName);
        const StoreContents contents{one(kSelectedVariantKey, suite),
                                     one(kSelectedVariantKey, saver),
                                     one(kSelectedVariantKey, shortName)};
        QTEST(settingsFrom(contents).selectedVariant, "variant");
    }

    void calendarHidesOnlyWhenMissing()
    {
        const auto stored = [](const QVariant &suite, const QVariant &saver) {
            return settingsFrom(
                       {one(kCalendarEnabledKey, suite), one(kCalendarEnabledKey, saver), {}})
                .calendarEnabled;
        };
        QVERIFY(!stored({}, {}));
        QVERIFY(stored({}, true));
        QVERIFY(!stored(false, true));
        QVERIFY(stored(1LL, false));
        QVERIFY(!stored(QByteArray("yes"), true)); // mistyped, but there
    }

    void firstColourTextIsFinal()
    {
        const auto stored = [](const QVariant &suite, const QVariant &saver) {
            return settingsFrom(
                       {one(kCustomBaseColorKey, suite), one(kCustomBaseColorKey, saver), {}})
                .customBaseColor;
        };
        QCOMPARE(stored({}, u"#102030"_s), QColor(0x10, 0x20, 0x30));
        QCOMPARE(stored(u""_s, u"#102030"_s), QColor(0x10, 0x20, 0x30));
        QVERIFY(!stored(u"nonsense"_s, u"#102030"_s).isValid());
        QCOMPARE(stored(u"12ZZZZ"_s, {}), QColor(0, 0, 0x12)); // the lenient reader
    }

    void nightRecord_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QVariantMap>("expected");
        const QVariantMap fresh{
            {u"enabled"_s, false},        {u"from"_s, 1170LL},         {u"to"_s, 450LL},
            {u"fromMode"_s, u"sunset"_s}, {u"toMode"_s, u"sunrise"_s}, {u"base"_s, u"#000000"_s},
            {u"mark"_s, u"#FFF5E8"_s}};
        const auto with = [](QVariantMap map, const QVariantMap &changes) {
            map.insert(changes);
            return map;
        };
        const QVariantMap custom =
            with(fresh, {{u"fromMode"_s, u"custom"_s}, {u"toMode"_s, u"custom"_s}});
        QTest::newRow("none stored") << QVariant() << fresh;
        QTest::newRow("without modes") << QVariant(QVariantMap()) << custom;
        QTest::newRow("modes of the wrong end")
            << QVariant(QVariantMap{{u"fromMode"_s, u"sunrise"_s}, {u"toMode"_s, u"sunset"_s}})
            << custom;
        QTest::newRow("beyond the day")
            << QVariant(QVariantMap{{u"from"_s, 2000LL}, {u"to"_s, -1e300}, {u"enabled"_s, 1LL}})
            << with(custom, {{u"from"_s, 1439LL}, {u"to"_s, 0LL}, {u"enabled"_s, true}});
        QTest::newRow("wrong types everywhere")
            << QVariant(QVariantMap{{u"enabled"_s, u"YES"_s},
                                    {u"from"_s, u"60"_s},
                                    {u"to"_s, QVariantList{1}},
                                    {u"base"_s, 123},
                                    {u"mark"_s, QVariantMap()},
                                    {u"fromMode"_s, 4},
                                    {u"toMode"_s, QByteArray("sunrise")}})
            << custom;
        QTest::newRow("colours are normalised, extra keys dropped")
            << QVariant(
                   QVariantMap{{u"base"_s, u" ab12cd\n"_s}, {u"mark"_s, u"#FFF"_s}, {u"moon"_s, 3}})
            << with(custom, {{u"base"_s, u"#AB12CD"_s}});
    }

    void nightRecord()
    {
        QFETCH(QVariant, stored);
        QTEST(settingsFrom({one(kNightSettingsKey, stored), {}, {}}).nightSettings, "expected");
        // The second store is asked, the third never held a record.
        QTEST(settingsFrom({QVariantMap(), one(kNightSettingsKey, stored), {}}).nightSettings,
              "expected");
        const QVariantMap ignored{{u"enabled"_s, true}};
        QCOMPARE(settingsFrom({QVariantMap(), QVariantMap(), one(kNightSettingsKey, ignored)})
                     .nightSettings,
                 normalizedNightSettings(std::nullopt));
    }

    void nightContains_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QList<int>>("night");
        QTest::addColumn<QList<int>>("day");
        QTest::newRow("over midnight")
            << 1170 << 450 << QList{1170, 1439, 0, 449} << QList{450, 1169};
        QTest::newRow("within a day") << 60 << 120 << QList{60, 119} << QList{59, 120, 1439};
        QTest::newRow("equal ends") << 300 << 300 << QList<int>() << QList{0, 299, 300, 301};
    }

    void nightContains()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QList<int>, night);
        QFETCH(QList<int>, day);
        for (const int minute : night)
            QVERIFY(TamselNightContainsMinute(minute, from, to));
        for (const int minute : day)
            QVERIFY(!TamselNightContainsMinute(minute, from, to));
    }
};

QTEST_GUILESS_MAIN(TestStoredSettings)
#include "test_StoredSettings.moc"
