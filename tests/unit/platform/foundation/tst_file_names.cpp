#include "platform/foundation/file_names.h"

#include "tests/support/test_program.h"

#include <QTest>

using platform::NameOf;

class TestFileNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesWritingsOfOneNameForTheSame_data();
    void takesWritingsOfOneNameForTheSame();
    void shortensWithoutCuttingACharacter_data();
    void shortensWithoutCuttingACharacter();
    void numbersBeforeTheExtension_data();
    void numbersBeforeTheExtension();
    void numbersNamesOfFullLength_data();
    void numbersNamesOfFullLength();
    void cutsTheNameWhereTheExtensionIsAllOfIt();
};

void TestFileNames::takesWritingsOfOneNameForTheSame_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("areSame");
    QTest::newRow("case") << QStringLiteral("IMG.JPG") << QStringLiteral("img.jpg") << true;
    QTest::newRow("accent") << QStringLiteral("e\u0301.jpg") << QStringLiteral("\u00c9.jpg") << true;
    QTest::newRow("other letter") << QStringLiteral("e.jpg") << QStringLiteral("\u00e9.jpg") << false;
    QTest::newRow("wide form") << QStringLiteral("a") << QStringLiteral("\uff41") << false;
    QTest::newRow("blank") << QStringLiteral("a b") << QStringLiteral("ab") << false;
}

void TestFileNames::takesWritingsOfOneNameForTheSame()
{
    QFETCH(QString, one);
    QFETCH(QString, other);
    QTEST(platform::nameKey(one) == platform::nameKey(other), "areSame");
}

void TestFileNames::shortensWithoutCuttingACharacter_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("most");
    QTest::addColumn<QString>("left");
    const QString four = QStringLiteral("a\u00e9\u20ac\U0001F642"); // one to four bytes
    QTest::newRow("none") << four << 0 << QString();
    QTest::newRow("below none") << four << -3 << QString();
    QTest::newRow("one") << four << 1 << four.left(1);
    QTest::newRow("half of two") << four << 2 << four.left(1);
    QTest::newRow("two") << four << 3 << four.left(2);
    QTest::newRow("two of three") << four << 5 << four.left(2);
    QTest::newRow("three") << four << 6 << four.left(3);
    QTest::newRow("three of four") << four << 9 << four.left(3);
    QTest::newRow("all") << four << 10 << four;
    QTest::newRow("more") << four << 1000 << four;
    const QString half = four.left(4);
    QTest::newRow("half a pair") << half << 9 << half;
    QTest::newRow("not half a pair") << half << 8 << half.left(3);
    QTest::newRow("nothing") << QString() << 5 << QString();
}

void TestFileNames::shortensWithoutCuttingACharacter()
{
    QFETCH(QString, text);
    QFETCH(int, most);
    QTEST(platform::shortened(text, most), "left");
}

void TestFileNames::numbersBeforeTheExtension_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    QTest::addColumn<NameOf>("what");
    QTest::addColumn<QString>("numbered");
    const auto row = [](const char *name, int number, NameOf what, const char *numbered) {
        QTest::newRow(numbered) << QString::fromLatin1(name) << number << what << QString::fromLatin1(numbered);
    };
    row("a.jpg", 2, NameOf::File, "a (2).jpg");
    row("a", 3, NameOf::File, "a (3)");
    row("a.b.jpg", 10, NameOf::File, "a.b (10).jpg");
    row(".hidden", 2, NameOf::File, ".hidden (2)");
    row("dot.", 2, NameOf::File, "dot. (2)");
    row("Trip 1.5", 2, NameOf::Folder, "Trip 1.5 (2)");
}

void TestFileNames::numbersBeforeTheExtension()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QFETCH(NameOf, what);
    QTEST(platform::numberedName(name, number, what), "numbered");
    QTEST(platform::fittingNumberedName(name, number, what), "numbered");
}

void TestFileNames::numbersNamesOfFullLength_data()
{
    QTest::addColumn<QString>("letter");
    for (const char *letter : {"a", "ä", "€", "🙂"})
        QTest::newRow(letter) << QString::fromUtf8(letter);
}

void TestFileNames::numbersNamesOfFullLength()
{
    QFETCH(QString, letter);
    const qsizetype bytes = letter.toUtf8().size();
    const QString name = QString((251 - bytes * 60) % 251, u'x') + letter.repeated(60) + QStringLiteral(".jpg");
    QCOMPARE(name.toUtf8().size(), platform::longestNameBytes);
    const QString numbered = platform::fittingNumberedName(name, 12, NameOf::File);
    QVERIFY(numbered.endsWith(QStringLiteral(" (12).jpg")) && numbered.isValidUtf16());
    QVERIFY(numbered.toUtf8().size() <= 255 && numbered.toUtf8().size() > 250);
    QCOMPARE(platform::numberedName(name, 12, NameOf::File).toUtf8().size(), 260);
}

void TestFileNames::cutsTheNameWhereTheExtensionIsAllOfIt()
{
    const QString name = QStringLiteral("a.") + QString(253, u'b');
    const QString numbered = platform::fittingNumberedName(name, 2, NameOf::File);
    QCOMPARE(numbered, name.left(251) + QStringLiteral(" (2)"));
}

QUORLIN_TEST(TestFileNames)
#include "tst_file_names.moc"
