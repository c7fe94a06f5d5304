#include "tests/seam/support/ScriptRun.h"
#include "tests/support/test_program.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

namespace {

/** A module body that reports the value of each expression, with a service and stand-ins on all its outlets. */
QString withPane(const QString &expressions)
{
    return QStringLiteral(R"(
        const comment = new TextField({}), path = new TextField({}), tree = new TreeController({});
        const log = new ArrayController({}), table = new TableView({}), bar = new ProgressIndicator({});
        const m = new mMeta();
        m.tfExifUserComment = comment; m.tfActiveFilePath = path; m.mTree = tree;
        m.mymMetaLogTableViewController = log; m.themMetaLogTable = table;
        const e = new cEditMetaData();
        e.myProgressBarke = bar; e.tfEMDuserCommentField = comment; e.myLogTableViewController = log; e.theLogTable = table;
        const node = (nodes, key) => nodes.find(each => each.key === key);
        %1)")
        .arg(expressions);
}

void row(const char *name, const char *body, const QStringList &outcomes)
{
    QTest::newRow(name) << QString::fromUtf8(body) << outcomes;
}

QStringList one(const char *outcome)
{
    return {QString::fromUtf8(outcome)};
}

void addFieldsAndTrees()
{
    row("fields that were never set are null", R"(
        const n = new mMeta(), d = new cEditMetaData();
        report([n.myVarTree, n.myString, n.mTree, n.tfExifUserComment, n.tfActiveFilePath, n.mymMetaLogTableViewController,
                n.themMetaLogTable, d.myEMMfiles, d.ocTheLogData, d.myLogCounter, d.myProgressBarke, d.tfEMDuserCommentField,
                d.myLogTableViewController, d.theLogTable]);)",
        one("[null,null,null,null,null,null,null,null,null,0,null,null,null,null]"));
    row("the log counter can be set", "e.myLogCounter = 7; report(e.myLogCounter);", one("7"));
    row("a tree is ordered by code units, braces last",
        "report(m.propTree({b: 1, B: 2, '{z}': {}, a: [1, 2], Z: 'x'}).map(n => n.key));",
        one("[\"B\",\"Z\",\"a\",\"b\",\"{z}\"]"));
    row("a leaf has its value as it is and no children",
        "const t = m.propTree({a: [1, [2]], b: null, c: 'x', d: 1.5}); report(t.map(n => n.val)); report(t.map(n => "
        "Object.keys(n)));",
        {QStringLiteral("[[1,[2]],null,\"x\",1.5]"),
         QStringLiteral("[[\"key\",\"val\"],[\"key\",\"val\"],[\"key\",\"val\"],[\"key\",\"val\"]]")});
    row("a dictionary is a node with an empty value and children", "report(m.propTree({g: {k: {j: 1}}, h: {}}));",
        one("[{\"children\":[{\"children\":[{\"key\":\"j\",\"val\":1}],\"key\":\"k\",\"val\":\"\"}],\"key\":\"g\","
            "\"val\":\"\"},"
            "{\"children\":[],\"key\":\"h\",\"val\":\"\"}]"));
    row("keys are said in words", "report(m.propTree({'{Exif}': {ExposureTime: 1}, PixelWidth: 4}));",
        one("[{\"key\":\"Pixel width\",\"val\":4},{\"children\":[{\"key\":\"Exposure "
            "time\",\"val\":1}],\"key\":\"Exif\",\"val\":\"\"}]"));
    row("the outermost tree is the one that stays",
        "m.propTree({a: {b: 1}}); report(m.myVarTree.length); report(m.myVarTree[0].key);",
        {QStringLiteral("1"), QStringLiteral("\"a\"")});
    row("an empty dictionary leaves the last tree",
        "m.propTree({a: 1}); report(m.propTree({})); report(m.myVarTree[0].key);",
        {QStringLiteral("[]"), QStringLiteral("\"a\"")});
}

