// SPDX-License-Identifier: MIT
#include "platform/HexColor.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestHexColor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writes_data();
    void writes();
    void reads_data();
    void reads();
    void normalizes_data();
    void normalizes();
    void keepsEveryByte();
};

void TestHexColor::writes_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QColor &color, const QString &text) {
        QTest::newRow(name) << color << text;
    };
    row("half rounds up", QColor::fromRgbF(1.0F, 0.5F, 0.0F), u"#FF8000"_s);
    row("none", QColor(), u"#000000"_s);
    row("orange background", QColor::fromRgbF(1.0F, 0.2745F, 0.0F), u"#FF4600"_s);
    // 9.498: the half precision of extended colours would make it 9.5.
    row("just below a half", QColor::fromRgba64(2441, 0, 0), u"#090000"_s);
    row("print colours", QColor::fromCmyk(0, 255, 255, 0), u"#FF0000"_s);
    row("above the range", QColor::fromRgbF(1.2F, 0.0F, 1.0F), u"#13200FF"_s);
    row("below the range", QColor::fromRgbF(0.0F, -0.5F, 0.0F), u"#00FFFFFFFFFFFFFF8000"_s);
}

void TestHexColor::writes()
{
    QFETCH(QColor, color);
    QFETCH(QString, text);
    QCOMPARE(hexStringForColor(color), text);
    if (text.size() != 7)
        QVERIFY(!colorFromHexString(text).isValid() &&
                normalizedHexStringFromString(text).isNull());
}

void TestHexColor::reads_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");
    const auto row = [](const char *name, const QString &text, const QColor &color) {
        QTest::newRow(name) << text << color;
    };
    const QColor none;
    row("null", QString(), none);
    row("empty", u""_s, none);
    row("plain", u"#FF8000"_s, QColor(0xFF, 0x80, 0x00));
    row("small letters, no sign", u"ff8000"_s, QColor(0xFF, 0x80, 0x00));
    row("signs everywhere", u"#AB#CD#EF"_s, QColor(0xAB, 0xCD, 0xEF));
    row("seven digits", u"#FFFFFFF"_s, none);
    row("name of a colour", u"orange"_s, none);
    row("rest is not looked at", u"12ZZZZ"_s, QColor(0x00, 0x00, 0x12));
    row("no digit first", u"Z12345"_s, none);
    row("prefix", u"0x1234"_s, QColor(0x00, 0x12, 0x34));
    row("prefix without digits", u"0xZZZZ"_s, none);
    row("prefix twice", u"0x0x12"_s, QColor(Qt::black));
    row("blank first", u" 12345"_s, QColor(0x01, 0x23, 0x45));
    row("blank within", u"12 345"_s, QColor(0x00, 0x00, 0x12));
    row("blanks outside count", u" #FF8000 "_s, none);
    row("wide blank first", u"\u300012345"_s, QColor(0x01, 0x23, 0x45));
    row("minus", u"-12345"_s, none);
    row("full-width digits", u"\uFF11\uFF12\uFF13\uFF14\uFF15\uFF16"_s, none);
    row("full-width sign stays", u"\uFF03FF8000"_s, none);
    row("sharp s becomes two letters", u"1234ß"_s, QColor(0x00, 0x12, 0x34));
    row("ligature becomes two digits", u"\uFB008000"_s, QColor(0xFF, 0x80, 0x00));
    row("outside the basic plane", u"1234\U0001F600"_s, QColor(0x00, 0x12, 0x34));
}

void TestHexColor::reads()
{
    QFETCH(QString, text);
    QFETCH(QColor, color);
    const QColor read = colorFromHexString(text);
    QCOMPARE(read.isValid(), color.isValid());
    if (color.isValid()) {
        QCOMPARE(read.spec(), QColor::Rgb);
        QCOMPARE(read.rgba64(), color.rgba64());
    }
}

void TestHexColor::normalizes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("normalized");
    const auto row = [](const char *name, const QString &text, const QString &normalized) {
        QTest::newRow(name) << text << normalized;
    };
    const QString none;
    row("empty", u""_s, none);
    row("normal already", u"#AB12CD"_s, u"#AB12CD"_s);
    row("blanks outside, small letters", u" #ab12cd "_s, u"#AB12CD"_s);
    row("newline before, tab after", u"\n#ff8000\t"_s, u"#FF8000"_s);
    row("signs everywhere", u"ab#12#cd#"_s, u"#AB12CD"_s);
    row("blank behind the sign", u"# ff8000"_s, none);
    row("blank within", u"#ff80 0"_s, none);
    row("letters behind digits", u"12ZZZZ"_s, none);
    row("prefix", u"0x1234"_s, none);
    row("seven digits", u"#FFFFFFF"_s, none);
    row("minus", u"-12345"_s, none);
    row("full-width digits", u"\uFF11\uFF12\uFF13\uFF14\uFF15\uFF16"_s, none);
    row("sharp s makes six", u"1234ß"_s, none);
    row("ligature becomes two digits", u"\uFB008000"_s, u"#FF8000"_s);
}

void TestHexColor::normalizes()
{
    QFETCH(QString, text);
    QFETCH(QString, normalized);
    const QString result = normalizedHexStringFromString(text);
    QCOMPARE(result, normalized);
    QCOMPARE(result.isNull(), normalized.isNull());
    QCOMPARE(normalizedHexStringFromString(result), result);
}

void TestHexColor::keepsEveryByte()
{
    for (int byte = 0; byte < 256; ++byte) {
        const QColor color(byte, 255 - byte, byte ^ 0x55);
        const QString text = hexStringForColor(color);
        QCOMPARE(colorFromHexString(text), color);
        QCOMPARE(normalizedHexStringFromString(text), text);
    }
}

QTEST_GUILESS_MAIN(TestHexColor)
#include "test_HexColor.moc"
