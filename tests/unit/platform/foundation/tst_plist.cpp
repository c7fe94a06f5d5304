#include "platform/plist/plist.h"
#include "platform/plist/plist_check.h"
#include "tests/support/test_program.h"

#include "tests/support/corpus.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QtEndian>

namespace {

const std::initializer_list<const char *> allKeys = {
    "Array", "Big", "Data", "Date",   "Dict", "Empty",   "False",
    "Int",   "Neg", "Real", "String", "True", "Unicode", "key with spaces & <xml> \"quotes\""};

QByteArray corpusFile(const QString &name)
{
    QFile file(corpusPath("plist/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** One with a value of every type, written by another program. */
QByteArray fileOfAllTypes(const QString &name)
{
    QFile file(QStringLiteral(QUORLIN_TEST_DATA "/plist/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray xml(const QByteArray &entries)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" + entries + "</dict></plist>";
}

QByteArray bigEndian(quint64 value)
{
    QByteArray bytes(8, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

/** A binary file of these objects, the first of which is the root; references have two bytes. */
QByteArray binary(const QByteArrayList &objects)
{
    QByteArray file = "bplist00";
    QByteArray table;
    for (const QByteArray &object : objects) {
        table += bigEndian(quint64(file.size()));
        file += object;
    }
    const quint64 tableBegin = quint64(file.size());
    const QByteArray trailer =
        QByteArray(6, '\0') + char(8) + char(2) + bigEndian(quint64(objects.size())) + bigEndian(0);
    return file + table + trailer + bigEndian(tableBegin);
}

/** Object i is an array that names object i + 1 @p times times. */
QByteArray nested(int levels, int times)
{
    QByteArrayList objects = {QByteArray::fromHex("d100010002"), QByteArray::fromHex("5161")};
    for (int i = 2; i < levels + 2; ++i) {
        QByteArray reference(2, '\0');
        qToBigEndian(quint16(i + 1), reference.data());
        objects.append(char(0xA0 + times) + reference.repeated(times));
    }
    objects.append(QByteArray("\x09", 1));
    return binary(objects);
}

QVariant valueIn(const QByteArray &file, const char *key)
{
    const auto value = platform::propertyListValue(file, QString::fromUtf8(key));
    return value ? *value : QVariant(QStringLiteral("(unreadable)"));
}

} // namespace

class TestPlist : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsEveryType_data();
    void readsEveryType();
    void readsTheSameFromBothForms();
    void changesOneKeyOnly_data();
    void changesOneKeyOnly();
    void writesEveryType_data();
    void writesEveryType();
    void refusesWhatCannotBeHeld_data();
    void refusesWhatCannotBeHeld();
    void refusesFiles_data();
    void refusesFiles();
    void endsAtTheBounds();
    void survivesDamage_data();
    void survivesDamage();
};

void TestPlist::readsEveryType_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *entry, const QVariant &value) {
        QTest::newRow(entry) << QByteArray(entry) << value;
    };
    row("<string>a &amp; <![CDATA[<b>]]>é&#233;</string>", QStringLiteral("a & <b>éé"));
    row("<string></string>", QString());
    row("<string/>", QString());
    row("<integer>-9223372036854775808</integer>", qlonglong(std::numeric_limits<qint64>::min()));
    row("<integer>18446744073709551615</integer>", qulonglong(std::numeric_limits<quint64>::max()));
    row("<integer>-5</integer>", qlonglong(-5));
    row("<real>-2.5e-3</real>", -2.5e-3);
    row("<true/>", true);
    row("<false/>", false);
    row("<date>2090-01-02T03:04:05Z</date>", QDateTime(QDate(2090, 1, 2), QTime(3, 4, 5), Qt::UTC));
    row("<date>1900-01-02T03:04:05Z</date>", QDateTime(QDate(1900, 1, 2), QTime(3, 4, 5), Qt::UTC));
    row("<data>AAH/</data>", QByteArray::fromHex("0001ff"));
    row("<data></data>", QByteArray());
    row("<array><integer>1</integer><array/></array>", QVariantList{qlonglong(1), QVariantList()});
    row("<dict><key>b</key><true/></dict>", QVariantMap{{QStringLiteral("b"), true}});
}

void TestPlist::readsEveryType()
{
    QFETCH(QByteArray, entry);
    QFETCH(QVariant, value);
    const QByteArray file = xml("<key>é</key>" + entry);
    QCOMPARE(valueIn(file, "é"), value);
    QVERIFY(!valueIn(file, "other").isValid());
    QVERIFY(!valueIn(file, "").isValid());
}

void TestPlist::readsTheSameFromBothForms()
{
    const QByteArray text = fileOfAllTypes(QStringLiteral("all-types-xml.plist"));
    const QByteArray bytes = fileOfAllTypes(QStringLiteral("all-types-binary.plist"));
    int found = 0;
    for (const char *key : allKeys) {
        QVERIFY2(valueIn(text, key).isValid(), key);
        QCOMPARE(valueIn(text, key), valueIn(bytes, key));
        ++found;
    }
    QCOMPARE(found, 14);
}

void TestPlist::changesOneKeyOnly_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("XML") << QStringLiteral("all-types-xml.plist");
    QTest::newRow("binary") << QStringLiteral("all-types-binary.plist");
}

void TestPlist::changesOneKeyOnly()
{
    QFETCH(QString, name);
    const QByteArray file = fileOfAllTypes(name);
    QVERIFY(!file.isEmpty());
    const QString key = QStringLiteral("a <new> é key");
    const auto changed = platform::withPropertyListValue(file, key, QStringLiteral("v & w"));
    QVERIFY(changed);
    QCOMPARE(platform::isBinaryPropertyList(*changed), platform::isBinaryPropertyList(file));
    QCOMPARE(platform::propertyListValue(*changed, key).value(), QVariant(QStringLiteral("v & w")));
    for (const char *other : allKeys)
        QCOMPARE(valueIn(*changed, other), valueIn(file, other));
    const auto again = platform::withPropertyListValue(*changed, key, QStringLiteral("other"));
    QCOMPARE(platform::propertyListValue(*again, key).value(), QVariant(QStringLiteral("other")));
    const auto removed = platform::withPropertyListValue(*again, key, QVariant());
    QVERIFY(removed);
    QVERIFY(!platform::propertyListValue(*removed, key)->isValid());
    for (const char *other : allKeys)
        QCOMPARE(valueIn(*removed, other), valueIn(file, other));
}

void TestPlist::writesEveryType_data()
{
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *name, const QVariant &value) { QTest::newRow(name) << value; };
    row("text", QStringLiteral("a\t\n<é>\U0001F600\u2028"));
    row("empty text", QStringLiteral(""));
    row("negative", qlonglong(-5));
    row("least", qlonglong(std::numeric_limits<qint64>::min()));
    row("large", qlonglong(1) << 60);
    row("real", 0.1);
    row("small real", 5e-324);
    row("large real", -1.7976931348623157e308);
    row("true", true);
    row("false", false);
    row("date", QDateTime(QDate(2026, 11, 21), QTime(8, 30, 5), Qt::UTC));
    row("old date", QDateTime(QDate(1939, 11, 21), QTime(8, 30, 5), Qt::UTC));
    row("data", QByteArray::fromHex("00ff0d0a"));
    row("empty data", QByteArray(""));
    row("list", QVariantList{qlonglong(1), QStringLiteral("a"), QVariantList{true}});
    row("dictionary", QVariantMap{{QStringLiteral("k"), QVariantMap{{QStringLiteral("é"), 1.5}}}});
}

void TestPlist::writesEveryType()
{
    QFETCH(QVariant, value);
    const QString key = QStringLiteral("key");
    for (const QByteArray &file : {xml("<key>o</key><true/>"), nested(3, 1)}) {
        const auto changed = platform::withPropertyListValue(file, key, value);
        QVERIFY(changed);
        QCOMPARE(platform::propertyListValue(*changed, key).value(), value);
        QCOMPARE(platform::propertyListValue(*changed, key)->typeId(), value.typeId());
        QCOMPARE(valueIn(*changed, "o"), valueIn(file, "o"));
        QCOMPARE(valueIn(*changed, "a"), valueIn(file, "a"));
    }
}

void TestPlist::refusesWhatCannotBeHeld_data()
{
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *name, const QVariant &value) { QTest::newRow(name) << value; };
    row("null inside", QVariantList{1, QVariant()});
    row("null in a dictionary", QVariantMap{{QStringLiteral("k"), QVariant()}});
    row("zero in text", QString(QStringLiteral("a") + QChar(0)));
    row("control in text", QStringLiteral("a\u0001"));
    row("half a pair", QString(QChar(0xD83D)));
    row("key with a control", QVariantMap{{QStringLiteral("\u0002"), 1}});
    row("far date", QDateTime(QDate(2100, 1, 1), QTime(0, 0), Qt::UTC));
    row("invalid date", QDateTime());
    QVariant deep = 1;
    for (int i = 0; i < 70; ++i)
        deep = QVariantList{deep};
    row("too deep", deep);
}

void TestPlist::refusesWhatCannotBeHeld()
{
    QFETCH(QVariant, value);
    const auto changed = platform::withPropertyListValue(xml({}), QStringLiteral("key"), value);
    QVERIFY(!changed);
    QCOMPARE(changed.error().code, platform::ErrorCode::InvalidValue);
}

void TestPlist::refusesFiles_data()
{
    QTest::addColumn<QByteArray>("file");
    const auto row = [](const char *name, const QByteArray &file) { QTest::newRow(name) << file; };
    row("empty", {});
    row("text", "key = value");
    row("list at the root", "<plist version=\"1.0\"><array/></plist>");
    row("no plist", "<dict><key>a</key><true/></dict>");
    row("not closed", xml("<key>a</key><string>b"));
    row("unknown element", xml("<key>a</key><set/>"));
    row("element in text", xml("<key>a</key><string><array/></string>"));
    row("text in a dictionary", xml("text<key>a</key><true/>"));
    row("attribute", xml("<key>a</key><array a=\"/><array>\"/>"));
    row("entity", "<!DOCTYPE plist [<!ENTITY e \"x\">]>" + xml("<key>a</key><string>&e;</string>"));
    row("another encoding", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><plist><dict/></plist>");
    row("not UTF-8", xml("<key>a</key><string>\xe9</string>"));
    row("null object", binary({QByteArray::fromHex("d100010002"), QByteArray::fromHex("5161"), QByteArray(1, '\0')}));
    row("set", binary({QByteArray::fromHex("d100010002"), QByteArray::fromHex("5161"), QByteArray::fromHex("c0")}));
    row("key that is no text", binary({QByteArray::fromHex("d100010001"), QByteArray::fromHex("09")}));
    row("zero in text", binary({QByteArray::fromHex("d100010001"), QByteArray::fromHex("526100")}));
    row("holds itself", binary({QByteArray::fromHex("d100010000"), QByteArray::fromHex("5161")}));
    row("missing object", binary({QByteArray::fromHex("d100010009"), QByteArray::fromHex("5161")}));
    for (const char *name :
         {"invalid_tag.plist", "malformed_dict.bplist", "not-a-plist.plist", "signedunsigned.bplist", "uid.bplist"})
        if (corpusIsThere())
            row(name, corpusFile(QString::fromLatin1(name)));
}

void TestPlist::refusesFiles()
{
    QFETCH(QByteArray, file);
    const auto value = platform::propertyListValue(file, QStringLiteral("a"));
    QVERIFY(!value);
    QCOMPARE(value.error().code, platform::ErrorCode::Unreadable);
    QVERIFY(!platform::withPropertyListValue(file, QStringLiteral("a"), true));
}

void TestPlist::endsAtTheBounds()
{
    const auto deepXml = [](int depth) {
        return xml("<key>a</key>" + QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
    };
    QVERIFY(valueIn(deepXml(64), "a").typeId() == QMetaType::QVariantList);
    QCOMPARE(valueIn(deepXml(65), "a"), QVariant(QStringLiteral("(unreadable)")));
    QCOMPARE(valueIn(deepXml(200000), "a"), QVariant(QStringLiteral("(unreadable)")));
    QVERIFY(valueIn(nested(63, 1), "a").typeId() == QMetaType::QVariantList);
    QCOMPARE(valueIn(nested(64, 1), "a"), QVariant(QStringLiteral("(unreadable)")));
    QCOMPARE(valueIn(nested(60000, 1), "a"), QVariant(QStringLiteral("(unreadable)")));
    QVERIFY(valueIn(nested(10, 2), "a").typeId() == QMetaType::QVariantList);
    QCOMPARE(valueIn(nested(40, 2), "a"), QVariant(QStringLiteral("(unreadable)")));
    const QByteArray padding(16 * 1024 * 1024, ' ');
    QCOMPARE(valueIn(xml("<key>a</key><true/>" + padding), "a"), QVariant(QStringLiteral("(unreadable)")));
}

void TestPlist::survivesDamage_data()
{
    QTest::addColumn<QByteArray>("file");
    const QDir folder(corpusPath("plist"));
    for (const QString &name : folder.entryList(QDir::Files))
        QTest::newRow(qPrintable(name)) << corpusFile(name);
    for (const char *name : {"all-types-xml.plist", "all-types-binary.plist"})
        QTest::addRow("own %s", name) << fileOfAllTypes(QString::fromLatin1(name));
    QTest::newRow("nested") << nested(5, 3);
}

void TestPlist::survivesDamage()
{
    QFETCH(QByteArray, file);
    const QString key = QStringLiteral("a");
    for (qsizetype size = 0; size < file.size(); size += 1 + file.size() / 500)
        QVERIFY(platform::isBinaryPropertyList(file) || !platform::propertyListValue(file.left(size), key) ||
                file.mid(size).trimmed().isEmpty());
    for (qsizetype i = 0; i < file.size(); i += 1 + file.size() / 500) {
        for (const int change : {0x01, 0x10, 0x80, 0xFF}) {
            QByteArray damaged = file;
            damaged[i] = char(damaged[i] ^ change);
            const auto changed = platform::withPropertyListValue(damaged, key, true);
            QVERIFY(!changed || platform::propertyListValue(*changed, key).value() == QVariant(true));
        }
    }
}

QUORLIN_TEST(TestPlist)
#include "tst_plist.moc"
