#include "tests/seam/support/ScriptRun.h"

#include "tests/support/test_pictures.h"
#include "tests/support/test_program.h"

#include <QTest>

/** Printing as scripts have it: into a PDF file, by a panel that nobody looks at. */
class TestSeamPrinting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsIntoTheFileOfThePanel_data();
    void printsIntoTheFileOfThePanel();
    void printsNothingWhenCancelled();
};

void TestSeamPrinting::printsIntoTheFileOfThePanel_data()
{
    QTest::addColumn<QString>("argument");
    QTest::newRow("a picture") << "'%1'";
    QTest::newRow("missing") << "'/nowhere/a.png'";
    QTest::newRow("nothing") << "null";
}

void TestSeamPrinting::printsIntoTheFileOfThePanel()
{
    QFETCH(QString, argument);
    ScriptRun run;
    QVERIFY(pictures::plain(40, 30, Qt::red).save(run.pathOf(QStringLiteral("a.png"))));
    const QString out = run.pathOf(QStringLiteral("out.pdf"));
    QVERIFY2(run.run(QStringLiteral("import { cPrint } from 'quorlin'; panels.accept(['%1']); "
                                    "report(new cPrint().printService(%2)); "
                                    "report(panels.shown.map(panel => panel.kind)); report(Object.keys(new cPrint()));")
                         .arg(out, argument.replace(QStringLiteral("%1"), run.pathOf(QStringLiteral("a.png"))))),
             qPrintable(run.error));
    QCOMPARE(run.reports.join(u' '), QStringLiteral("null [\"print\"] []"));
    QVERIFY(pictures::bytesOf(out).startsWith("%PDF-"));
    QVERIFY(pictures::bytesOf(out).trimmed().endsWith("%%EOF"));
}

void TestSeamPrinting::printsNothingWhenCancelled()
{
    ScriptRun run;
    const QString out = run.pathOf(QStringLiteral("out.pdf"));
    QVERIFY(
        run.run(QStringLiteral("import { cPrint } from 'quorlin'; const p = new cPrint(); panels.cancel(); "
                               "p.printService(null); p.printService(null); panels.accept([]); p.printService(null); "
                               "report(panels.shown.length);")));
    QCOMPARE(run.reports.join(u' '), QStringLiteral("3"));
    QVERIFY(!QFile::exists(out));
}

QUORLIN_GUI_TEST(TestSeamPrinting)
#include "tst_seam_printing.moc"
