#include "tests/support/test_program.h"
#include "text/letter_case.h"

#include "tests/support/corpus_names.h"

#include <QTest>

using text::CaseChange;
using text::changedCase;

class TestLetterCase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesCase_data();
    void changesCase();
    void capitalisesTheFirstLetterOfEachWord_data();
    void capitalisesTheFirstLetterOfEachWord();
    void agreesWithTheCorpus();
};

void TestLetterCase::changesCase_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("lower");
    QTest::addColumn<QString>("upper");
    const auto row = [](const char *given, const char *lower, const char *upper) {
        QTest::newRow(given) << QString::fromUtf8(given) << QString::fromUtf8(lower) << QString::fromUtf8(upper);
    };
    row("", "", "");
    row("JOHN smith", "john smith", "JOHN SMITH");
    row("Straße", "straße", "STRASSE");
    row("İı", "i̇ı", "İI");
    row("ΟΔΟΣ", "οδος", "ΟΔΟΣ");
    row("ΟΔΟΣ 2", "οδος 2", "ΟΔΟΣ 2");
    row("ΟΔΟΣ.JPG", "οδοσ.jpg", "ΟΔΟΣ.JPG");
    row("ΟΔΟΣ'.", "οδος'.", "ΟΔΟΣ'.");
    row("Α\u0301Σ", "α\u0301ς", "Α\u0301Σ");
    row("Σ", "σ", "Σ");
    row("2Σ", "2σ", "2Σ");
    row("ΣΣ", "σς", "ΣΣ");
    row("ǅ", "ǆ", "Ǆ");
    row("ﬀ", "ﬀ", "FF");
    row("𐐀𐐨", "𐐨𐐨", "𐐀𐐀");
    row("写真 사진 😀", "写真 사진 😀", "写真 사진 😀");
}

void TestLetterCase::changesCase()
{
    QFETCH(QString, given);
    QTEST(changedCase(given, CaseChange::Lower), "lower");
    QTEST(changedCase(given, CaseChange::Upper), "upper");
    QCOMPARE(changedCase(given, CaseChange::None), given);
}

void TestLetterCase::capitalisesTheFirstLetterOfEachWord_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *given, const char *expected) {
        QTest::newRow(given) << QString::fromUtf8(given) << QString::fromUtf8(expected);
    };
    row("", "");
    row("JOHN smith", "John Smith");
    row("o'NEIL", "O'neil");
    row("JEAN-luc", "Jean-luc");
    row("IMG_A.JPG", "Img_a.jpg");
    row("(john) \"SMITH\" smith", "(john) \"smith\" Smith");
    row("1ST 2nd", "1st 2nd");
    row("a\tb\nc\u00A0d\u3000e\u2028f", "A\tB\nC\u00A0D\u3000E\u2028F");
    row("a\u200Bb", "A\u200Bb");
    row("  two  spaces ", "  Two  Spaces ");
    row("ÉTÉ été", "Été Été");
    row("e\u0301te\u0301", "E\u0301te\u0301");
    row("ßa ŉa ﬁN ǆA ᾳΑ", "Ssa ʼNa Fin ǅa ᾼα");
    row("İSTANBUL ıSPARTA", "İstanbul Isparta");
    row("ΟΔΟΣ ΣΑΣ", "Οδος Σας");
    row("写真ABC", "写真abc");
    row("😀Smile smile", "😀smile Smile");
    row("𐐨𐐀", "𐐀𐐨");
}

void TestLetterCase::capitalisesTheFirstLetterOfEachWord()
{
    QFETCH(QString, given);
    QTEST(changedCase(given, CaseChange::Capitalised), "expected");
}

void TestLetterCase::agreesWithTheCorpus()
{
    const QList<CorpusName> names = corpusNames();
    QVERIFY(!names.isEmpty());
    for (const CorpusName &name : names) {
        QCOMPARE(changedCase(name.name, CaseChange::Lower), name.lower);
        QCOMPARE(changedCase(name.name, CaseChange::Upper), name.upper);
        const QString capitalised = changedCase(name.name, CaseChange::Capitalised);
        QCOMPARE(changedCase(capitalised, CaseChange::Upper), name.upper);
        QCOMPARE(changedCase(capitalised, CaseChange::Capitalised), capitalised);
    }
}

QUORLIN_TEST(TestLetterCase)
#include "tst_letter_case.moc"
