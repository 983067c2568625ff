// SPDX-License-Identifier: MIT
#include "calendar/CalendarTexts.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestCalendarTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void locales_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("weekdays");
        QTest::addColumn<QString>("lastDay");
        const QDate march(2026, 3, 5);
        QTest::newRow("en_US") << march << u"March 26"_s << u"M T W T F S S"_s << u"31"_s;
        QTest::newRow("de_DE") << march << u"März 26"_s << u"M D M D F S S"_s << u"31"_s;
        QTest::newRow("tr_TR") << march << u"Mart 26"_s << u"P S Ç P C C P"_s << u"31"_s;
        QTest::newRow("ar_EG") << march << u"مارس ٢٦"_s << u"ا ا ا ا ا ا ا"_s << u"٣١"_s;
        QTest::newRow("fa_IR") << march << u"مارس ۲۶"_s << u"د س چ پ ج ش ی"_s << u"۳۱"_s;
        QTest::newRow("hi_IN") << march << u"मार्च 26"_s << u"सो मं बु गु शु श र"_s << u"31"_s;
        QTest::newRow("my_MM") << march << u"မတ် ၂၆"_s << u"တ အ ဗု ကြ သေ စ တ"_s << u"၃၁"_s;
        QTest::newRow("zh_CN") << march << u"三月 26"_s << u"星 星 星 星 星 星 星"_s << u"31"_s;
        QTest::addRow("en_GB") << QDate(2009, 2, 1) << u"February 09"_s << u"M T W T F S S"_s
                               << u"28"_s;
        QTest::addRow("fa_AF") << QDate(2100, 2, 1) << u"فبروری ۰۰"_s << u"د س چ پ ج ش ی"_s
                               << u"۲۸"_s;
    }
    void locales()
    {
        QFETCH(QDate, date);
        QFETCH(QString, lastDay);
        const QLocale locale(QString::fromLatin1(QTest::currentDataTag()));
        const CalendarTexts texts = calendarTexts(date, locale);
        QTEST(texts.month + u' ' + texts.year, "title");
        QTEST(QStringList(texts.weekdays.begin(), texts.weekdays.end()).join(u' '), "weekdays");
        QCOMPARE(texts.days.size(), date.daysInMonth());
        QCOMPARE(texts.days.last(), lastDay);
        QCOMPARE(texts.days.first().size(), 1);
    }

    void weekdayLabels()
    {
        const std::tuple<const char *, QString, QString> cases[] = {
            {"tr", u"izin"_s, u"İ"_s},
            {"tr", u"ırmak"_s, u"I"_s},
            {"en", u"idle"_s, u"I"_s},
            {"en", u"e\u0301tude"_s, u"E\u0301"_s},
            {"en", u"\U00010428x"_s, u"\U00010400"_s}, // beyond 16 bits
            {"en", QString(), QString()}};
        for (const auto &[language, name, label] : cases)
            QCOMPARE(weekdayLabel(name, QLocale(QString::fromLatin1(language))), label);
    }
};

QTEST_GUILESS_MAIN(TestCalendarTexts)
#include "test_CalendarTexts.moc"
