#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_program.h"

#include <QFile>
#include <QTest>

#include <sys/stat.h>

namespace {

/** A script with a service f, and plist(), which makes a file with one key and reads that. */
QString scriptWith(const QString &expression)
{
    return QStringLiteral("((f) => { const plist = value => {"
                          " f.hWriteTextFile('FOLDER/a.plist', '<plist version=\"1.0\"><dict><key>key</key>' + value +"
                          " '</dict></plist>'); return f.readPlist('FOLDER/a.plist', 'key'); };"
                          " return (%1); })(new cNSFileHandling())")
        .replace(QStringLiteral("%1"), expression);
}

} // namespace

/** What scripts get from the operations on files and folders. */
class TestSeamFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersWhatItIsAsked_data();
    void readsAndWritesFiles_data();
    void readsAndWritesFiles() { answersWhatItIsAsked(); }
    void waitsForNoPipe_data();
    void waitsForNoPipe() { answersWhatItIsAsked(); }
    void changesPropertyLists_data();
    void changesPropertyLists() { readsAndWritesFiles(); }
    void convertsPictures_data();
    void convertsPictures() { answersWhatItIsAsked(); }
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

void TestSeamFiles::readsAndWritesFiles_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    const auto row = [](const char *expression, const char *outcome) {
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
    };
    row("f.hWritHTMLFile('FOLDER/a.txt', 'é\\r\\nb\\n')", "null");
    row("(f.hWritHTMLFile('FOLDER/a.txt', 'é\\r\\nb\\n'), f.hReadTextFileLbyL('FOLDER/a.txt'))",
        "[\"é\",\"\",\"b\",\"\"]");
    row("(f.hWriteTextFile('FOLDER/new.txt', null), f.hReadTextFileLbyL('FOLDER/new.txt'))", "[\"\"]");
    row("f.hReadTextFileLbyL('FOLDER/missing')", "null");
    row("(f.writeNSDataToFile(new Uint8Array([233]).buffer, 'FOLDER/d'), f.hReadTextFileLbyL('FOLDER/d'))", "null");
    row("(f.writeNSDataToFile(new Uint8Array([0, 255]).buffer, 'FOLDER/d'), "
        "new Uint8Array(f.readNSDataFromFile('FOLDER/d')).join())",
        "\"0,255\"");
    row("(f.writeNSDataToFile(new ArrayBuffer(0), 'FOLDER/a.txt'), f.readNSDataFromFile('FOLDER/a.txt').byteLength)",
        "0");
    row("(f.writeNSDataToFile(null, 'FOLDER/a.txt'), f.readNSDataFromFile('FOLDER/a.txt').byteLength)", "5");
    row("f.readNSDataFromFile('FOLDER/missing')", "null");
}

