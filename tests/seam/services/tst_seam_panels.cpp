#include "platform/controls/panels.h"
#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_program.h"

#include <QTest>

namespace {

/** Stands for the dialogs of the application. */
class CountingProvider : public platform::PanelProvider
{
public:
    explicit CountingProvider(int &count) : m_count(count) {}
    platform::PanelAnswer run(const platform::PanelRequest &) override
    {
        ++m_count;
        return {true, {QStringLiteral("/chosen/by/hand")}, {}};
    }

private:
    int &m_count;
};

} // namespace

/** Panels that scripts answer before they are shown. */
class TestSeamPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cancelsWhatNobodyAnswers();
    void answersInTheOrderOfTheQueue();
    void saysWhatWasShown();
    void callsAFunctionWhileThePanelIsUp();
    void reportsAnErrorWhileThePanelIsUp();
    void refusesWrongAnswers_data();
    void refusesWrongAnswers();
    void fallsThroughToTheDialogsThatWereThereBefore();
};

void TestSeamPanels::cancelsWhatNobodyAnswers()
{
    ScriptRun run;
    QVERIFY(!platform::runPanel({}).accepted);
}

void TestSeamPanels::answersInTheOrderOfTheQueue()
{
    ScriptRun run;
    QVERIFY2(
        run.run(QStringLiteral("panels.accept(['/a b', '/c'], {tags: ['red']}); panels.cancel(); panels.accept([]);")),
        qPrintable(run.error));
    const platform::PanelAnswer first = platform::runPanel({});
    QVERIFY(first.accepted);
    QCOMPARE(first.paths, (QStringList{QStringLiteral("/a b"), QStringLiteral("/c")}));
    QCOMPARE(first.tags, QStringList{QStringLiteral("red")});
    QVERIFY(!platform::runPanel({}).accepted);
    const platform::PanelAnswer third = platform::runPanel({});
    QVERIFY(third.accepted);
    QVERIFY(third.paths.isEmpty());
    QVERIFY(!platform::runPanel({}).accepted);
}

void TestSeamPanels::saysWhatWasShown()
{
    ScriptRun run;
    platform::PanelRequest request;
    request.kind = platform::PanelKind::Save;
    request.choosesFiles = false;
    request.createsFolders = true;
    request.types = QStringList{QStringLiteral("jpg"), QStringLiteral("png")};
    request.allowsOtherTypes = true;
    request.message = QStringLiteral("Where to?");
    request.name = QStringLiteral("a.jpg");
    request.folder = QStringLiteral("/b");
    request.showsTagField = true;
    platform::runPanel({});
    platform::runPanel(request);
    platform::PanelRequest print;
    print.kind = platform::PanelKind::Print;
    platform::runPanel(print);
    QVERIFY2(run.run(QStringLiteral(
                 "report(Object.keys(panels.shown[0]).sort().join()); for (const s of panels.shown) {"
                 " report([s.kind, s.files, s.folders, s.multiple, s.createFolders, s.types, s.otherTypes,"
                 " s.message, s.name, s.folder, s.tagField]); }")),
             qPrintable(run.error));
    const QStringList expected = {
        QStringLiteral("\"createFolders,files,folder,folders,kind,message,multiple,name,otherTypes,tagField,types\""),
        QStringLiteral("[\"open\",true,false,false,false,null,false,null,null,null,false]"),
        QStringLiteral("[\"save\",false,false,false,true,[\"jpg\",\"png\"],true,\"Where to?\",\"a.jpg\",\"/b\",true]"),
        QStringLiteral("[\"print\",true,false,false,false,null,false,null,null,null,false]"),
    };
    QCOMPARE(run.reports, expected);
}

void TestSeamPanels::callsAFunctionWhileThePanelIsUp()
{
    ScriptRun run;
    QVERIFY2(run.run(QStringLiteral("panels.accept(['/a'], {whileOpen: () => { report(panels.shown.length); }});")),
             qPrintable(run.error));
    QVERIFY(run.reports.isEmpty());
    QVERIFY(platform::runPanel({}).accepted);
    QVERIFY2(run.run(QString()), qPrintable(run.error));
    QCOMPARE(run.reports, QStringList{QStringLiteral("1")});
}

void TestSeamPanels::reportsAnErrorWhileThePanelIsUp()
{
    ScriptRun run;
    QVERIFY2(
        run.run(QStringLiteral("panels.accept(['/a'], {whileOpen: () => {\n  throw new Error('meanwhile');\n}});")),
        qPrintable(run.error));
    QVERIFY(platform::runPanel({}).accepted);
    QCOMPARE(run.uncaught, QStringList{run.lastFile + QStringLiteral(":3: Error: meanwhile")});
}

void TestSeamPanels::refusesWrongAnswers_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    using Row = std::pair<const char *, const char *>;
    for (const auto &[expression, outcome] : std::initializer_list<Row>{
             {"panels.accept()", "TypeError: accept takes 1 or 2 arguments but received 0"},
             {"panels.accept('/a')", "TypeError: Expected a list of texts for paths but received \"/a\""},
             {"panels.accept([1])", "TypeError: Expected text for paths[0] but received 1"},
             {"panels.accept(['/a'], {tag: []})", "TypeError: Expected tags (a list of texts) or whileOpen (a "
                                                  "function) for options but received tag: a list"},
             {"panels.accept(['/a'], {whileOpen: 1})", "TypeError: Expected tags (a list of texts) or whileOpen (a "
                                                       "function) for options but received whileOpen: 1"},
             {"panels.accept(['/a'], null)", "TypeError: Expected a dictionary for options but received null"},
             {"panels.cancel(1)", "TypeError: cancel takes no arguments but received 1"},
         })
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
}

void TestSeamPanels::refusesWrongAnswers()
{
    ScriptRun run;
    QFETCH(QString, expression);
    QFETCH(QString, outcome);
    QCOMPARE(run.valueOf(expression), outcome);
    QVERIFY(!platform::runPanel({}).accepted); // nothing of it was queued
}

void TestSeamPanels::fallsThroughToTheDialogsThatWereThereBefore()
{
    int count = 0;
    platform::setPanelProvider(std::make_unique<CountingProvider>(count));
    {
        ScriptRun run;
        QVERIFY2(run.run(QStringLiteral("panels.cancel();")), qPrintable(run.error));
        QVERIFY(!platform::runPanel({}).accepted);
        QCOMPARE(count, 0);
        QCOMPARE(platform::runPanel({}).paths, QStringList{QStringLiteral("/chosen/by/hand")});
    }
    QCOMPARE(platform::runPanel({}).paths, QStringList{QStringLiteral("/chosen/by/hand")});
    QCOMPARE(count, 2);
    platform::setPanelProvider({});
}

QUORLIN_TEST(TestSeamPanels)
#include "tst_seam_panels.moc"
