#include "tests/support/test_program.h"
#include "text/encodings.h"
#include "text/searching.h"

#include "tests/support/corpus_names.h"

#include <QTest>

class TestEncodings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsBase64_data();
    void readsBase64();
    void encodesAsciiOnly();
    void goesThroughUtf8Unchanged();
    void replacesHalvesOfPairs();
    void cutsNamesIntoPieces();
};

void TestEncodings::readsBase64_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<bool>("isValid");
    QTest::addColumn<QByteArray>("data");
    const auto row = [](const char *given, bool isValid, const QByteArray &data = {}) {
        QTest::newRow(given) << QString::fromUtf8(given) << isValid << data;
    };
    row("", true);
    row("QUJD", true, "ABC");
    row("QUI=", true, "AB");
    row("QQ==", true, "A");
    row("Q U\r\nJ\tD", true, "ABC");
    row("*QUJDé写?-_", true, "ABC");
    row("QQ=\n=", true, "A");
    row("+/+/", true, QByteArray::fromHex("fbffbf"));
    row("!!!", true);
    row("QUJ", false);
    row("QQ", false);
    row("Q", false);
    row("QQ=", false);
    row("QUJD=", false);
    row("Q===", false);
    row("====", false);
    row("QQ==QUJD", false);
    row("Q=Q=", false);
}

void TestEncodings::readsBase64()
{
    QFETCH(QString, given);
    QFETCH(bool, isValid);
    const std::optional<QByteArray> data = text::dataFromBase64(given);
    QCOMPARE(data.has_value(), isValid);
    QTEST(data.value_or(QByteArray()), "data");
    QCOMPARE(data.value_or(QByteArray()).isNull(), !isValid);
}

void TestEncodings::encodesAsciiOnly()
{
    QString all;
    QByteArray bytes;
    for (char c = 0; c < 127; ++c) {
        all += QLatin1Char(c);
        bytes += c;
    }
    QCOMPARE(text::asciiBytes(all), bytes);
    QVERIFY(text::asciiBytes(QString())->isEmpty());
    QVERIFY(!text::asciiBytes(QString())->isNull());
    QVERIFY(text::asciiBytes(QStringLiteral("\u007F")));
    QVERIFY(!text::asciiBytes(QStringLiteral("\u0080")));
    QVERIFY(!text::asciiBytes(QStringLiteral("abcé")));
    QVERIFY(!text::asciiBytes(QStringLiteral("\U0001F600")));
}

void TestEncodings::goesThroughUtf8Unchanged()
{
    const QString withNull = QStringLiteral("\uFEFFa") + QChar(0) + QStringLiteral("b\uFEFF\U0001F600");
    QCOMPARE(text::throughUtf8(withNull), withNull);
    for (const CorpusName &name : corpusNames()) {
        QCOMPARE(text::throughUtf8(name.name), name.name);
        const QByteArray bytes = name.name.toUtf8();
        QCOMPARE(text::dataFromBase64(QString::fromLatin1(bytes.toBase64())), bytes);
    }
}

void TestEncodings::replacesHalvesOfPairs()
{
    const QString halves = QString(QChar(0xD83D)) + u'a' + QChar(0xDE00);
    QCOMPARE(text::throughUtf8(halves), QStringLiteral("?a?"));
}

void TestEncodings::cutsNamesIntoPieces()
{
    const QList<CorpusName> names = corpusNames();
    QVERIFY(!names.isEmpty());
    for (const CorpusName &name : names) {
        for (const QString &separator : {QStringLiteral("."), QStringLiteral(" "), QStringLiteral("no such text")}) {
            const QStringList pieces = text::pieces(name.name, separator);
            QCOMPARE(pieces.size(), name.name.count(separator) + 1);
            QCOMPARE(pieces.join(separator), name.name);
            QCOMPARE(text::replaced(name.name, separator, QString()), pieces.join(QString()));
        }
        QCOMPARE(text::withoutSpaces(name.name), text::replaced(name.name, QStringLiteral(" "), QString()));
    }
}

QUORLIN_TEST(TestEncodings)
#include "tst_encodings.moc"
