#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_program.h"

#include <QTest>

/** What arrives in a service for each kind of argument, and which sentence refuses what does not fit. */
class TestSeamArguments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTextAndNumbersThatFit_data();
    void takesTextAndNumbersThatFit() { compare(); }
    void takesAnyObjectThatFits_data();
    void takesAnyObjectThatFits() { compare(); }
    void takesListsDataAndDatesThatFit_data();
    void takesListsDataAndDatesThatFit() { compare(); }
    void takesShapesAndObjectsThatFit_data();
    void takesShapesAndObjectsThatFit() { compare(); }
    void refusesAListThatHoldsItself();
    void emptiesTheScriptsOwnList();
    void carriesManyArguments();

private:
    using Row = std::pair<const char *, const char *>;
    void table(std::initializer_list<Row> rows);
    void compare();

    ScriptRun m_run;
};

void TestSeamArguments::table(std::initializer_list<Row> rows)
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("outcome");
    for (const auto &[call, outcome] : rows)
        QTest::newRow(call) << QString::fromUtf8(call) << QString::fromUtf8(outcome);
}

void TestSeamArguments::compare()
{
    QFETCH(QString, call);
    QFETCH(QString, outcome);
    QCOMPARE(m_run.valueOf(QStringLiteral("echo.") + call), outcome);
}

void TestSeamArguments::takesTextAndNumbersThatFit_data()
{
    table({
        {"takeText('a b')", "\"<a b>\""},
        {"takeText('')", "\"<>\""},
        {"takeText(null)", "\"nothing\""},
        {"takeText('é😀')", "\"<é😀>\""},
        {"takeText(3)", "TypeError: Expected text or null for text but received 3"},
        {"takeText(undefined)", "TypeError: Expected text or null for text but received undefined"},
        {"takeText(['a'])", "TypeError: Expected text or null for text but received a list"},
        {"takeText({})", "TypeError: Expected text or null for text but received an object"},
        {"takeText(new String('a'))", "TypeError: Expected text or null for text but received an object"},
        {"takeText(() => 1)", "TypeError: Expected text or null for text but received a function"},
        {"takeText(Symbol('a'))", "TypeError: Expected text or null for text but received a symbol"},
        {"takeText(new TextField())", "TypeError: Expected text or null for text but received a TextField"},
        {"takeWhole(-2147483648)", "\"-2147483648\""},
        {"takeWhole(2147483647)", "\"2147483647\""},
        {"takeWhole(2.0)", "\"2\""},
        {"takeWhole(-0)", "\"0\""},
        {"takeWhole(2147483648)",
         "RangeError: Expected a whole number from -2147483648 to 2147483647 for number but received 2147483648"},
        {"takeWhole(1.5)", "TypeError: Expected a whole number for number but received 1.5"},
        {"takeWhole(NaN)", "TypeError: Expected a whole number for number but received NaN"},
        {"takeWhole(Infinity)", "TypeError: Expected a whole number for number but received Infinity"},
        {"takeWhole('3')", "TypeError: Expected a whole number for number but received \"3\""},
        {"takeWhole('abc')", "TypeError: Expected a whole number for number but received \"abc\""},
        {"takeWhole(true)", "TypeError: Expected a whole number for number but received true"},
        {"takeWhole(null)", "TypeError: Expected a whole number for number but received null"},
        {"takeUnsigned(4294967295)", "\"4294967295\""},
        {"takeUnsigned(-1)", "RangeError: Expected a whole number from 0 to 4294967295 for number but received -1"},
        {"takeUnsigned(4294967296)",
         "RangeError: Expected a whole number from 0 to 4294967295 for number but received 4294967296"},
        {"takeUnsigned(0.5)", "TypeError: Expected a whole number for number but received 0.5"},
        {"takeNumber(0.1)", "\"0.10000000000000001\""},
        {"takeNumber(NaN)", "\"nan\""},
        {"takeNumber('0.1')", "TypeError: Expected a number for number but received \"0.1\""},
        {"takeSingle(0.1)", "\"0.100000001\""},
        {"takeSingle(null)", "TypeError: Expected a number for number but received null"},
        {"takeTruth(true)", "\"yes\""},
        {"takeTruth(false)", "\"no\""},
        {"takeTruth('false')", "TypeError: Expected true or false for answer but received \"false\""},
        {"takeTruth(1)", "TypeError: Expected true or false for answer but received 1"},
        {"takeTruth(null)", "TypeError: Expected true or false for answer but received null"},
        {"takeTwo('a', 1)", "\"a1\""},
        {"takeTwo('a')", "TypeError: takeTwo takes 2 arguments but received 1"},
        {"takeTwo('a', 1, 2)", "TypeError: takeTwo takes 2 arguments but received 3"},
        {"takeText()", "TypeError: takeText takes 1 argument but received 0"},
        {"takeText('a', undefined)", "TypeError: takeText takes 1 argument but received 2"},
        {"giveNothing(1)", "TypeError: giveNothing takes no arguments but received 1"},
    });
}

