#include "tests/seam/support/ScriptRun.h"

#include "platform/desktop/tags.h"
#include "platform/desktop/user_defaults.h"
#include "tests/support/test_program.h"

#include <QFileInfo>
#include <QImage>
#include <QStandardPaths>
#include <QTest>

namespace {

/**
 * A script with a box whose outlets are menus, a picture P and a folder FOLDER; save(kind, more) answers its panel with a file
 * made.TYPE there, shown is the last panel.
 */
QString scriptWith(const QString &expression)
{
    return QStringLiteral(
               "((box, types, quality, otherTypes, otherQuality) => {"
               " box.pubFileType = types; box.pubJPEGcompression = quality;"
               " box.pubSaveAsFileType = otherTypes; box.pubSaveAsJPEGcompression = otherQuality;"
               " box.wwFormats = new Window({});"
               " const there = name => new cNSFileHandling().hCheckIfFileExist('FOLDER/' + name) === 'OK';"
               " const choose = type => { types.selectedTitle = type; box.hChooseFileType(types); };"
               " const save = (name, options) => { options ? panels.accept(['FOLDER/' + name], options) :"
               " panels.accept(['FOLDER/' + name]); return box.hSaveDialogFile('FOLDER/a.b.png'); };"
               " const shown = () => panels.shown[panels.shown.length - 1];"
               " return (%1); })(new cToolBox(), new PopUpButton({titles: ['pdf', 'png', 'jpeg'], selectedTitle: "
               "'png'}),"
               " new PopUpButton({titles: ['1', '8', 'best'], selectedTitle: '8'}),"
               " new PopUpButton({titles: ['gif', 'jpeg'], selectedTitle: 'gif'}), new PopUpButton({titles: ['5']}))")
        .replace(QStringLiteral("%1"), expression);
}

void rows(std::initializer_list<std::pair<const char *, const char *>> list)
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("outcome");
    for (const auto &[expression, outcome] : list)
        QTest::newRow(expression) << QString::fromUtf8(expression) << QString::fromUtf8(outcome);
}

} // namespace

/** The panels in which a picture, a text or data is saved. */
class TestSeamSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { platform::removeUserDefault(QStringLiteral("MOS")); }
    void savesPictures_data();
    void savesPictures() { answersWhatItIsAsked(); }
    void followsTheMenus_data();
    void followsTheMenus() { answersWhatItIsAsked(); }
    void savesTextsAndData_data();
    void savesTextsAndData() { answersWhatItIsAsked(); }
    void startsInTheDesktopFolder();
    void writesTagsFromOneGenerationOn_data();
    void writesTagsFromOneGenerationOn();

private:
    void answersWhatItIsAsked();
    QString valueOf(ScriptRun &run, const QString &expression);
};

QString TestSeamSaving::valueOf(ScriptRun &run, const QString &expression)
{
    QImage picture(60, 40, QImage::Format_RGB32);
    for (int i = 0; i < 2400; ++i)
        picture.setPixel(i % 60, i / 60, qRgb(i * 37 & 255, i * 11 & 255, i * 5 & 255));
    picture.save(run.pathOf(QStringLiteral("a.b.png")));
    const QString folder = QFileInfo(run.pathOf(QStringLiteral("a.b.png"))).path();
    return run.valueOf(scriptWith(expression).replace(QStringLiteral("FOLDER"), folder))
        .replace(folder, QStringLiteral("FOLDER"));
}

void TestSeamSaving::answersWhatItIsAsked()
{
    QFETCH(QString, expression);
    ScriptRun run;
    QTEST(valueOf(run, expression), "outcome");
}

