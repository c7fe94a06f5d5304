#include "app/seam/seam.h"
#include "platform/controls/controls.h"
#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_program.h"

#include <QTest>

/** The stand-ins as scripts make them and as services read and write them. */
class TestSeamControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmptyAndTakesItsProperties_data();
    void startsEmptyAndTakesItsProperties();
    void isReadAndWrittenByServices();

private:
    ScriptRun m_run;
};

void TestSeamControls::startsEmptyAndTakesItsProperties_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    using Row = std::pair<const char *, const char *>;
    for (const auto &[expression, outcome] : std::initializer_list<Row>{
             {"new TextField()", "{\"stringValue\":\"\",\"enabled\":true}"},
             {"new CheckBox()", "{\"state\":0,\"enabled\":true}"},
             {"new ColorWell()", "{\"color\":\"#000000\",\"enabled\":true}"},
             {"new SegmentedControl()", "{\"selectedSegment\":0}"},
             {"new TabView()", "{\"selectedLabel\":\"\"}"},
             {"new PopUpButton()", "{\"titles\":[],\"selectedTitle\":\"\",\"enabled\":true}"},
             {"new TextView()", "{\"text\":\"\"}"},
             {"new ProgressIndicator()",
              "{\"value\":0,\"maximum\":100,\"visible\":true,\"indeterminate\":false,\"history\":[]}"},
             {"new ArrayController()", "{\"rows\":[]}"},
             {"new TableView()", "{\"reloads\":0}"},
             {"new TreeController()", "{\"content\":[]}"},
             {"new Window()", "{\"sheet\":null}"},
             {"new TextField({stringValue: '25', enabled: false})", "{\"stringValue\":\"25\",\"enabled\":false}"},
             {"new PopUpButton({titles: ['a', 'b'], selectedTitle: 'b'}).titles", "[\"a\",\"b\"]"},
             {"new ColorWell({color: '#A0b1C2'}).color", "\"#A0b1C2\""},
             {"new ArrayController({rows: [{LogStatus: 'OK', n: 1}]}).rows", "[{\"LogStatus\":\"OK\",\"n\":1}]"},
             {"(() => { const w = new Window(), s = new Window({sheet: w}); return s.sheet === w; })()", "true"},
             {"(() => { const w = new Window(), a = new Window({sheet: w}), b = new Window(); b.sheet = a.sheet; "
              "a.sheet = null; return [b.sheet === w, a.sheet]; })()",
              "[true,null]"},
             {"(() => { const p = new ProgressIndicator({value: 1}); p.value = 2.5; p.value = 2.5; return p.history; "
              "})()",
              "[1,2.5,2.5]"},
             {"new TextField({text: 'x'})", "TypeError: TextField has no field text that can be set"},
             {"new TextField({stringValue: 25})", "TypeError: Expected text or null for stringValue but received 25"},
             {"new TextField('25')",
              "TypeError: Expected a dictionary of properties for new TextField but received \"25\""},
             {"new TextField(null)",
              "TypeError: Expected a dictionary of properties for new TextField but received null"},
             {"new TextField({}, {})", "TypeError: new TextField takes 1 argument but received 2"},
             {"new CheckBox({state: true})", "TypeError: Expected a whole number for state but received true"},
             {"new ColorWell({color: 'red'})", "TypeError: Expected #rrggbb for color but received \"red\""},
             {"new ColorWell({color: '#12345g'})", "TypeError: Expected #rrggbb for color but received \"#12345g\""},
             {"new ProgressIndicator({history: []})", "TypeError: history of ProgressIndicator is read only"},
             {"new TextField().value", "TypeError: TextField has no operation or field value"},
         })
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
}

void TestSeamControls::startsEmptyAndTakesItsProperties()
{
    QFETCH(QString, expression);
    QFETCH(QString, outcome);
    QCOMPARE(m_run.valueOf(expression), outcome);
}

void TestSeamControls::isReadAndWrittenByServices()
{
    QVERIFY2(m_run.runFile(
                 QStringLiteral("controls.js"),
                 QStringLiteral("import { TextField, ArrayController, TableView } from 'quorlin/controls';"
                                "export const field = new TextField({stringValue: '12px'});"
                                "export const rows = new ArrayController(); export const table = new TableView();"
                                "export const read = () => [field.stringValue, rows.rows.length, table.reloads];")),
             qPrintable(m_run.error));
    const auto module = m_run.engine().importFile(m_run.pathOf(QStringLiteral("controls.js")));
    QVERIFY(module);
    const auto control = [&](const char *name) {
        return m_run.engine().seam().objectOf(module->property(QString::fromLatin1(name)));
    };
    QCOMPARE(platform::integerValueOf(control("field")), 12);
    platform::setTextOf(control("field"), QStringLiteral("written"));
    platform::addRowTo(control("rows"), {{QStringLiteral("LogStatus"), QStringLiteral("OK")}});
    platform::reloadTable(control("table"));
    const auto read = m_run.engine().call(module->property(QStringLiteral("read")), {});
    QVERIFY(read);
    const QVariantList expected = {QStringLiteral("written"), 1, 1};
    QCOMPARE(read->toVariant().toList(), expected);
}

QUORLIN_TEST(TestSeamControls)
#include "tst_seam_controls.moc"
