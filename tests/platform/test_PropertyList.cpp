// SPDX-License-Identifier: MIT
#include "platform/PropertyList.h"

#include <QDateTime>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <clocale>
#include <limits>

using namespace Qt::StringLiterals;
namespace PropertyList = platform::PropertyList;

namespace {

QByteArray xml(const QByteArray &root)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + root +
           "</plist>\n";
}

QByteArray bigEndian(quint64 value, int width)
{
    QByteArray bytes(8, '\0');
    qToBigEndian(value, bytes.data());
    return bytes.last(width);
}

/// A binary property list of \p objects, the first one its root; references take two bytes.
QByteArray binary(const QByteArrayList &objects)
{
    QByteArray bytes = "bplist00";
    QByteArray table;
    for (const QByteArray &object : objects) {
        table += bigEndian(quint64(bytes.size()), 4);
        bytes += object;
    }
    return bytes + table + QByteArray(6, '\0') + '\x04' + '\x02' +
           bigEndian(quint64(objects.size()), 8) + bigEndian(0, 8) +
           bigEndian(quint64(bytes.size()), 8);
}

/// An array that holds the object \p index \p count times, at most 14.
QByteArray arrayOf(int index, int count)
{
    return char(0xA0 | count) + bigEndian(quint64(index), 2).repeated(count);
}

/// Arrays within arrays, \p depth of them, each holding the next one \p width times.
QByteArray binaryNest(int depth, int width, const QByteArray &leaf)
{
    QByteArrayList objects;
    for (int i = 1; i <= depth; ++i)
        objects.append(arrayOf(i, width));
    return binary(objects << leaf);
}

QByteArray xmlNest(int depth)
{
    return xml(QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
}

QVariantMap everyType()
{
    return {
        {u"text"_s, u"Ä <&> \"😀\"\n "_s},
        {u"empty"_s, u""_s},
        {u"yes"_s, true},
        {u"no"_s, false},
        {u"negative"_s, qlonglong(-5)},
        {u"least"_s, std::numeric_limits<qlonglong>::min()},
        {u"most"_s, std::numeric_limits<qlonglong>::max()},
        {u"unsigned"_s, std::numeric_limits<qulonglong>::max()},
        {u"just unsigned"_s, qulonglong(1) << 63},
        {u"real"_s, 0.1},
        {u"whole real"_s, 60.0},
        {u"large real"_s, -1.0000000000000002e300},
        {u"data"_s, QByteArray("\0\x01\xff", 3)},
        {u"no data"_s, QByteArray("")},
        {u"date"_s, QDateTime(QDate(2024, 2, 29), QTime(23, 59, 58), Qt::UTC)},
        {u"distant past"_s, QDateTime(QDate(1, 1, 1), QTime(0, 0), Qt::UTC)},
        {u"distant future"_s, QDateTime(QDate(4001, 1, 1), QTime(0, 0), Qt::UTC)},
        {u"<key> & Ö"_s, QVariantMap{{u""_s, QVariantList{QVariantMap(), QVariantList()}}}},
    };
}

} // namespace

class TestPropertyList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesWhatItReads_data();
    void writesWhatItReads();
    void readsForeignFiles_data();
    void readsForeignFiles();
    void refusesBrokenInput_data();
    void refusesBrokenInput();
    void refusesEveryTruncation();
    void leavesOutForeignTypes();
    void ignoresTheLocale();
};

void TestPropertyList::writesWhatItReads_data()
{
    QTest::addColumn<bool>("isBinary");
    QTest::newRow("xml") << false;
    QTest::newRow("binary") << true;
}

void TestPropertyList::writesWhatItReads()
{
    QFETCH(bool, isBinary);
    const QVariantMap values = everyType();
    const auto parsed = PropertyList::parse(isBinary ? PropertyList::toBinary(values)
                                                     : PropertyList::toXml(values));
    QVERIFY(parsed);
    const QVariantMap map = parsed->toMap();
    QCOMPARE(map.keys(), values.keys());
    for (auto it = values.begin(); it != values.end(); ++it) {
        // QVariant compares numbers across types, but a preference keeps its type.
        QVERIFY2(map[it.key()].typeId() == it->typeId(), qPrintable(it.key()));
        QVERIFY2(map[it.key()] == *it, qPrintable(it.key()));
    }
}

void TestPropertyList::readsForeignFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QVariant>("value");
    const QVariant one = QVariantMap{{u"a"_s, qlonglong(1)}};
    QTest::newRow("comments and document type")
        << QByteArray("<?xml version=\"1.0\"?>\n<!DOCTYPE plist SYSTEM \"x.dtd\">\n<!-- a -->"
                      "<plist version=\"1.0\"><!-- b --><dict>\n <key>a</key>\n"
                      " <integer>1</integer>\n</dict></plist>")
        << one;
    QTest::newRow("character references")
        << xml("<string>&lt;&#228;&#x1F600;</string>") << QVariant(u"<ä😀"_s);
    QTest::newRow("binary set, read as an array")
        << binary({"\xC1" + bigEndian(1, 2), "\x09"}) << QVariant(QVariantList{true});
    QTest::newRow("binary dictionary with a shared key and value")
        << binary({"\xD1" + bigEndian(1, 2) + bigEndian(1, 2), "\x51z"})
        << QVariant(QVariantMap{{u"z"_s, u"z"_s}});
    QTest::newRow("binary text of 15 characters") << binary({"\x5F\x10\x0F"
                                                             "fifteen letters"})
                                                  << QVariant(u"fifteen letters"_s);
    QTest::newRow("binary two's complement")
        << binary({"\x13" + bigEndian(quint64(-300), 8)}) << QVariant(qlonglong(-300));
    QTest::newRow("64 nested arrays are a property list") << binaryNest(64, 1,
                                                                        "\x51"
                                                                        "d")
                                                          << PropertyList::parse(binaryNest(64, 1,
                                                                                            "\x51"
                                                                                            "d"))
                                                                 .value();
}

