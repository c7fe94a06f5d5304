#include "tests/support/test_program.h"
#include "text/safe_names.h"

#include <QRandomGenerator>
#include <QTest>

class TestSafeNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesPartsOfNames();
    void makesFolderNames_data();
    void makesFolderNames();
    void cutsLongNames();
    void neverMakesANameThatLeadsElsewhere();
};

void TestSafeNames::makesPartsOfNames()
{
    QCOMPARE(text::asPartOfName(QStringLiteral("a/b/../c")), QStringLiteral("a-b-..-c"));
    QCOMPARE(text::asPartOfName(QString::fromLatin1("a\0b", 3)), QStringLiteral("a-b"));
    QCOMPARE(text::asPartOfName(QStringLiteral(" .:* ")), QStringLiteral(" .:* "));
    QCOMPARE(text::asPartOfName({}), QString());
}

void TestSafeNames::makesFolderNames_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *value, const char *name) {
        QTest::newRow(value) << QString::fromUtf8(value) << QString::fromUtf8(name);
    };
    row("", "");
    row("Canon EOS 40D", "Canon EOS 40D");
    row("A/B", "A-B");
    row("/etc/passwd", "-etc-passwd");
    row("..", "");
    row(" . \u00A0", "");
    row("../../x", "-..-x");
    row("...", "");
    row(".hidden", "hidden");
    row("x. ", "x");
    row("a\n\tb", "a b");
    row("a\u007f\u0001b", "a b");
    row("a/\\:*?\"<>|b", "a-b");
    row("EF 50mm f/1.4", "EF 50mm f-1.4");
    row("<Digimax i50 MP3>", "-Digimax i50 MP3-");
    row("\uFEFFx\u3000", "x");
    row("\U0001F600", "\U0001F600");
}

void TestSafeNames::makesFolderNames()
{
    QFETCH(QString, value);
    QTEST(text::asFolderName(value), "name");
}

void TestSafeNames::cutsLongNames()
{
    QCOMPARE(text::asFolderName(QString(400, u'x')), QString(180, u'x'));
    const QString smile = QStringLiteral("\U0001F600");
    QCOMPARE(text::asFolderName(smile.repeated(100)), smile.repeated(45));
    QCOMPARE(text::asFolderName(QString(179, u'x') + u' ' + u'y'), QString(179, u'x'));
    const QString half(QChar(0xd83d));
    QCOMPARE(text::asFolderName(u'a' + half + u'b'), QStringLiteral("a-b"));
}

void TestSafeNames::neverMakesANameThatLeadsElsewhere()
{
    const QString signs = QStringLiteral("/. \\a:\u00e9\u00A0\uFEFF\n") + QChar(u'\0') + QChar(0xd83d) + QChar(0xde00);
    QRandomGenerator random(2026);
    int made = 0;
    for (int round = 0; round < 5000; ++round) {
        QString value;
        for (int i = 0; i <= round % 12; ++i)
            value += signs[random.bounded(int(signs.size()))];
        const QString name = text::asFolderName(value);
        QVERIFY2(!name.contains(u'/') && !name.contains(u'\\') && !name.contains(QChar(u'\0')), qPrintable(name));
        QVERIFY2(!name.startsWith(u'.') && !name.endsWith(u'.') && name == name.trimmed(), qPrintable(name));
        QVERIFY(name.isValidUtf16());
        made += name.isEmpty() ? 0 : 1;
    }
    QVERIFY(made > 3000);
}

QUORLIN_TEST(TestSafeNames)
#include "tst_safe_names.moc"
