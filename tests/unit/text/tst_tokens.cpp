#include "tests/support/test_program.h"
#include "text/tokens.h"

#include <QTest>

using text::TokenPart;

namespace {

TokenPart plain(const QString &text)
{
    return {text, {}, {}, false};
}

TokenPart token(const QString &name, const QString &form = {})
{
    return {{}, name, form, true};
}

/** What tests compare: "[name:form]" for a token, "text" in quotation marks. */
QStringList shown(const QList<TokenPart> &parts)
{
    QStringList all;
    for (const TokenPart &part : parts)
        all.append(part.isToken ? u'[' + part.token + u':' + part.form + u']' : u'"' + part.text + u'"');
    return all;
}

} // namespace

class TestTokens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesApart_data();
    void takesApart();
    void writesPartsAsAPattern_data();
    void writesPartsAsAPattern();
    void partsLevels_data();
    void partsLevels();
    void findsNothingWrong_data();
    void findsNothingWrong();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
    void saysTheSameProblemOnce();
    void putsAFormIntoTheSentenceAsItIs();
    void knowsWhatThePathTells();
    void offersFormsThatAreForms();
};

void TestTokens::takesApart_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QList<TokenPart>>("parts");
    const auto row = [](const char *pattern, const QList<TokenPart> &parts) {
        QTest::newRow(pattern) << QString::fromUtf8(pattern) << parts;
    };
    row("", {});
    row("plain", {plain(QStringLiteral("plain"))});
    row("{name}", {token(QStringLiteral("name"))});
    row("a{taken:yyyy}b", {plain(QStringLiteral("a")), token(QStringLiteral("taken"), QStringLiteral("yyyy")),
                           plain(QStringLiteral("b"))});
    row("{a}{b}", {token(QStringLiteral("a")), token(QStringLiteral("b"))});
    row("{{name}", {plain(QStringLiteral("{name}"))});
    row("{{{name}", {plain(QStringLiteral("{")), token(QStringLiteral("name"))});
    row("{{{{", {plain(QStringLiteral("{{"))});
    row("open {name", {plain(QStringLiteral("open {name"))});
    row("} {", {plain(QStringLiteral("} {"))});
    row("{", {plain(QStringLiteral("{"))});
    row("{}", {token({})});
    row("{:x}", {token({}, QStringLiteral("x"))});
    row("{taken:HH:mm}", {token(QStringLiteral("taken"), QStringLiteral("HH:mm"))});
    row("{ name : x }", {token(QStringLiteral("name"), QStringLiteral(" x "))});
    row("{\t\uFEFFname\u00A0}", {token(QStringLiteral("name"))});
    row("{a{b}", {token(QStringLiteral("a{b"))});
    row("ends {{", {plain(QStringLiteral("ends {"))});
    row("\U0001F600{\U0001F600}", {plain(QStringLiteral("\U0001F600")), token(QStringLiteral("\U0001F600"))});
}

void TestTokens::takesApart()
{
    QFETCH(QString, pattern);
    QFETCH(QList<TokenPart>, parts);
    QCOMPARE(shown(text::tokenParts(pattern)), shown(parts));
    QVERIFY(text::tokenParts(pattern) == parts);
}

void TestTokens::writesPartsAsAPattern_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("written");
    const auto row = [](const char *pattern, const char *written) {
        QTest::newRow(pattern) << QString::fromUtf8(pattern) << QString::fromUtf8(written);
    };
    row("", "");
    row("{ name :3}-{camera}", "{name:3}-{camera}");
    row("{{{name}", "{{{name}");
    row("open {name", "open {{name");
    row("}} {{", "}} {{");
    row("{}", "{}");
}

void TestTokens::writesPartsAsAPattern()
{
    QFETCH(QString, pattern);
    const QList<TokenPart> parts = text::tokenParts(pattern);
    QTEST(text::tokenPattern(parts), "written");
    QCOMPARE(shown(text::tokenParts(text::tokenPattern(parts))), shown(parts));
}

void TestTokens::partsLevels_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("levels");
    const auto row = [](const char *pattern, const QStringList &levels) {
        QTest::newRow(pattern) << QString::fromUtf8(pattern) << levels;
    };
    row("", {});
    row("///", {});
    row("a", {QStringLiteral("a")});
    row("{taken:yyyy}/{taken:MM} x", {QStringLiteral("{taken:yyyy}"), QStringLiteral("{taken:MM} x")});
    row("/a//b {name}/", {QStringLiteral("a"), QStringLiteral("b {name}")});
    row("{taken:yyyy/MM}", {QStringLiteral("{taken:yyyy/MM}")});
    row("{{/{a}{b}", {QStringLiteral("{{"), QStringLiteral("{a}{b}")});
}