void TestPropertyList::readsForeignFiles()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QVariant, value);
    const auto parsed = PropertyList::parse(bytes);
    QVERIFY(parsed);
    QCOMPARE(*parsed, value);
}

void TestPropertyList::refusesBrokenInput_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const QByteArray &bytes) {
        QTest::newRow(name) << bytes;
    };
    row("nothing", "");
    row("blanks", " \n");
    row("zeros", QByteArray(64, '\0'));
    row("plain old text form", "{ a = b; }");
    row("object notation", "{\"a\": 1}");
    row("other document", "<html><body/></html>");
    row("no root", xml(""));
    row("two roots", xml("<dict/><dict/>"));
    row("unknown element", xml("<dict><key>a</key><foo/></dict>"));
    row("value without key", xml("<dict><string>b</string></dict>"));
    row("crossed tags", xml("<dict><key>a</key><string>b</array></dict>"));
    row("undeclared entity", xml("<string>&x;</string>"));
    row("entity bomb", "<!DOCTYPE plist [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>" +
                           xml("<string>&b;&b;</string>"));
    row("65 nested arrays", xmlNest(66));
    row("70000 nested arrays", xmlNest(70'000));
    row("binary: header only", "bplist00");
    row("binary: 65 nested arrays", binaryNest(65, 1, "\x09"));
    row("binary: 60000 nested arrays", binaryNest(60'000, 1, "\x09"));
    row("binary: 10^9 objects", binaryNest(9, 10, "\x09"));
    row("binary: one long text 10^6 times",
        binaryNest(6, 10, "\x5F\x11\x10" + QByteArray(1, '\0') + QByteArray(0x1000, 'x')));
    row("binary: an array within itself", binary({arrayOf(0, 1)}));
    row("binary: reference to nothing", binary({arrayOf(7, 1)}));
    row("binary: length of 2^63",
        binary({QByteArray("\xAF\x13") + char(0x80) + QByteArray(7, '\0')}));
    QByteArray wrongTable = binary({"\x09"});
    wrongTable.replace(wrongTable.size() - 8, 8, QByteArray(8, '\xFF'));
    row("binary: table beyond the end", wrongTable);
    QByteArray wrongRoot = binary({"\x09"});
    wrongRoot.replace(wrongRoot.size() - 16, 8, QByteArray(8, '\xFF'));
    row("binary: no such root", wrongRoot);
}

void TestPropertyList::refusesBrokenInput()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!PropertyList::parse(bytes));
}

/// A file cut off anywhere is none, unless only what follows the root is missing.
void TestPropertyList::refusesEveryTruncation()
{
    const QByteArray xmlBytes = PropertyList::toXml(everyType());
    const qsizetype rootEnd = xmlBytes.lastIndexOf("</dict>") + 7;
    for (qsizetype size = 0; size < rootEnd; ++size)
        QVERIFY2(!PropertyList::parse(xmlBytes.first(size)), qPrintable(QString::number(size)));
    const QByteArray binaryBytes = PropertyList::toBinary(everyType());
    for (qsizetype size = 0; size < binaryBytes.size(); ++size)
        QVERIFY2(!PropertyList::parse(binaryBytes.first(size)), qPrintable(QString::number(size)));
}

void TestPropertyList::leavesOutForeignTypes()
{
    const QVariantMap values{{u"int"_s, 1170},
                             {u"float"_s, 0.5F},
                             {u"none"_s, QVariant()},
                             {u"no date"_s, QDateTime()},
                             {u"list"_s, QVariantList{QTime(1, 2), 1}}};
    const QVariantMap expected{
        {u"int"_s, qlonglong(1170)}, {u"float"_s, 0.5}, {u"list"_s, QVariantList{qlonglong(1)}}};
    QCOMPARE(PropertyList::parse(PropertyList::toXml(values)), std::optional<QVariant>(expected));
    QCOMPARE(PropertyList::toXml(QTime(1, 2)), QByteArray());
    QCOMPARE(PropertyList::toBinary(QVariant()), QByteArray());
}

/// Half of Europe writes 0.5 with a comma; files do not.
void TestPropertyList::ignoresTheLocale()
{
    const QTemporaryDir dir;
    const QString compiler = QStandardPaths::findExecutable(u"localedef"_s);
    if (compiler.isEmpty() || QProcess::execute(compiler, {u"-i"_s, u"fi_FI"_s, u"-f"_s, u"UTF-8"_s,
                                                           dir.filePath(u"fi_FI.UTF-8"_s)}) != 0)
        QSKIP("no locale sources: install the package \"locales\"");
    qputenv("LOCPATH", dir.path().toLocal8Bit());
    QVERIFY(std::setlocale(LC_ALL, "fi_FI.UTF-8"));
    QCOMPARE(QByteArray::fromStdString(std::localeconv()->decimal_point), QByteArray(","));
    const auto parsed = PropertyList::parse(xml("<real>60.25</real>"));
    const QByteArray written = PropertyList::toXml(60.25);
    std::setlocale(LC_ALL, "C");
    QCOMPARE(parsed, std::optional<QVariant>(60.25));
    QVERIFY(written.contains("<real>60.25</real>"));
}

QTEST_GUILESS_MAIN(TestPropertyList)
#include "test_PropertyList.moc"