void TestSeamArguments::takesAnyObjectThatFits_data()
{
    table({
        {"takeFlag(true)", "\"on\""},
        {"takeFlag(1)", "\"on\""},
        {"takeFlag(false)", "\"off\""},
        {"takeFlag(2)", "\"off\""},
        {"takeFlag(-1)", "\"off\""},
        {"takeFlag(1.5)", "\"off\""},
        {"takeFlag('YES')", "TypeError: Expected true, false or a number for flag but received \"YES\""},
        {"takeSender(null)", "\"taken\""},
        {"takeSender(new TextField())", "\"taken\""},
        {"takeSender('x')", "\"taken\""},
        {"takeSender(undefined)", "TypeError: Expected an object or null for argument 1 but received undefined"},
        {"takeAny('3')", "\"QString 3\""},
        {"takeAny(3)", "\"int 3\""},
        {"takeAny(3.5)", "\"double 3.5\""},
        {"takeAny(4294967296)", "\"qlonglong 4294967296\""},
        {"takeAny(null)", "\"nothing\""},
        {"takeAny([1])", "TypeError: Expected text, a number or null for thing but received a list"},
        {"takeAny([])", "TypeError: Expected text, a number or null for thing but received a list"},
        {"takeAny({b: 1})", "TypeError: Expected text, a number or null for thing but received an object"},
        {"takeAny(true)", "TypeError: Expected text, a number or null for thing but received true"},
        {"takeAny(undefined)", "TypeError: Expected text, a number or null for thing but received undefined"},
        {"takeAny(new EchoPartner())",
         "TypeError: Expected text, a number or null for thing but received an EchoPartner"},
        {"takeAny(new Date(0))", "TypeError: Expected text, a number or null for thing but received a date"},
        {"takeProperty('3')", "\"QString 3\""},
        {"takeProperty(true)", "\"bool true\""},
        {"takeProperty(new Date(1000))", "\"date 1970-01-01T00:00:01.000Z\""},
        {"takeProperty(new Uint8Array([97]).buffer)", "\"QByteArray a\""},
        {"takeProperty(null)", "\"nothing\""},
        {"takeProperty([1, 'a', [null]])", "\"[int 1, QString a, [nothing]]\""},
        {"takeProperty({b: 1, a: {c: true}})", "\"{a: {c: bool true}, b: int 1}\""},
        {"takeProperty(() => 1)",
         "TypeError: Expected text, a number, true or false, a date, data, a list, a dictionary or null for thing but "
         "received a function"},
        {"takeAny(new Map())", "TypeError: Expected text, a number or null for thing but received an object"},
    });
}

void TestSeamArguments::takesListsDataAndDatesThatFit_data()
{
    table({
        {"takeDictionary({a: new Date(1000), b: false})", "\"{a: date 1970-01-01T00:00:01.000Z, b: bool false}\""},
        {"takeDictionary(null)", "\"{}\""},
        {"takeDictionary([])", "TypeError: Expected a dictionary for dictionary but received a list"},
        {"takeDictionary({a: {b: undefined}})",
         "TypeError: Expected text, a number, true or false, a date, data, a list, a dictionary or null for "
         "dictionary.a.b but received undefined"},
        {"takeList([])", "\"[]\""},
        {"takeList(null)", "\"[]\""},
        {"takeList([true, 'x'])", "\"[bool true, QString x]\""},
        {"takeList('abc')", "TypeError: Expected a list for list but received \"abc\""},
        {"takeTexts(['a', ''])", "\"<a><>\""},
        {"takeTexts(['a', null])", "TypeError: Expected text for names[1] but received null"},
        {"takeTexts([1])", "TypeError: Expected text for names[0] but received 1"},
        {"takeTexts('a')", "TypeError: Expected a list of texts for names but received \"a\""},
        {"takeData(new Uint8Array([1, 255]).buffer)", "\"<01ff>\""},
        {"takeData(new ArrayBuffer(0))", "\"<>\""},
        {"takeData(null)", "\"nothing\""},
        {"takeData(new Uint8Array([1]))",
         "TypeError: Expected data (an ArrayBuffer) or null for data but received an object"},
        {"takeData('a')", "TypeError: Expected data (an ArrayBuffer) or null for data but received \"a\""},
        {"takeDate(new Date(Date.UTC(2026, 10, 16, 3, 52, 9)))", "\"date 2026-11-16T03:52:09.000Z\""},
        {"takeDate(null)", "\"nothing\""},
        {"takeDate(new Date(NaN))", "TypeError: Expected a date or null for date but received a date"},
        {"takeDate('2026-11-16')", "TypeError: Expected a date or null for date but received \"2026-11-16\""},
        {"takeLocation('file:///a/b%20c%25.jpg')", "\"/a/b c%.jpg\""},
        {"takeLocation('file://localhost/a')", "\"/a\""},
        {"takeLocation(null)", "\"nothing\""},
        {"takeLocation('/a/b.jpg')", "TypeError: Expected a location such as file:///a/b.jpg or null for location but "
                                     "received \"/a/b.jpg\""},
        {"takeLocation(3)",
         "TypeError: Expected a location such as file:///a/b.jpg or null for location but received 3"},
    });
}