void TestTokens::partsLevels()
{
    QFETCH(QString, pattern);
    QStringList levels;
    for (const QList<TokenPart> &level : text::tokenLevels(text::tokenParts(pattern)))
        levels.append(text::tokenPattern(level));
    QTEST(levels, "levels");
}

void TestTokens::findsNothingWrong_data()
{
    QTest::addColumn<QString>("pattern");
    for (const char *pattern : {"",
                                "plain",
                                "{name}",
                                "{{",
                                "{{name}",
                                "{taken:yyyy}/{taken:yyyy-MM-dd}",
                                "{taken:dd.MM.yyyy}",
                                "{counter:007}",
                                "{counter:}",
                                "{counter:999999999}",
                                "{name:12}",
                                "{name:999}",
                                "{name:word}",
                                "{name:~a,b}",
                                "{size:class}",
                                "{taken:}",
                                "a } b",
                                "} {{",
                                "{taken:yyyy年MM月}",
                                "{taken:HH:mm:ss}"})
        QTest::newRow(pattern) << QString::fromUtf8(pattern);
}

void TestTokens::findsNothingWrong()
{
    QFETCH(QString, pattern);
    QCOMPARE(text::tokenProblems(pattern), QStringList());
}

void TestTokens::saysWhatIsWrong_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("named");
    const auto row = [](const char *pattern, const char *named) {
        QTest::newRow(pattern) << QString::fromUtf8(pattern) << QString::fromUtf8(named);
    };
    row("{foo}", "{foo}");
    row("{}", "between the braces");
    row("{Name}", "{Name}");
    row("{taken:YYYY}", "“YYYY”");
    row("{taken:yyyy-mmm}", "“yyyy-mmm”");
    row("{counter:x}", "“x”");
    row("{counter:-1}", "“-1”");
    row("{counter:1000000000}", "“1000000000”");
    row("{counter: 1}", "“ 1”");
    row("{counter:१}", "“१”");
    row("{name:0}", "“0”");
    row("{name:012}", "“012”");
    row("{name:1000}", "“1000”");
    row("{name:Word}", "“Word”");
    row("{name:~}", "“~”");
    row("{name:~ , }", "“~ , ”");
    row("{size:KB}", "“KB”");
    row("{size: class}", "“ class”");
    row("{camera:3}", "{camera} takes no format");
    row("{name", "not closed");
    row("{name} {", "not closed");
    row("{{{", "not closed");
}

void TestTokens::saysWhatIsWrong()
{
    QFETCH(QString, pattern);
    QFETCH(QString, named);
    const QStringList found = text::tokenProblems(pattern);
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.first().contains(named), qPrintable(found.first()));
}

void TestTokens::saysTheSameProblemOnce()
{
    QCOMPARE(text::tokenProblems(QStringLiteral("{foo}{foo}")).size(), 1);
    QCOMPARE(text::tokenProblems(QStringLiteral("{foo}{bar}{size:x} {")).size(), 4);
}

void TestTokens::putsAFormIntoTheSentenceAsItIs()
{
    QVERIFY(text::tokenProblems(QStringLiteral("{counter:%1 $& %2}")).first().contains(QStringLiteral("“%1 $& %2”")));
}

void TestTokens::knowsWhatThePathTells()
{
    const auto needs = [](const char *pattern) {
        return text::needsFacts(text::tokenParts(QString::fromLatin1(pattern)));
    };
    QVERIFY(!needs("a{name}{counter}{folder}{extension}"));
    QVERIFY(!needs(""));
    QVERIFY(!needs("{{size}"));
    QVERIFY(needs("{size}"));
    QVERIFY(needs("{name}{date}"));
    QVERIFY(needs("{foo}"));
}

void TestTokens::offersFormsThatAreForms()
{
    const QList<text::OfferedToken> offered = text::offeredTokens();
    QCOMPARE(offered.size(), 16);
    for (const text::OfferedToken &each : offered) {
        QVERIFY(!each.words.isEmpty() && !each.example.isEmpty() && !each.forms.isEmpty());
        for (const QString &form : each.forms) {
            const QString pattern = u'{' + each.name + (form.isEmpty() ? QString() : u':' + form) + u'}';
            QCOMPARE(text::tokenProblems(pattern), QStringList());
        }
    }
}

QUORLIN_TEST(TestTokens)
#include "tst_tokens.moc"