void TestSeamFiles::changesPropertyLists_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    const auto row = [](const char *expression, const char *outcome) {
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
    };
    row("(f.writeToPlist('FOLDER/none.plist', 'a', 1), f.hCheckIfFileExist('FOLDER/none.plist'))", "\"NO\"");
    row("(f.writeToPlist('FOLDER/a.txt', 'a', 1), f.hReadTextFileLbyL('FOLDER/a.txt'))", "[\"hello\"]");
    row("(f.hWriteTextFile('FOLDER/l.txt', 'x'), f.hDeleteFiles(['file://localhostFOLDER/l.txt', "
        "'file://other/FOLDER/a.txt']), "
        "[f.hCheckIfFileExist('FOLDER/l.txt'), f.hCheckIfFileExist('FOLDER/a.txt')])",
        "[\"NO\",\"OK\"]");
    row("f.readPlist('FOLDER/a.txt', 'a')", "null");
    row("f.readPlist('FOLDER/missing', 'a')", "null");
    row("[plist('<true/>'), f.readPlist('FOLDER/a.plist', 'other')]", "[true,null]");
    row("[plist('<integer>-5</integer>'), plist('<integer>1099511627776</integer>')]", "[-5,1099511627776]");
    row("plist('<integer>18446744073709551615</integer>')", "18446744073709552000");
    row("[plist('<array><real>1.5</real><integer>3</integer></array>'), plist('<dict/>')]", "[[1.5,3],{}]");
    row("plist('<date>2026-11-21T08:30:05Z</date>').getTime()", "1795249805000");
    row("plist('<data>AP8=</data>').byteLength", "2");
    row("(plist('<true/>'), ['x', 7, 2.5, [1, 'a', true], {k: new Date(1000)}, ''].map(v => {"
        " f.writeToPlist('FOLDER/a.plist', 'new', v); return f.readPlist('FOLDER/a.plist', 'new'); })"
        ".concat(f.readPlist('FOLDER/a.plist', 'key')))",
        "[\"x\",7,2.5,[1,\"a\",true],{\"k\":\"1970-01-01T00:00:01.000Z\"},\"\",true]");
    row("(plist('<true/>'), f.writeToPlist('FOLDER/a.plist', 'key', null), f.readPlist('FOLDER/a.plist', 'key'))",
        "null");
    row("(plist('<true/>'), [true, false, new Date(1000), 'a\\r\\nb\\rc', {}, []].map(v => {"
        " f.writeToPlist('FOLDER/a.plist', 'key', v); return f.readPlist('FOLDER/a.plist', 'key'); }))",
        "[true,false,\"1970-01-01T00:00:01.000Z\",\"a\\r\\nb\\rc\",{},[]]");
    row("(plist('<true/>'), f.writeToPlist('FOLDER/a.plist', 'key', new Uint8Array([1, 255]).buffer), "
        "new Uint8Array(f.readPlist('FOLDER/a.plist', 'key')).join())",
        "\"1,255\"");
    row("(plist('<true/>'), f.writeToPlist('FOLDER/a.plist', 'key', 'a\\rb'), "
        "f.hReadTextFileLbyL('FOLDER/a.plist').filter(l => l.includes('a&#13;b')).length)",
        "1");
    row("(plist('<true/>'), f.writeToPlist('FOLDER/a.plist', 'key', Array(20000).fill({a: [1, 'x']})), "
        "f.readPlist('FOLDER/a.plist', 'key').length)",
        "20000");
    row("f.writeToPlist('FOLDER/a.plist', 'key', () => 1)",
        "TypeError: Expected text, a number, true or false, a date, data, a list, a dictionary or null for value but "
        "received a function");
    row("(() => { let a = []; for (let i = 0; i < 60; ++i) a = [a, a]; f.writeToPlist('FOLDER/a.plist', 'key', a); "
        "})()",
        "TypeError: value holds more than 3000000 values");
    row("(plist('<true/>'), f.writeToPlist('FOLDER/a.plist', 'key', JSON.parse('{\"__proto__\": {\"a\": 1}, \"b\": "
        "2}')), "
        "Object.keys(f.readPlist('FOLDER/a.plist', 'key')).concat(f.readPlist('FOLDER/a.plist', 'key').a === "
        "undefined))",
        "[\"__proto__\",\"b\",true]");
    row("(plist('<true/>'), f.writeToPlist('FOLDER/a.plist', 'key', [null]), f.readPlist('FOLDER/a.plist', 'key'))",
        "true");
}

