#include "files/planning/move_problem.h"

#include "tests/support/test_program.h"

#include <QSet>
#include <QTest>

using namespace files;

namespace {

constexpr int lastProblem = int(MoveProblem::Stuck);

} // namespace

/** One table of words and sentences for all that hinders an item. */
class TestMoveProblem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasAWordOfItsOwnForEach();
    void knowsNoOtherWord();
    void saysWhatIsWrongWithAName_data();
    void saysWhatIsWrongWithAName();
    void saysWhyARunCannotBeTakenBack_data();
    void saysWhyARunCannotBeTakenBack();
    void namesWhatIsWorthTellingOfAPlan();
};

void TestMoveProblem::hasAWordOfItsOwnForEach()
{
    QSet<QString> words;
    for (int i = 0; i <= lastProblem; ++i) {
        const QString word = wordOf(MoveProblem(i));
        QCOMPARE(moveProblem(word), std::optional(MoveProblem(i)));
        words.insert(word);
    }
    QCOMPARE(words.size(), lastProblem + 1);
    QVERIFY(wordOf(MoveProblem::None).isEmpty() && !wordOf(MoveProblem::None).isNull());
}

void TestMoveProblem::knowsNoOtherWord()
{
    for (const char *word : {"Gone", "gone ", "numbered", "aside", "OK"})
        QCOMPARE(moveProblem(QString::fromLatin1(word)), std::nullopt);
}

void TestMoveProblem::saysWhatIsWrongWithAName_data()
{
    QTest::addColumn<MoveProblem>("problem");
    QTest::addColumn<QString>("text");
    const std::pair<MoveProblem, const char *> rows[] = {
        {MoveProblem::Taken, "The name a.jpg is already in use"},
        {MoveProblem::Gone, "a.jpg no longer exists"},
        {MoveProblem::TooLong, "The name a.jpg is too long for this disk"},
        {MoveProblem::Leader, "a.jpg keeps its name, and so does its sidecar file"},
        {MoveProblem::Damaged, "a.jpg could not be copied correctly"},
        {MoveProblem::Other, "a.jpg could not be copied correctly"},
    };
    for (const auto &[problem, text] : rows)
        QTest::newRow(qPrintable(wordOf(problem))) << problem << QString::fromLatin1(text);
}

void TestMoveProblem::saysWhatIsWrongWithAName()
{
    QFETCH(MoveProblem, problem);
    QTEST(sentence(problem, QStringLiteral("/d/a.jpg")), "text");
}

void TestMoveProblem::saysWhyARunCannotBeTakenBack_data()
{
    QTest::addColumn<MoveProblem>("problem");
    QTest::addColumn<QString>("text");
    const std::pair<MoveProblem, const char *> rows[] = {
        {MoveProblem::None, ""},
        {MoveProblem::UnknownRun, "There is no record of this run"},
        {MoveProblem::OpenRun, "This run is still in progress"},
        {MoveProblem::EmptyRun, "Nothing was done in this run"},
        {MoveProblem::TakenBack, "This run has already been undone"},
        {MoveProblem::Stuck, "Nothing in this run can be undone any more"},
    };
    for (const auto &[problem, text] : rows)
        QTest::addRow("%s.", qPrintable(wordOf(problem))) << problem << QString::fromLatin1(text);
}

void TestMoveProblem::saysWhyARunCannotBeTakenBack()
{
    QFETCH(MoveProblem, problem);
    QTEST(sentence(problem), "text");
}

void TestMoveProblem::namesWhatIsWorthTellingOfAPlan()
{
    const QStringList words = {wordOf(PlanRemark::None), wordOf(PlanRemark::Aside), wordOf(PlanRemark::OtherCase),
                               wordOf(PlanRemark::Numbered), wordOf(PlanRemark::OtherDisk)};
    QCOMPARE(words, QStringList({QStringLiteral(""), QStringLiteral("aside"), QStringLiteral("case"),
                                 QStringLiteral("numbered"), QStringLiteral("disk")}));
}

QUORLIN_TEST(TestMoveProblem)
#include "tst_move_problem.moc"