void TestSeamArguments::takesShapesAndObjectsThatFit_data()
{
    table({
        {"takeSize({width: 1.5, height: 2})", "\"1.5 2\""},
        {"takeSize({width: 1})", "TypeError: Expected a number for size.height but received undefined"},
        {"takeSize({width: 1, height: '2'})", "TypeError: Expected a number for size.height but received \"2\""},
        {"takeSize({width: 1, height: 2, depth: 3})",
         "TypeError: Expected {width, height} for size but received another key, depth"},
        {"takeSize(null)", "TypeError: Expected {width, height} for size but received null"},
        {"takePoint({x: 1, y: 2})", "\"1 2\""},
        {"takeRectangle({x: -1, y: 2, width: 3, height: 4.5})", "\"-1 2 3 4.5\""},
        {"takeRectangle([1, 2, 3, 4])", "TypeError: Expected {x, y, width, height} for rectangle but received a list"},
        {"takeControl(new TextField({stringValue: 'x'}))", "\"<x>\""},
        {"takeControl(null)", "\"nothing\""},
        {"takeControl('x')", "TypeError: Expected a control or null for control but received \"x\""},
        {"takeControl({stringValue: 'x'})", "TypeError: Expected a control or null for control but received an object"},
        {"takePartner(new EchoPartner())", "\"0\""},
        {"takePartner(null)", "\"nothing\""},
        {"takePartner(new TextField())",
         "TypeError: Expected an EchoPartner or null for partner but received a TextField"},
        {"takeHandle(null)", "\"nothing\""},
        {"takeHandle(echo.giveHandle(false))", "\"0\""},
        {"takeHandle({})", "TypeError: Expected an image handle or null for handle but received an object"},
        {"takePicture(null)", "\"nothing\""},
        {"takePicture(echo.giveHandle(false))",
         "TypeError: Expected a Picture or null for picture but received an object"},
        {"takePicture(new TextField())", "TypeError: Expected a Picture or null for picture but received a TextField"},
    });
}

void TestSeamArguments::refusesAListThatHoldsItself()
{
    const QString value = m_run.valueOf(QStringLiteral("(() => { const a = []; a.push(a); echo.takeList(a); })()"));
    QVERIFY2(value.startsWith(QStringLiteral("TypeError: list[0]")), qPrintable(value));
    QVERIFY2(value.endsWith(QStringLiteral("is nested too deeply")), qPrintable(value));
}

void TestSeamArguments::emptiesTheScriptsOwnList()
{
    QVERIFY2(m_run.run(QStringLiteral("const list = [1, 2, 3], same = list; echo.emptyInPlace(list);"
                                      "report([list.length, same === list]); echo.emptyInPlace(null);"
                                      "reportError(() => { echo.emptyInPlace({}); });")),
             qPrintable(m_run.error));
    const QStringList expected = {QStringLiteral("[0,true]"),
                                  QStringLiteral("TypeError: Expected a list or null for list but received an object")};
    QCOMPARE(m_run.reports, expected);
}

void TestSeamArguments::carriesManyArguments()
{
    QCOMPARE(m_run.valueOf(QStringLiteral("echo.takeMany(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12)")),
             QStringLiteral("1266"));
}

QUORLIN_TEST(TestSeamArguments)
#include "tst_seam_arguments.moc"