void TestSeamSaving::savesPictures_data()
{
    rows({
        {"box.hSaveDialogFile('FOLDER/a.b.png')", "null"},
        {"(panels.cancel(), box.hSaveDialogFile('FOLDER/a.b.png'))", "null"},
        {"(panels.accept([]), box.hSaveDialogFile('FOLDER/a.b.png'))", "null"},
        {"(box.hSaveDialogFile('FOLDER/a.b.png'), [box.myFileType, box.extensions, box.myCompType])",
         "[\"png\",[\"png\"],null]"},
        {"save('made it.png')", "[\"file://FOLDER/made%20it.png\",\"png\",\"a.b\"]"},
        {"[save('made.png')[1], there('made.png'), box.myFileType, box.extensions, box.myCompType]",
         "[\"png\",true,\"png\",[\"png\"],\"8\"]"},
        {"(save('made.png'), [shown().kind, shown().types, shown().otherTypes, shown().name, shown().tagField])",
         "[\"save\",[\"png\"],false,\"a.b\",false]"},
        {"(panels.accept(['FOLDER/x.png']), box.hSaveDialogFile('FOLDER/missing.jpg'))",
         "[\"file://FOLDER/x.png\",\"png\",\"missing\"]"},
        {"(panels.accept(['FOLDER/x.png']), box.hSaveDialogFile('FOLDER/missing.jpg'), there('x.png'))", "false"},
        {"save('nowhere/x.png')", "[\"file://FOLDER/nowhere/x.png\",\"png\",\"a.b\"]"},
        {"(types.selectedTitle = 'jpg', [save('x.jpg'), there('x.jpg')])",
         "[[\"file://FOLDER/x.jpg\",\"jpg\",\"a.b\"],false]"},
        {"['pdf', 'png', 'tiff', 'bmp', 'gif', 'jpeg', 'jp2'].map(type => { types.selectedTitle = type;"
         " return save('made.' + type)[1] === type && there('made.' + type); })",
         "[true,true,true,true,true,true,true]"},
        {"(box.pubFileType = null, box.hSaveDialogFile('FOLDER/a.b.png'), shown().name)", "\"a.b\""},
        {"[box.panel, save('x.png'), box.panel.allowedTypes][2]", "[\"png\"]"},
        {"[box.err, box.myFileType, box.myCompType, box.extensions, box.myJPEGcompression, box.panel, box.tagNames]",
         "[null,null,null,null,null,null,null]"},
        {"cToolBox.hSaveDialogFile", "TypeError: cToolBox has no operation or field hSaveDialogFile"},
        {"box.hSaveDialogFile()", "TypeError: hSaveDialogFile takes 1 argument but received 0"},
    });
}

void TestSeamSaving::followsTheMenus_data()
{
    rows({
        {"(choose('jpeg'), [box.myFileType, box.extensions, quality.enabled])", "[\"jpeg\",[\"jpeg\"],true]"},
        {"['pdf', 'png', 'tiff', 'bmp', 'gif', 'jp2', 'jpg', 'JPEG', '', 'jpeg'].map(type => {"
         " choose(type); return quality.enabled; })",
         "[false,false,false,false,false,false,false,false,false,true]"},
        {"(otherTypes.selectedTitle = 'jpeg', box.hSaveAsChooseFileType(null),"
         " [box.myFileType, otherQuality.enabled, quality.enabled])",
         "[\"jpeg\",true,true]"},
        {"(box.hSaveAsChooseFileType(5), [box.myFileType, box.extensions, otherQuality.enabled, quality.enabled])",
         "[\"gif\",[\"gif\"],false,true]"},
        {"(box.hChooseCompType(null), box.myCompType)", "\"8\""},
        {"(box.hChooseFileType(null), box.panel)", "null"},
        {"save('x.gif', {whileOpen: () => choose('gif')})", "[\"file://FOLDER/x.gif\",\"gif\",\"a.b\"]"},
        {"(save('x.gif', {whileOpen: () => choose('gif')}), [shown().types, box.panel.allowedTypes, box.extensions])",
         "[[\"gif\"],[\"gif\"],[\"gif\"]]"},
        {"(save('x', {whileOpen: () => { choose('jpeg'); quality.selectedTitle = '1'; }}), box.myCompType)", "\"1\""},
        {"(() => { const sizes = ['1', '8', '9'].map(code => { quality.selectedTitle = code; types.selectedTitle = "
         "'jpeg';"
         " save('q.jpg'); return new cNSFileHandling().readNSDataFromFile('FOLDER/q.jpg').byteLength; });"
         " return sizes[0] < sizes[1] && sizes[1] < sizes[2]; })()",
         "true"},
        {"(types.selectedTitle = 'jpeg', save('x.jpg'), types.selectedTitle = 'png', [save('x.png')[1], "
         "box.myFileType])",
         "[\"png\",\"png\"]"},
    });
}

