// SPDX-License-Identifier: MIT
#include "platform/HexColor.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestHexColor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writes_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QColor &color, const QString &text) {
            QTest::newRow(name) << color << text;
        };
        row("half rounds up", QColor::fromRgbF(1.0F, 0.5F, 0.0F), u"#FF8000"_s);
        row("none", QColor(), u"#000000"_s);
        // 9.498: the half precision of extended colours would make it 9.5.
        row("just below a half", QColor::fromRgba64(2441, 0, 0), u"#090000"_s);
        row("print colours", QColor::fromCmyk(0, 255, 255, 0), u"#FF0000"_s);
        row("above the range", QColor::fromRgbF(1.2F, 0.0F, 1.0F), u"#13200FF"_s);
        row("below the range", QColor::fromRgbF(0.0F, -0.5F, 0.0F), u"#00FFFFFFFFFFFFFF8000"_s);
    }

    void writes()
    {
        QFETCH(QColor, color);
        QTEST(hexStringForColor(color), "text");
    }

    /// What is stored is read leniently; what is typed is normalised or refused.
    void reads_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("stored"); // of the colour, if one is read
        QTest::addColumn<QString>("typed");
        const QString none;
        const auto row = [](const QString &text, const QString &stored, const QString &typed) {
            QTest::addRow("'%s'", qUtf8Printable(text)) << text << stored << typed;
        };
        row(QString(), none, none);
        row(u"#AB12CD"_s, u"#ab12cd"_s, u"#AB12CD"_s);
        row(u"ff8000"_s, u"#ff8000"_s, u"#FF8000"_s);
        row(u"#AB#CD#EF"_s, u"#abcdef"_s, u"#ABCDEF"_s);
        row(u"\n#ff8000\t"_s, none, u"#FF8000"_s);
        row(u"#FFFFFFF"_s, none, none);
        row(u"12ZZZZ"_s, u"#000012"_s, none);
        row(u"Z12345"_s, none, none);
        row(u"0x1234"_s, u"#001234"_s, none);
        row(u"0xZZZZ"_s, none, none);
        row(u" 12345"_s, u"#012345"_s, none);
        row(u"# ff800"_s, u"#0ff800"_s, none);
        row(u"12 345"_s, u"#000012"_s, none);
        row(u"-12345"_s, none, none);
        row(u"\uFF11\uFF12\uFF13\uFF14\uFF15\uFF16"_s, none, none); // full-width digits
        row(u"1234ß"_s, u"#001234"_s, none);                        // SS in capitals
        row(u"\uFB008000"_s, u"#ff8000"_s, u"#FF8000"_s);           // a ligature
    }

    void reads()
    {
        QFETCH(QString, text);
        const QColor stored = colorFromHexString(text);
        QTEST(stored.isValid() ? stored.name() : QString(), "stored");
        const QString typed = normalizedHexStringFromString(text);
        QTEST(typed, "typed");
        QCOMPARE(normalizedHexStringFromString(typed), typed);
    }
};

QTEST_GUILESS_MAIN(TestHexColor)
#include "test_HexColor.moc"
