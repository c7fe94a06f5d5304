#include "tests/support/raised_text.h"
#include "tests/support/test_program.h"
#include "text/services/token_service.h"
#include "text/services/token_text.h"

#include <QTest>

#include <cmath>

/** What scripts get of texts with tokens in them. */
class TestTokenText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void expandsWithWhatIsMissingBehind();
    void takesAnotherPattern();
    void makesValuesPartsOfNames();
    void makesAFolderOfTheWhole_data();
    void makesAFolderOfTheWhole();
    void refusesOtherTypes();
    void refusesAnIndexThatIsNotWhole();
    void takesPatternsApart();
};

void TestTokenText::expandsWithWhatIsMissingBehind()
{
    TokenText text;
    text.setPattern(QStringLiteral("{name}-{camera}-{taken:yyyy}-{counter:01}"));
    QVERIFY(text.needsFacts());
    const QString path = QStringLiteral("/a/b.jpg");
    const QVariantMap facts{{QStringLiteral("taken"), QStringLiteral("2026-08-14T10:20:30")},
                            {QStringLiteral("bytes"), 5e9},
                            {QStringLiteral("width"), 3},
                            {QStringLiteral("height"), 2},
                            {QStringLiteral("isFolder"), false}};
    QCOMPARE(text.expand(path, facts, 9), QStringList({QStringLiteral("b--2026-10"), QStringLiteral("camera")}));
    text.setStandIns({{QStringLiteral("camera"), QStringLiteral("box")}});
    QVERIFY(text.setProperty("standIn", QStringLiteral("?")));
    QCOMPARE(text.expand(path, {}, 0).join(u' '), QStringLiteral("b-box-?-01 camera taken"));
    QCOMPARE(text.standIns().size(), 1);
    text.setPattern(QStringLiteral("{orientation} {size:MB}"));
    QCOMPARE(text.expand(path, facts, 0), QStringList(QStringLiteral("Landscape 5000")));
}

void TestTokenText::takesAnotherPattern()
{
    TokenText text;
    QCOMPARE(text.expand(QStringLiteral("/a/b.jpg"), {}, 0), QStringList(QString()));
    text.setPattern(QStringLiteral("{size}"));
    text.setPattern(QStringLiteral("{extension}"));
    QCOMPARE(text.pattern(), QStringLiteral("{extension}"));
    QVERIFY(!text.needsFacts());
    QCOMPARE(text.expand(QStringLiteral("/a/b.jpg"), {}, 0), QStringList(QStringLiteral("jpg")));
}

void TestTokenText::makesValuesPartsOfNames()
{
    const QVariantMap facts{{QStringLiteral("camera"), QStringLiteral("A/B ")}};
    TokenText text;
    text.setPattern(QStringLiteral("x/{camera}{lens}"));
    QVERIFY(text.setProperty("standIn", QStringLiteral("no/ne")));
    QCOMPARE(text.values(), QStringLiteral("plain"));
    QCOMPARE(text.expand({}, facts, 0).first(), QStringLiteral("x/A/B no/ne"));
    text.setValues(QStringLiteral("name"));
    QCOMPARE(text.values(), QStringLiteral("name"));
    QCOMPARE(text.expand({}, facts, 0).first(), QStringLiteral("x/A-B no-ne"));
}

void TestTokenText::makesAFolderOfTheWhole_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("camera");
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << QStringLiteral("by {camera}") << QStringLiteral("A/B") << QStringLiteral("by A-B");
    QTest::newRow("nothing left") << QStringLiteral("{camera}") << QStringLiteral("..") << QStringLiteral("-");
    QTest::newRow("dots apart") << QStringLiteral("{camera}.{camera}") << QStringLiteral(".") << QStringLiteral("-");
    QTest::newRow("long") << QStringLiteral("{camera}-{camera}") << QString(400, u'x') << QString(180, u'x');
}

void TestTokenText::makesAFolderOfTheWhole()
{
    QFETCH(QString, pattern);
    QFETCH(QString, camera);
    TokenText text;
    text.setPattern(pattern);
    text.setValues(QStringLiteral("folder"));
    QCOMPARE(text.values(), QStringLiteral("folder"));
    QTEST(text.expand({}, {{QStringLiteral("camera"), camera}}, 0).first(), "folder");
}

void TestTokenText::refusesOtherTypes()
{
    TokenText text;
    QCOMPARE(
        raisedBy([&] { text.setValues(QStringLiteral("folders")); }),
        QStringLiteral("TypeError: Expected \"plain\", \"name\" or \"folder\" for values but received \"folders\""));
    QCOMPARE(raisedBy([&] {
                 text.setStandIns({{QStringLiteral("camera"), 3}});
             }),
             QStringLiteral("TypeError: Expected text for standIns.camera but received 3"));
    QCOMPARE(raisedBy([&] {
                 (void)text.expand({}, {{QStringLiteral("taken"), 2026}}, 0);
             }),
             QStringLiteral("TypeError: Expected text for facts.taken but received 2026"));
    QCOMPARE(raisedBy([&] {
                 (void)text.expand({}, {{QStringLiteral("bytes"), QStringLiteral("1")}}, 0);
             }),
             QStringLiteral("TypeError: Expected a number for facts.bytes but received \"1\""));
}

void TestTokenText::refusesAnIndexThatIsNotWhole()
{
    const TokenText text;
    for (const double index : {0.5, std::nan(""), HUGE_VAL, 1e300})
        QVERIFY(raisedBy([&] { (void)text.expand({}, {}, index); }).startsWith(QStringLiteral("RangeError: ")));
}

void TestTokenText::takesPatternsApart()
{
    const text::TokenService tokens;
    const QVariantList parts{QVariantMap{{QStringLiteral("text"), QStringLiteral("a")}},
                             QVariantMap{{QStringLiteral("token"), QStringLiteral("taken")},
                                         {QStringLiteral("form"), QStringLiteral("MM")}}};
    QCOMPARE(tokens.parts(QStringLiteral("a{taken:MM}")), parts);
    QCOMPARE(tokens.levels(QStringLiteral("/{a}/b{{")), QStringList({QStringLiteral("{a}"), QStringLiteral("b{{")}));
    QCOMPARE(tokens.problems(QStringLiteral("{name}")), QStringList());
    QCOMPARE(tokens.problems(QStringLiteral("{x}")).size(), 1);
    QCOMPARE(tokens.words(QStringLiteral("camera")), QStringLiteral("Camera"));
    QCOMPARE(tokens.words(QStringLiteral("x")), QStringLiteral("x"));
    QCOMPARE(tokens.folderName(QStringLiteral("../x")), QStringLiteral("-x"));
    const QVariantMap first = tokens.offered().first().toMap();
    QCOMPARE(first.keys(), QStringLiteral("example forms name words").split(u' '));
    QCOMPARE(first.value(QStringLiteral("name")).toString(), QStringLiteral("name"));
}

QUORLIN_TEST(TestTokenText)
#include "tst_token_text.moc"
