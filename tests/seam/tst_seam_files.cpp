#include "ScriptRun.h"

#include <QFile>
#include <QTest>

/** What scripts get from the operations on files and folders. */
class TestSeamFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersWhatItIsAsked_data();
    void answersWhatItIsAsked();
};

void TestSeamFiles::answersWhatItIsAsked_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    const auto row = [](const char *expression, const char *outcome) {
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
    };
    row("f.hCreateDirectory('FOLDER/x/y')", "\"OK\"");
    row("f.hCreateDirectory('FOLDER/a.txt')", "\"EXISTS\"");
    row("f.hCreateDirectory(null)", "\"FAILED\"");
    row("cNSFileHandling.hCopyFileTo('FOLDER/a.txt', 'FOLDER/new/b.txt')", "\"OK\"");
    row("cNSFileHandling.hMoveFileTo('FOLDER/a.txt', 'FOLDER/a.txt')", "\"Failed\"");
    row("cNSFileHandling.hAliasFileTo('FOLDER/a.txt', 'FOLDER/c.txt')", "\"OK\"");
    row("cNSFileHandling.hTrashFile('FOLDER/missing')", "\"Failed\"");
    row("cNSFileHandling.hGetFileType('FOLDER/a.txt')", "\"public.plain-text\"");
    row("cNSFileHandling.hGetFileType('FOLDER/missing')", "null");
    row("f.hCheckIfFileExist('FOLDER')", "\"OK\"");
    row("f.hCheckIfFileExist(null)", "\"NO\"");
    row("f.getFileSize('FOLDER/a.txt')", "\"5 bytes\"");
    row("f.getFileSize('FOLDER/missing')", "null");
    row("f.hRenameFile('FOLDER/a.txt', 'b.txt')", "null");
    row("(f.hRenameFile('FOLDER/a.txt', 'b.txt'), f.hCheckIfFileExist('FOLDER/b.txt'))", "\"OK\"");
    row("(f.hRenameFile('FOLDER/a.txt', 'b c.txt'), f.hCheckIfFileExist('FOLDER/a.txt'))", "\"OK\"");
    row("f.hDeleteFiles([])", "\"OK\"");
    row("f.hDeleteFiles(null)", "\"OK\"");
    row("(f.hDeleteFiles(['file://FOLDER/a.txt']), f.hCheckIfFileExist('FOLDER/a.txt'))", "\"NO\"");
    row("f.hDeleteFiles(['a.txt'])",
        "TypeError: Expected a location such as file:///a/b.jpg for locations[0] but received \"a.txt\"");
    row("f.hShowInFinder(null)", "null");
    row("f.hGetModificationDateFile('FOLDER/a.txt', 3)", "\"(null)\"");
    row("/^\\d+-[A-Z][a-z]+-\\d{4}T\\d\\d-\\d\\d-\\d\\d$/.test(f.hGetCreationDateFile('FOLDER/a.txt', '1'))", "true");
    row("f.hGetModificationDateFile('FOLDER/a.txt', 2) === f.dateString", "true");
    row("f.hAddIconToFile('FOLDER', null)", "null");
    row("f.hAddIconToFile('FOLDER', 'icon.png')",
        "TypeError: Expected a Picture or null for icon but received \"icon.png\"");
    row("[f.dateString, f.saveURL, f.myFileSizeStr, f.tfDestinationFolder]", "[null,null,null,null]");
    row("cToolBox.hStoreFiles('FOLDER/a.txt', 'b.txt')", "\"successfull\"");
    row("cToolBox.hStoreFiles2('FOLDER/a.txt', 'FOLDER/a.txt')", "\"Failed\"");
    row("cToolBox.hStoreTempFile('FOLDER/missing', 'b.txt')", "\"Failed\"");
    row("cToolBox.hGetTempDir() === cToolBox.hGetHomeDir() + '/Temp'", "true");
    row("new cToolBox().hChooseDirectory()", "null");
    row("(panels.accept(['FOLDER']), new cToolBox().hChooseDirectory() === 'FOLDER')", "true");
    row("cToolBox.hGetFilesInDir('FOLDER/missing')", "null");
    row("cToolBox.hGetFilesInDir('FOLDER').includes('file://FOLDER/a.txt')", "true");
    row("f.hDeleteFiles(cToolBox.hGetFilesInDir('FOLDER'))", "\"OK\"");
    row("cToolBox.hNSStrToUrl('a/b c')", "\"a%2Fb%20c\"");
    row("cToolBox.hNSStrToUrl(null)", "null");
    row("cToolBox.hGetMacOSVersion()", "\"109+\"");
    row("cToolBox.hShowURL('no location')", "null");
    row("cToolBox.hCallShellScript('FOLDER/a.txt', 'FOLDER/b.pdf')", "null");
    row("cNSFileHandling.hMoveFileTo('FOLDER/a.txt')", "TypeError: hMoveFileTo takes 2 arguments but received 1");
    row("cNSFileHandling.hTrashFile(5)", "TypeError: Expected text or null for path but received 5");
}

void TestSeamFiles::answersWhatItIsAsked()
{
    QFETCH(QString, expression);
    QFETCH(QString, outcome);
    ScriptRun run;
    run.write(QStringLiteral("a.txt"), QStringLiteral("hello"));
    QString folder = run.pathOf(QStringLiteral("a.txt"));
    folder.chop(6);
    expression.replace(QStringLiteral("FOLDER"), folder);
    QCOMPARE(
        run.valueOf(QStringLiteral("((f) => (%1))(new cNSFileHandling())").replace(QStringLiteral("%1"), expression)),
        outcome);
}

QTEST_GUILESS_MAIN(TestSeamFiles)
#include "tst_seam_files.moc"