void addFilesThatAreShown()
{
    row("a picture without EXIF shows why, and its tree",
        "const t = m.hiDoNothing('FOLDER/p.png'); report(comment.stringValue); report(node(t, 'Pixel width').val);"
        "report(tree.content.length === t.length && m.myVarTree.length === t.length);",
        {QStringLiteral("\"NotSupportedOrAvailable\""), QStringLiteral("40"), QStringLiteral("true")});
    row("what is no picture shows that and leaves the last tree",
        "const t = m.hiDoNothing('FOLDER/p.png'); const u = m.hiDoNothing('FOLDER/text.jpg'); "
        "report(comment.stringValue);"
        "report(tree.content); report(u.length === t.length && m.myVarTree.length === t.length);",
        {QStringLiteral("\"NotSupported\""), QStringLiteral("[]"), QStringLiteral("true")});
    row("what is no picture gives nothing at first",
        "report(m.hiDoNothing('FOLDER/text.jpg')); report(m.hiDoNothing(null));",
        {QStringLiteral("null"), QStringLiteral("null")});
    row("without outlets everything works",
        "const n = new mMeta(); report(n.hiDoNothing('FOLDER/p.png').length > 3); "
        "report(n.btApplyExifUserComment(null));",
        {QStringLiteral("true"), QStringLiteral("null")});
}

void addComments()
{
    row("a comment is written and read, in any script",
        "for (const c of ['plain', 'Grüße', 'Ωμέγα', '日本語', '😀', '']) report([m.hSetExifData('FOLDER/a.jpg', c), "
        "m.hGetExifUc('FOLDER/a.jpg')]);",
        {QStringLiteral("[\"OK\",\"plain\"]"), QStringLiteral("[\"OK\",\"Grüße\"]"),
         QStringLiteral("[\"OK\",\"Ωμέγα\"]"), QStringLiteral("[\"OK\",\"日本語\"]"), QStringLiteral("[\"OK\",\"😀\"]"),
         QStringLiteral("[\"OK\",\"\"]")});
    row("a JPEG without EXIF gets the comment and nothing more",
        "m.hSetExifData('FOLDER/a.jpg', 'x'); report(node(m.hiDoNothing('FOLDER/a.jpg'), 'Exif').children);",
        one("[{\"key\":\"User comment\",\"val\":\"x\"}]"));
    row("an empty comment is a comment",
        "m.hSetExifData('FOLDER/a.jpg', ''); report(node(m.hiDoNothing('FOLDER/a.jpg'), 'Exif').children); "
        "report(comment.stringValue);",
        {QStringLiteral("[{\"key\":\"User comment\",\"val\":\"\"}]"), QStringLiteral("\"\"")});
    row("what is no picture fails and has no comment",
        "report([m.hSetExifData('FOLDER/text.jpg', 'x'), m.hSetExifData('FOLDER/none.jpg', 'x'), "
        "m.hGetExifUc('FOLDER/text.jpg'),"
        "m.hGetExifUc('FOLDER/none.jpg'), m.hGetExifUc('FOLDER/p.png')]);",
        one("[\"Failed\",\"Failed\",\"\",\"\",\"\"]"));
    row("colour space and size",
        "report([m.hGetColorProfile('FOLDER/a.jpg'), m.hGetColorProfile('FOLDER/text.jpg')]);"
        "report([m.hGetPixelFormat('FOLDER/a.jpg'), m.hGetPixelFormat('FOLDER/text.jpg')]);",
        {QStringLiteral("[\"sRGB IEC61966-2.1\",null]"), QStringLiteral("[[\"40\",\"20\"],[\"0\",\"0\"]]")});
}

void addTheSinglePane()
{
    row("Apply writes, shows and logs",
        "path.stringValue = 'FOLDER/a.jpg'; comment.stringValue = 'Ωμέγα'; report(m.btApplyExifUserComment(null));"
        "const r = log.rows[0]; report(Object.keys(r).sort()); report(Math.abs(new Date() - r.LogDate) < 60000);"
        "report([r.LogProcess, r.LogAction, r.LogStatus, r.LogI, r.LogO, r.LogIpath === 'FOLDER/a.jpg', r.LogOpath === "
        "r.LogIpath]);"
        "report([comment.stringValue, table.reloads, log.rows.length, node(tree.content, 'Exif').children[0].val]);",
        {QStringLiteral("null"),
         QStringLiteral(
             "[\"LogAction\",\"LogDate\",\"LogI\",\"LogIpath\",\"LogO\",\"LogOpath\",\"LogProcess\",\"LogStatus\"]"),
         QStringLiteral("true"),
         QStringLiteral("[\"File Editing\",\"Edit meta data\",\"OK\",\"a.jpg\",\"a.jpg\",true,true]"),
         QStringLiteral("[\"Ωμέγα\",1,1,\"Ωμέγα\"]")});
    row("Apply on what is no picture says so and logs that",
        "path.stringValue = 'FOLDER/text.jpg'; comment.stringValue = 'x'; m.btApplyExifUserComment(null);"
        "report([comment.stringValue, log.rows.map(r => r.LogStatus), table.reloads]);",
        one("[\"NotSupported\",[\"Failed\"],1]"));
}

