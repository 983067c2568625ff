// SPDX-License-Identifier: MIT
#include "platform/PropertyList.h"

#include <QDateTime>
#include <QDir>
#include <QProcess>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

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

} // namespace

class TestPropertyList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// What Python wrote, we read and write again, and Python reads the same.
    void agreesWithAnotherImplementation()
    {
        const QTemporaryDir dir;
        const auto python = [&dir](const QString &step) {
            const QString script =
                QStringLiteral(TAMSEL_TEST_SOURCES "/platform/property_lists.py");
            return QProcess::execute(u"python3"_s, {script, step, dir.path()});
        };
        QCOMPARE(python(u"write"_s), 0);
        for (const QFileInfo &info : QDir(dir.path()).entryInfoList(QDir::Files)) {
            QFile file(info.filePath());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const auto value = PropertyList::parse(file.readAll());
            QVERIFY2(value, qPrintable(info.fileName()));
            for (const auto &[form, bytes] :
                 {std::pair(".binary", PropertyList::toBinary(*value)),
                  {".preferred", PropertyList::toXmlOrBinary(*value)}}) {
                QFile made(info.filePath() + QLatin1StringView(form));
                QVERIFY(made.open(QIODevice::WriteOnly) && made.write(bytes) == bytes.size());
            }
        }
        QCOMPARE(python(u"check"_s), 0);
    }

    /// What other implementations cannot say, object by object as the values of a dictionary.
    void keepsEveryBit_data()
    {
        QTest::addColumn<QByteArray>("object");
        QTest::addColumn<QString>("form");
        const auto row = [](const char *name, const QByteArray &object, const QString &form) {
            QTest::newRow(name) << object << form;
        };
        const auto date = [](quint64 bits) { return '\x33' + bigEndian(bits, 8); };
        const auto wide = [](qint64 high) { return '\x14' + bigEndian(high, 8) + bigEndian(1, 8); };
        row("date in year 0", date(0xC22D'63C3'7F02'0000), u"binary"_s);
        row("date in year 10000", date(0x424D'62D2'3C80'0000), u"binary"_s);
        row("date that is no number", date(0x7FF8'0000'0000'0001), u"binary"_s);
        row("not a number, with a payload", "\x23" + bigEndian(0xFFF8'0000'DEAD'BEEF, 8),
            u"binary"_s);
        row("integer of 65 bits", wide(1), u"binary"_s);
        row("reference of three bytes", "\x82" + bigEndian(7, 3), u"binary"_s);
        row("set", "\xC0", u"none"_s);
        row("dictionary with a key that is no text", "\xD1" + bigEndian(3, 2) + bigEndian(3, 2),
            u"none"_s);
    }

    void keepsEveryBit()
    {
        QFETCH(QByteArray, object);
        QFETCH(QString, form);
        const QByteArray file =
            binary({"\xD1" + bigEndian(1, 2) + bigEndian(2, 2), "\x51z", object, "\x10\x01"});
        const auto value = PropertyList::parse(file);
        QVERIFY(value && value->toMap().contains(u"z"_s));
        const QByteArray written = PropertyList::toXmlOrBinary(*value);
        QCOMPARE(written.isEmpty(), form == u"none");
        QCOMPARE(written.startsWith("<?xml"), form == u"xml");
        if (written.isEmpty())
            return;
        const auto again = PropertyList::parse(written);
        QVERIFY(again);
        QVERIFY(PropertyList::toBinary(*again).contains(object));
    }

    void readsForeignFiles_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *name, const QByteArray &bytes, const QVariant &value) {
            QTest::newRow(name) << bytes << value;
        };
        row("comments, instructions and document type",
            "<?xml version=\"1.0\"?>\n<!DOCTYPE plist SYSTEM \"x.dtd\">\n<!-- <a> --><plist "
            "version=\"1.0\"><!-- b --><?c d?><dict>\n <key>a</key>\n <integer>1</integer >\n"
            "</dict></plist >\n<!-- e -->",
            QVariantMap{{u"a"_s, qlonglong(1)}});
        row("character references", xml("<string>&lt;&#228;&#x1F600;&#13;\r\n\r</string>"),
            u"<ä😀\r\n\n"_s);
        row("sections", xml("<string> a<![CDATA[<&lt;]]]]><!-- b -->&apos;<?c?> </string>"),
            u" a<&lt;]]' "_s);
        row("Latin-1",
            "<?xml version=\"1.0\" encoding='ISO-8859-1'?><plist><string>\xE4</string></plist>",
            u"ä"_s);
        row("UTF-16", QStringEncoder(QStringEncoder::Utf16LE)(u"<plist><true/></plist>"), true);
        row("numbers",
            xml("<array><integer> 0xFFFFFFFFFFFFFFFF</integer><integer>+7\n</integer>"
                "<real>-Inf</real><real>1E2</real></array>"),
            QVariantList{~qulonglong(0), qlonglong(7), -qInf(), 100.0});
        row("beyond our numbers",
            xml("<array><integer>18446744073709551616</integer><real>1e999</real>"
                "<date>12024-02-29T00:00:00Z</date></array>"),
            QVariantList(3, QVariant::fromValue(PropertyList::ForeignObject())));
        row("binary dictionary with a shared key and value",
            binary({"\xD1" + bigEndian(1, 2) + bigEndian(1, 2), "\x51z"}),
            QVariantMap{{u"z"_s, u"z"_s}});
        row("binary keys that differ after a NUL",
            binary({"\xD2" + bigEndian(1, 2) + bigEndian(2, 2) + bigEndian(3, 2).repeated(2),
                    QByteArray("\x62\0\xE4\0\0", 5), "\x61" + bigEndian(0xE4, 2), "\x09"}),
            QVariantMap{{u"ä"_s, true}, {QString(u"ä"_s + QChar()), true}});
        row("binary 16 bytes for -1", binary({"\x14" + QByteArray(16, '\xFF')}), qlonglong(-1));
        QVariant nested = u"d"_s;
        for (int i = 0; i < 64; ++i)
            nested = QVariantList{nested};
        row("binary: 64 nested arrays",
            binaryNest(64, 1,
                       "\x51"
                       "d"),
            nested);
        row("64 nested arrays", PropertyList::toXml(nested), nested);
    }

    void readsForeignFiles()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QVariant, value);
        const auto parsed = PropertyList::parse(bytes);
        QVERIFY(parsed);
        QCOMPARE(parsed->typeId(), value.typeId());
        QCOMPARE(*parsed, value);
    }

    void refusesBrokenInput_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const auto row = [](const char *name, const QByteArray &bytes) {
            QTest::newRow(name) << bytes;
        };
        row("nothing", "");
        row("other document", "<html><body/></html>");
        row("number that is none", xml("<integer>a</integer>"));
        row("unknown element", xml("<dict><key>a</key><foo/></dict>"));
        row("unfinished comment", xml("<true/><!--"));
        row("undeclared entity", xml("<string>&x;</string>"));
        row("entity bomb",
            "<!DOCTYPE plist [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;\">]>" +
                xml("<string>&b;&b;</string>"));
        row("65 nested arrays", xmlNest(65));
        row("binary: 65 nested arrays", binaryNest(65, 1, "\x09"));
        row("binary: 60000 nested arrays", binaryNest(60'000, 1, "\x09"));
        row("binary: 10^9 objects", binaryNest(9, 10, "\x09"));
        row("binary: one long text 10^6 times",
            binaryNest(6, 10, "\x5F\x11\x10" + QByteArray(1, '\0') + QByteArray(0x1000, 'x')));
        row("binary: an array within itself", binary({arrayOf(0, 1)}));
        row("binary: length of 2^63",
            binary({QByteArray("\xAF\x13") + char(0x80) + QByteArray(7, '\0')}));
        QByteArray wrongTable = binary({"\x09"});
        wrongTable.replace(wrongTable.size() - 8, 8, QByteArray(8, '\xFF'));
        row("binary: table beyond the end", wrongTable);
        QByteArray wrongRoot = binary({"\x09"});
        wrongRoot.replace(wrongRoot.size() - 16, 8, QByteArray(8, '\xFF'));
        row("binary: no such root", wrongRoot);
    }

    void refusesBrokenInput()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!PropertyList::parse(bytes));
    }

    void refusesEveryTruncation()
    {
        const QVariantMap values{{u"a"_s, QVariantList{1, 0.5, u"ä😀<"_s, QByteArray("b"), true}}};
        for (const QByteArray &bytes :
             {PropertyList::toXml(values).chopped(1), PropertyList::toBinary(values)}) {
            QVERIFY(PropertyList::parse(bytes));
            for (qsizetype size = 0; size < bytes.size(); ++size)
                QVERIFY2(!PropertyList::parse(bytes.first(size)),
                         qPrintable(QString::number(size)));
        }
    }

    /// A value that is left out would be a setting lost.
    void writesAllOrNothing()
    {
        const QVariantMap narrow{{u"int"_s, 1170}, {u"float"_s, 0.5F}};
        const QVariantMap wide{{u"int"_s, qlonglong(1170)}, {u"float"_s, 0.5}};
        QCOMPARE(PropertyList::toXml(narrow), PropertyList::toXml(wide));
        QCOMPARE(PropertyList::toBinary(narrow), PropertyList::toBinary(wide));
        QVariant deepLists = true;
        QVariant deepMaps = true;
        for (int i = 0; i < 64; ++i) {
            deepLists = QVariantList{deepLists};
            deepMaps = QVariantMap{{u"a"_s, deepMaps}};
        }
        const QVariantList tooLarge(1'000'000, true);
        for (const QVariant &value : QVariantList{QVariant(), QTime(1, 2), QDateTime(), deepLists,
                                                  deepMaps, QVariant(tooLarge)})
            QCOMPARE(PropertyList::toXmlOrBinary(QVariantMap{{u"a"_s, true}, {u"b"_s, value}}), "");
    }
};

QTEST_GUILESS_MAIN(TestPropertyList)
#include "test_PropertyList.moc"