/** FOLDER/pipe.jpg is a named pipe without a writer: opening it like a file would block for ever. */
void TestSeamFiles::waitsForNoPipe_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    for (const char *expression :
         {"f.hReadTextFileLbyL('FOLDER/pipe.jpg')", "f.readPlist('FOLDER/pipe.jpg', 'key')",
          "f.writeToPlist('FOLDER/pipe.jpg', 'key', 1)", "f.readNSDataFromFile('FOLDER/pipe.jpg')",
          "Picture.open('FOLDER/pipe.jpg')", "new ZtImageHandling().hStringToCGImageRef('FOLDER/pipe.jpg')",
          "new ZtImageHandling().imageFromCGImageRef(new ZtImageHandling().hStringToCGImageRef('FOLDER/pipe.jpg'))",
          "f.hReadTextFileLbyL('/dev/zero')", "f.readNSDataFromFile('/dev/tty')", "Picture.open('/dev/zero')"})
        QTest::newRow(expression) << QString::fromUtf8(expression) << QStringLiteral("null");
    const auto row = [](const char *expression, const char *outcome) {
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
    };
    row("(f.hWriteTextFile('FOLDER/pipe.jpg', 'x'), f.writeNSDataToFile(new ArrayBuffer(3), 'FOLDER/pipe.jpg'),"
        " f.readNSDataFromFile('FOLDER/pipe.jpg'))",
        "null");
    row("Picture.open('PICTURE').save('FOLDER/pipe.jpg')", "false");
    row("(f.hWriteTextFile('FOLDER/a.txt\\u0000.jpg', 'x'), f.hReadTextFileLbyL('FOLDER/a.txt'))", "[\"hello\"]");
    row("f.hReadTextFileLbyL('FOLDER/a.txt\\u0000.jpg')", "null");
    row("Picture.open('PICTURE\\u0000.txt')", "null");
    row("Picture.open('PICTURE').save('FOLDER/a.txt\\u0000.png')", "false");
    row("cNSFileHandling.hCopyFileTo('FOLDER/a.txt\\u0000b', 'FOLDER/b.txt')", "\"Failed\"");
    row("cNSFileHandling.hMoveFileTo('FOLDER/a.txt\\u0000b', 'FOLDER/b.txt')", "\"Failed\"");
    row("cNSFileHandling.hTrashFile('FOLDER/a.txt\\u0000b')", "\"Failed\"");
    row("f.hCheckIfFileExist('FOLDER/a.txt\\u0000b')", "\"NO\"");
    row("f.getFileSize('FOLDER/a.txt\\u0000b')", "null");
    row("(f.hDeleteFiles(['file://FOLDER/a.txt%00b']), f.hCheckIfFileExist('FOLDER/a.txt'))", "\"OK\"");
}

void TestSeamFiles::convertsPictures_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    const auto row = [](const char *expression, const char *outcome) {
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
    };
    row("f.hConvertFileType('FOLDER/a.b.txt', 'jpg', '1', '/x/y z.jpg')", "[\"file:///x/y%20z.jpg\",\"jpg\",\"a.b\"]");
    row("f.hConvertFileType('FOLDER/a.txt', 'png', '', 'FOLDER/a.png')[1]", "\"png\"");
    row("(f.hConvertFileType('FOLDER/a.txt', 'png', '', 'FOLDER/a.png'), f.hCheckIfFileExist('FOLDER/a.png'))",
        "\"NO\"");
    row("(f.hConvertFileType('FOLDER/a.txt', 'pdf', '', '/x/b.pdf'), f.saveURL)", "\"file:///x/b.pdf\"");
    row("f.hConvertFileType(null, null, null, null)", "[null,null,null]");
    row("f.hConvertFileType('a', 'png', 5, 'b')", "TypeError: Expected text or null for qualityCode but received 5");
    row("f.hConvertFileType('a', 'png', '5')", "TypeError: hConvertFileType takes 4 arguments but received 3");
    row("['pdf', 'png', 'tiff', 'bmp', 'gif', 'jpeg', 'jp2'].map(type => {"
        " f.hConvertFileType('PICTURE', type, '5', 'FOLDER/made.' + type);"
        " return f.hCheckIfFileExist('FOLDER/made.' + type); }).join()",
        "\"OK,OK,OK,OK,OK,OK,OK\"");
}

void TestSeamFiles::answersWhatItIsAsked()
{
    QFETCH(QString, expression);
    QFETCH(QString, outcome);
    ScriptRun run;
    run.write(QStringLiteral("a.txt"), QStringLiteral("hello"));
    QString folder = run.pathOf(QStringLiteral("a.txt"));
    folder.chop(6);
    QVERIFY(::mkfifo(qPrintable(folder + QStringLiteral("/pipe.jpg")), 0600) == 0);
    const QString scriptText =
        scriptWith(expression)
            .replace(QStringLiteral("FOLDER"), folder)
            .replace(QStringLiteral("PICTURE"), QStringLiteral(QUORLIN_TEST_DATA "/jpeg/grey.jpg"));
    QCOMPARE(run.valueOf(scriptText), outcome);
}

QUORLIN_TEST(TestSeamFiles)
#include "tst_seam_files.moc"
