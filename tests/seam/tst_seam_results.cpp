#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_program.h"

#include <QTest>

/** What scripts get for each kind of result and field. */
class TestSeamResults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesResultsAsPlainValues_data();
    void givesResultsAsPlainValues();

private:
    ScriptRun m_run;
};

void TestSeamResults::givesResultsAsPlainValues_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("value");
    using Row = std::pair<const char *, const char *>;
    for (const auto &[expression, value] : std::initializer_list<Row>{
             {"echo.giveNothing()", "null"},
             {"echo.giveText('a')", "\"a\""},
             {"echo.giveText('')", "\"\""},
             {"echo.giveText(null)", "null"},
             {"echo.giveAny(null)", "null"},
             {"echo.giveAny('x')", "\"x\""},
             {"echo.giveAny(4294967296)", "4294967296"},
             {"echo.giveAny([1, [null, 'a'], {b: 2.5}])", "[1,[null,\"a\"],{\"b\":2.5}]"},
             {"Array.isArray(echo.giveList([1, 2]))", "true"},
             {"echo.giveTexts(['a', '']).concat(['b'])", "[\"a\",\"\",\"b\"]"},
             {"echo.giveTexts([])", "[]"},
             {"Object.getPrototypeOf(echo.giveDictionary({a: 1})) === Object.prototype", "true"},
             {"echo.giveDictionary({b: {c: true}, a: 'x'})", "{\"a\":\"x\",\"b\":{\"c\":true}}"},
             {"echo.giveDictionary({d: new Date(1500)}).d.getTime()", "1500"},
             {"echo.giveDictionary({d: new ArrayBuffer(3)}).d.byteLength", "3"},
             {"echo.giveData(new Uint8Array([1, 2, 255]).buffer) instanceof ArrayBuffer", "true"},
             {"Array.prototype.slice.call(new Uint8Array(echo.giveData(new Uint8Array([1, 255]).buffer)))", "[1,255]"},
             {"echo.giveData(new ArrayBuffer(0)).byteLength", "0"},
             {"echo.giveData(null)", "null"},
             {"echo.giveDate(new Date(1500)) instanceof Date", "true"},
             {"echo.giveDate(new Date(1500)).getTime()", "1500"},
             {"echo.giveDate(null)", "null"},
             {"echo.giveLocationOf('/a/b c%#ü.jpg')", "\"file:///a/b%20c%25%23%C3%BC.jpg\""},
             {"echo.giveLocation('file:///a/b%20c.jpg')", "\"file:///a/b%20c.jpg\""},
             {"echo.giveLocation(null)", "null"},
             {"echo.giveSize({width: 1.5, height: 2})", "{\"width\":1.5,\"height\":2}"},
             {"echo.givePoint({x: -1, y: 2})", "{\"x\":-1,\"y\":2}"},
             {"echo.giveRectangle({x: 1, y: 2, width: 3, height: 4})", "{\"x\":1,\"y\":2,\"width\":3,\"height\":4}"},
             {"echo.giveUnsigned(4294967295)", "4294967295"},
             {"echo.giveSingle(0.5)", "0.5"},
             {"echo.giveTruth(false)", "false"},
             {"echo.giveControl(null)", "null"},
             {"echo.giveHandle(true)", "null"},
             {"typeof echo.giveHandle(false)", "\"object\""},
             {"echo.itself() === echo", "true"},
             {"echo.newPartner() instanceof EchoPartner", "true"},
             {"echo.newPartner().number", "0"},
             // Fields that nobody set.
             {"[echo.outlet, echo.partner, echo.text, echo.any]", "[null,null,null,null]"},
             {"[echo.whole, echo.number, echo.dictionary, echo.size]", "[0,0,{},{\"width\":0,\"height\":0}]"},
             {"(() => { const p = new EchoPartner(); echo.partner = p; return echo.partner === p; })()", "true"},
             {"(() => { const f = new TextField(); echo.outlet = f; return echo.outlet === f; })()", "true"},
             {"(() => { const f = new TextField(); echo.outlet = f; return echo.giveControl(f) instanceof TextField; "
              "})()",
              "true"},
             {"(() => { echo.any = [1, 'a']; return echo.any; })()", "[1,\"a\"]"},
         })
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(value);
}

void TestSeamResults::givesResultsAsPlainValues()
{
    QFETCH(QString, expression);
    QFETCH(QString, value);
    QCOMPARE(m_run.valueOf(expression), value);
}

QUORLIN_TEST(TestSeamResults)
#include "tst_seam_results.moc"
