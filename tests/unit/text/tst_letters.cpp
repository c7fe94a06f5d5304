#include "tests/support/test_program.h"
#include "text/ascii_folding.h"
#include "text/letters.h"

#include "tests/support/corpus_names.h"

#include <QTest>

#include <algorithm>

class TestLetters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsLettersOfEveryScript_data();
    void keepsLettersOfEveryScript();
    void foldsAccents_data();
    void foldsAccents();
    void foldsHowTheNameIsStoredAway();
    void foldsHalvesOfPairsToQuestionMarks();
};

void TestLetters::keepsLettersOfEveryScript_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("withNumbers");
    QTest::addColumn<QString>("lettersOnly");
    const auto row = [](const char *given, const char *withNumbers, const char *lettersOnly) {
        QTest::newRow(given) << QString::fromUtf8(given) << QString::fromUtf8(withNumbers)
                             << QString::fromUtf8(lettersOnly);
    };
    row("", "", "");
    row("Été 2019!", "Été2019", "Été");
    row("E\u0301te\u0301 2019!", "E\u0301te\u03012019", "E\u0301te\u0301");
    row("IMG_0001 (1).JPG", "IMG00011JPG", "IMGJPG");
    row("½ ² Ⅷ ① ٣ १", "½²Ⅷ①٣१", "");
    row("写真-テスト", "写真テスト", "写真テスト");
    row("हिन्दी", "हिन्दी", "हिन्दी");
    row("ไทย 12", "ไทย12", "ไทย");
    row("ªºʰǅ", "ªºʰǅ", "ªºʰǅ");
    row("😀a👍b", "ab", "ab");
    row("𐐀𝟙", "𐐀𝟙", "𐐀");
    row("a\u20DDb", "a\u20DDb", "a\u20DDb");
    row("\t\n_-+€$\u200B", "", "");
}

void TestLetters::keepsLettersOfEveryScript()
{
    QFETCH(QString, given);
    QTEST(text::onlyLetters(given, text::Kept::LettersAndNumbers), "withNumbers");
    QTEST(text::onlyLetters(given, text::Kept::Letters), "lettersOnly");
}

void TestLetters::foldsAccents_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *given, const char *expected) {
        QTest::newRow(given) << QString::fromUtf8(given) << QString::fromUtf8(expected);
    };
    row("", "");
    row("plain ASCII ~\t\x7F", "plain ASCII ~\t\x7F");
    row("Été Ünïcödé ñ ç", "Ete Unicode n c");
    row("E\u0301te\u0301", "Ete");
    row("Việt Nam ệ Ǭ", "Viet Nam e O");
    row("Łódź Øst đ ħ ŧ ı Ǿ", "Lodz Ost d h t i O");
    row("Å Å", "A A");
    row("Straße æ þ", "Stra?e ? ?");
    row("写真", "??");
    row("か\u3099が", "??");
    row("사진", "??");
    row("\u1109\u1161", "?");
    row("Ёлка ά", "???? ?");
    row("😀 1\uFE0F", "? 1");
    row("\u0301a", "?a");
    row("b\uFEFFa\u200B", "b?a?");
    row("≠ = \u0338", "? = ");
    row("“quoted” … € Ａ", "?quoted? ? ? ?");
}

void TestLetters::foldsAccents()
{
    QFETCH(QString, given);
    QTEST(text::foldedToAscii(given), "expected");
}

void TestLetters::foldsHowTheNameIsStoredAway()
{
    const QList<CorpusName> names = corpusNames();
    QVERIFY(!names.isEmpty());
    for (const CorpusName &name : names) {
        const QString folded = text::foldedToAscii(name.name);
        QVERIFY2(std::all_of(folded.begin(), folded.end(), [](QChar c) { return c.unicode() < 128; }),
                 qPrintable(name.name));
        QCOMPARE(text::foldedToAscii(name.composed), folded);
        QCOMPARE(text::foldedToAscii(name.decomposed), folded);
        QCOMPARE(text::foldedToAscii(folded), folded);
        const QString kept = text::onlyLetters(name.composed, text::Kept::Letters);
        QCOMPARE(text::onlyLetters(name.decomposed, text::Kept::Letters).normalized(QString::NormalizationForm_C),
                 kept.normalized(QString::NormalizationForm_C));
    }
}

void TestLetters::foldsHalvesOfPairsToQuestionMarks()
{
    const QString halves = QString(QChar(0xD83D)) + u'a' + QChar(0xDE00);
    QCOMPARE(text::foldedToAscii(halves), QStringLiteral("?a?"));
    QCOMPARE(text::onlyLetters(halves, text::Kept::Letters), QStringLiteral("a"));
}

QUORLIN_TEST(TestLetters)
#include "tst_letters.moc"