void addBatches()
{
    row("a batch goes on past what is no picture and stops at three of five",
        "panels.accept(['a.jpg', 'text.jpg', 'b.jpg', 'more.jpg', 'c.jpg'].map(n => 'FOLDER/' + n)); "
        "comment.stringValue = 'batch';"
        "report(e.btEMDchooseFile(null)); report([bar.history, bar.value, bar.maximum, bar.visible, "
        "bar.indeterminate]);"
        "report(log.rows.map(r => r.LogI + ' ' + r.LogStatus)); report([table.reloads, e.myEMMfiles.length]);"
        "report(['a.jpg', 'b.jpg', 'c.jpg'].map(n => m.hGetExifUc('FOLDER/' + n)));"
        "report([panels.shown[0].types, panels.shown[0].multiple, panels.shown[0].folders]);",
        {QStringLiteral("null"), QStringLiteral("[[0,1,2,3,0],0,5,false,false]"),
         QStringLiteral("[\"a.jpg OK\",\"b.jpg OK\",\"c.jpg OK\"]"), QStringLiteral("[3,5]"),
         QStringLiteral("[\"batch\",\"batch\",\"batch\"]"),
         QStringLiteral("[[\"jpg\",\"jpeg\",\"tif\",\"tiff\"],true,false]")});
    row("a folder gives its JPEG and TIFF files at any depth",
        "panels.accept(['FOLDER/in']); comment.stringValue = 'batch'; e.btEMDchooseFolder(null);"
        "report(log.rows.map(r => r.LogI).sort()); report(bar.history); report(panels.shown[0].folders);",
        {QStringLiteral("[\"Y.JPG\",\"x.jpg\"]"), QStringLiteral("[0,1,2,0]"), QStringLiteral("true")});
    row("a cancelled panel adds no rows",
        "bar.visible = true; panels.cancel(); e.btEMDchooseFile(null); panels.cancel(); e.btEMDchooseFolder(null);"
        "report([log.rows, table.reloads, e.myEMMfiles, bar.history, bar.maximum, bar.visible]);",
        one("[[],0,[],[0,0,0,0],0,false]"));
    row("arguments are checked",
        "reportError(() => m.hSetExifData('FOLDER/a.jpg')); reportError(() => m.propTree([1]));",
        {QStringLiteral("TypeError: hSetExifData takes 2 arguments but received 1"),
         QStringLiteral("TypeError: Expected a dictionary for properties but received a list")});
}

} // namespace

/** What scripts get from the services that read metadata and write the comment. */
class TestSeamMetadata : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void answers_data();
    void answers();

private:
    std::unique_ptr<ScriptRun> m_run;
};

void TestSeamMetadata::init()
{
    m_run.reset(); // its panels are those of the process
    m_run = std::make_unique<ScriptRun>();
    QImage image(40, 20, QImage::Format_RGB888);
    image.fill(Qt::white);
    for (const char *name : {"a.jpg", "b.jpg", "c.jpg", "p.png"})
        QVERIFY(image.save(m_run->pathOf(QString::fromLatin1(name))));
    for (const char *name : {"text.jpg", "more.jpg"})
        m_run->write(QString::fromLatin1(name), QStringLiteral("not a picture"));
    QVERIFY(QDir(m_run->pathOf({})).mkpath(QStringLiteral("in/deep")));
    for (const char *name : {"in/x.jpg", "in/deep/Y.JPG", "in/z.Jpg", "in/.hidden.jpg"})
        QVERIFY(QFile::copy(m_run->pathOf(QStringLiteral("a.jpg")), m_run->pathOf(QString::fromLatin1(name))));
    QVERIFY(QFile::copy(m_run->pathOf(QStringLiteral("p.png")), m_run->pathOf(QStringLiteral("in/q.png"))));
}

void TestSeamMetadata::answers_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QStringList>("outcomes");
    addFieldsAndTrees();
    addFilesThatAreShown();
    addComments();
    addTheSinglePane();
    addBatches();
}

void TestSeamMetadata::answers()
{
    QFETCH(QString, body);
    QFETCH(QStringList, outcomes);
    body.replace(QStringLiteral("FOLDER"), m_run->pathOf({}));
    QVERIFY2(m_run->run(withPane(body)), qPrintable(m_run->error));
    QCOMPARE(m_run->reports, outcomes);
}

QUORLIN_TEST(TestSeamMetadata)
#include "tst_seam_metadata.moc"