void TestSeamSaving::savesTextsAndData_data()
{
    rows({
        {"cToolBox.hSaveWriteDialogFile('csv', 'a;b', 'log')", "null"},
        {"(panels.accept(['FOLDER/l.csv']), cToolBox.hSaveWriteDialogFile('csv', 'é;b', 'log'),"
         " new cNSFileHandling().hReadTextFileLbyL('FOLDER/l.csv'))",
         "[\"é;b\"]"},
        {"(cToolBox.hSaveWriteDialogFile('csv', 'a', 'log'), [shown().kind, shown().types, shown().otherTypes, "
         "shown().name])",
         "[\"save\",[\"csv\"],false,\"log\"]"},
        {"(panels.accept(['FOLDER/nowhere/l.csv']), cToolBox.hSaveWriteDialogFile('csv', 'a', 'log'))", "null"},
        {"box.hSaveWriteDialogFile2('text', 'name')", "\"\""},
        {"(box.hSaveWriteDialogFile2('text', 'name'), [shown().types, shown().otherTypes, shown().name])",
         "[[\"c-action\"],false,\"name\"]"},
        {"(panels.accept(['FOLDER/x.c-action']), [box.hSaveWriteDialogFile2('é', 'x'),"
         " new cNSFileHandling().hReadTextFileLbyL('FOLDER/x.c-action')])",
         "[\"FOLDER/x.c-action\",[\"é\"]]"},
        {"(panels.accept(['FOLDER/nowhere/x.c-action']), box.hSaveWriteDialogFile2('é', 'x'))",
         "\"FOLDER/nowhere/x.c-action\""},
        {"box.hSaveNSDataWriteDialogFile(new ArrayBuffer(3), 'x')", "\"\""},
        {"(panels.accept(['FOLDER/x.c-action']), [box.hSaveNSDataWriteDialogFile(new ArrayBuffer(3), 'x'),"
         " new cNSFileHandling().getFileSize('FOLDER/x.c-action'), shown().types, shown().name])",
         "[\"FOLDER/x.c-action\",\"3 bytes\",[\"c-action\"],\"x\"]"},
        {"(panels.accept(['FOLDER/x.c-action']), [box.hSaveNSDataWriteDialogFile(new ArrayBuffer(0), 'x'), "
         "there('x.c-action')])",
         "[\"FOLDER/x.c-action\",true]"},
        {"(panels.accept(['FOLDER/nowhere/x']), box.hSaveNSDataWriteDialogFile(new ArrayBuffer(3), 'x'))", "\"\""},
        {"(panels.accept(['FOLDER/x']), [box.hSaveNSDataWriteDialogFile(null, 'x'), there('x')])", "[\"\",false]"},
        {"box.hReadNSDataInFile()", "\"\""},
        {"(box.hReadNSDataInFile(), [shown().kind, shown().files, shown().folders, shown().multiple, shown().types])",
         "[\"open\",true,false,false,[\"c-action\"]]"},
        {"(new cNSFileHandling().hWriteTextFile('FOLDER/x', 'é\\n😀'), panels.accept(['FOLDER/x']), "
         "box.hReadNSDataInFile())",
         "\"é\\n😀\""},
        {"(new cNSFileHandling().hWriteTextFile('FOLDER/x', ''), panels.accept(['FOLDER/x']), box.hReadNSDataInFile())",
         "\"\""},
        {"(new cNSFileHandling().writeNSDataToFile(new Uint8Array([255, 65]).buffer, 'FOLDER/x'), "
         "panels.accept(['FOLDER/x']),"
         " box.hReadNSDataInFile())",
         "null"},
        {"(panels.accept(['FOLDER/missing']), box.hReadNSDataInFile())", "null"},
        {"cToolBox.hReadNSDataInFile", "TypeError: cToolBox has no operation or field hReadNSDataInFile"},
    });
}

void TestSeamSaving::startsInTheDesktopFolder()
{
    ScriptRun run;
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    QCOMPARE(valueOf(run, QStringLiteral("(save('x.png'), shown().folder)")), u'"' + desktop + u'"');
    QVERIFY(desktop.endsWith(QLatin1String("/Desktop")));
}

void TestSeamSaving::writesTagsFromOneGenerationOn_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<bool>("hasTags");
    QTest::newRow("later") << QStringLiteral("109+") << true;
    for (const char *word : {"", "108", "109", "110+", "109+ "})
        QTest::newRow(word) << QString::fromUtf8(word) << false;
}

void TestSeamSaving::writesTagsFromOneGenerationOn()
{
    QFETCH(QString, word);
    QFETCH(bool, hasTags);
    if (!word.isEmpty())
        platform::setUserDefault(QStringLiteral("MOS"), word);
    ScriptRun run;
    QCOMPARE(valueOf(run, QStringLiteral("(save('x.png', {tags: ['red', 'holiday photos']}), "
                                         "[shown().tagField, box.tagNames])")),
             hasTags ? QStringLiteral("[true,[\"red\",\"holiday photos\"]]") : QStringLiteral("[false,null]"));
    const QString path = run.pathOf(QStringLiteral("x.png"));
    QCOMPARE(platform::tagsOf(path),
             hasTags ? (QStringList{QStringLiteral("red"), QStringLiteral("holiday photos")}) : QStringList());
    QCOMPARE(valueOf(run, QStringLiteral("(panels.cancel(), box.hSaveDialogFile('FOLDER/a.b.png'), shown().tagField)")),
             hasTags ? QStringLiteral("true") : QStringLiteral("false"));
}

QUORLIN_TEST(TestSeamSaving)
#include "tst_seam_saving.moc"
