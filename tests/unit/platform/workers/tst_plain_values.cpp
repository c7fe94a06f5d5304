#include "platform/workers/plain_value.h"
#include "tests/support/test_program.h"

#include <QRandomGenerator>
#include <QTest>

#include <limits>

using namespace platform;

/** Values of scripts and of metadata on their way from one process to another, which may say anything. */
class TestPlainValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatWasWritten_data();
    void readsWhatWasWritten();
    void believesNoCount();
    void refusesWhatIsNestedTooDeep();
    void survivesAnyBody();
    void asksForADictionary();
};

namespace {

QByteArray bodyOf(const QVariant &value)
{
    MessageWriter writer;
    writeValue(writer, value);
    return writer.body();
}

QVariant nested(int levels)
{
    QVariant value = 1;
    for (int i = 0; i < levels; ++i)
        value = QVariantList{value};
    return value;
}

} // namespace

void TestPlainValues::readsWhatWasWritten_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("truth") << QVariant(true);
    QTest::newRow("whole") << QVariant(-7);
    QTest::newRow("long") << QVariant(std::numeric_limits<qlonglong>::max());
    QTest::newRow("real") << QVariant(0.1);
    QTest::newRow("no number") << QVariant(std::numeric_limits<double>::infinity());
    QTest::newRow("text") << QVariant(QStringLiteral("Füße \U0001F427"));
    QTest::newRow("half a character") << QVariant(QString(QChar(0xd800)));
    QTest::newRow("bytes") << QVariant(QByteArray("\0\xff", 2));
    QTest::newRow("texts") << QVariant(QStringList{QStringLiteral("a"), QString()});
    QTest::newRow("list") << QVariant(QVariantList{1, QStringLiteral("b"), QVariantList()});
    QTest::newRow("dictionary") << QVariant(QVariantMap{
        {QStringLiteral("{Exif}"), QVariantMap{{QStringLiteral("FNumber"), 2.8}}}, {QString(), QVariant()}});
}

void TestPlainValues::readsWhatWasWritten()
{
    QFETCH(QVariant, value);
    const QByteArray body = bodyOf(value);
    MessageReader reader(body);
    const QVariant read = readValue(reader);
    QVERIFY(reader.isAll());
    QCOMPARE(read.typeId(), value.typeId());
    QCOMPARE(read, value);
    for (qsizetype length = 0; length < body.size(); ++length) {
        MessageReader less(body.left(length));
        (void)readValue(less);
        QVERIFY(!less.isAll());
    }
}

void TestPlainValues::believesNoCount()
{
    for (const QVariant &value : {QVariant(QVariantList{1}), QVariant(QVariantMap{{QStringLiteral("a"), 1}})}) {
        QByteArray body = bodyOf(value);
        body[8 + 5] = 1; // of a million millions
        MessageReader reader(body);
        (void)readValue(reader);
        QVERIFY(!reader.isGood());
    }
}

void TestPlainValues::refusesWhatIsNestedTooDeep()
{
    MessageReader good(bodyOf(nested(16)));
    QCOMPARE(readValue(good), nested(16));
    QVERIFY(good.isAll());
    MessageReader bad(bodyOf(nested(17)));
    (void)readValue(bad);
    QVERIFY(!bad.isGood());
    MessageReader worse(bodyOf(nested(1'000)));
    (void)readValue(worse);
    QVERIFY(!worse.isGood());
}

void TestPlainValues::survivesAnyBody()
{
    const QByteArray good =
        bodyOf(QVariantMap{{QStringLiteral("a"), QVariantList{1, 2.0, QStringLiteral("c")}},
                           {QStringLiteral("b"), QVariantMap{{QStringLiteral("d"), QByteArray("e")}}}});
    QRandomGenerator random(1);
    constexpr int rounds = 20'000;
    for (int round = 0; round < rounds; ++round) {
        QByteArray body = good;
        const int changes = 1 + int(random.bounded(4));
        for (int i = 0; i < changes; ++i)
            body[random.bounded(int(body.size()))] = char(random.bounded(round % 2 == 0 ? 256 : 12));
        MessageReader reader(body);
        (void)readValue(reader);
    }
}

void TestPlainValues::asksForADictionary()
{
    MessageReader reader(bodyOf(3));
    QVERIFY(readFields(reader).isEmpty());
    QVERIFY(!reader.isGood());
}

QUORLIN_TEST(TestPlainValues)
#include "tst_plain_values.moc"
