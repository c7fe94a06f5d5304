#include "image/recipe/recipe_reader.h"
#include "jobs/batch.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"
#include "tests/unit/jobs/batches.h"

#include <QImage>
#include <QTest>

using namespace jobs;

/** Many pictures: names, numbers, what is taken, what fails. */
class TestRecipeBatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesResults_data();
    void namesResults();
    void writesWhereItShould();
    void replacesNothingUnasked();
    void replacesItsOwnOriginalLast();
    void leavesWhatIsCurrent();
    void keepsNumbersOfWhatFails();
    void plansWithoutWriting();
    void resumes();
    void partsTheInputs();
    void findsEachPictureOnce();
};

namespace {

struct World
{
    ScratchFolder folder;

    QString picture(const char *name, QSize size = {12, 8}) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(qRgb(10 * int(qstrlen(name)), 60, 90));
        QDir().mkpath(QFileInfo(folder.path(name)).path());
        return image.save(folder.path(name)) ? folder.path(name) : QString();
    }

    QList<ReportLine> run(const QByteArray &json, const QStringList &inputs, const BatchOptions &options = {}) const
    {
        batches::Run batch;
        batch.options = options;
        batch.folder = folder.path();
        const QList<ReportLine> lines = batches::sortedLinesOf(json, inputs, batch);
        summary = batch.summary;
        return lines;
    }

    mutable Summary summary;
};

const QByteArray plainRecipe = R"({"quorlin": 1, "outputs": [{"type": "png"}]})";

} // namespace

void TestRecipeBatch::namesResults_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("expected");
    QTest::newRow("name") << QStringLiteral("{name}") << QStringLiteral("photo.one");
    QTest::newRow("size of the result") << QStringLiteral("{name} {width}x{height}") << QStringLiteral("photo.one 3x2");
    QTest::newRow("counter") << QStringLiteral("{counter:007}") << QStringLiteral("011");
    QTest::newRow("nothing known") << QStringLiteral("{camera} {taken}") << QStringLiteral("unknown undated");
    QTest::newRow("folder") << QStringLiteral("{folder}") << QStringLiteral("Trip 1");
    QTest::newRow("brace") << QStringLiteral("{{x}") << QStringLiteral("{x}");
}

void TestRecipeBatch::namesResults()
{
    QFETCH(QString, pattern);
    QFETCH(QString, expected);
    const World world;
    const QString path = world.picture("Trip 1/photo.one.png");
    QCOMPARE(nameFrom(pattern, factsOfPicture(path, 4), QSize(3, 2)), expected);
}

void TestRecipeBatch::writesWhereItShould()
{
    const World world;
    world.picture("in/a.png");
    world.picture("in/sub/b.jpg");
    BatchOptions options;
    options.destination = {world.folder.path("out"), true};
    const QByteArray json = R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 6}],
        "outputs": [{"type": "jpeg", "folder": "Web/{extension}"}, {"type": "png", "name": "{name}-{width}"}]})";
    const auto lines = world.run(json, {world.folder.path("in")}, options);
    QCOMPARE(lines.size(), 4);
    for (const ReportLine &line : lines) {
        QVERIFY2(line.status == LineStatus::Ok, qPrintable(line.reason));
        QCOMPARE(QFileInfo(line.output).size(), line.bytes);
        QCOMPARE(line.size, QSize(6, 4));
    }
    QVERIFY(world.folder.isThere("out/Web/png/a.jpg") && world.folder.isThere("out/a-6.png"));
    QVERIFY(world.folder.isThere("out/sub/Web/jpg/b.jpg") && world.folder.isThere("out/sub/b-6.png"));
    QCOMPARE(world.folder.names("out").size(), 3); // nothing unfinished is left
    QCOMPARE(world.summary.ok, 4);
    QCOMPARE(world.summary.inputs, 2);
}

void TestRecipeBatch::replacesNothingUnasked()
{
    const World world;
    const QString path = world.picture("a.png");
    world.picture("A (2).png");
    const QByteArray before = world.folder.read("a.png");
    QByteArray json = R"({"quorlin": 1, "operations": [{"do": "turn", "degrees": 180}], "outputs": [{}]})";
    QCOMPARE(world.run(json, {path}).first().output, world.folder.path("a (3).png")); // letters count as the same
    QCOMPARE(world.folder.read("a.png"), before);
    json.replace("{}", R"({"ifTaken": "skip"})");
    const ReportLine skipped = world.run(json, {path}).first();
    QVERIFY(skipped.status == LineStatus::Skipped && !skipped.reason.isEmpty());
    // The same name in one run gets a number also where all may be replaced.
    const QString other = world.picture("sub/a.png");
    json.replace("\"skip\"", "\"replace\", \"folder\": \"/" + world.folder.path("out").toUtf8().mid(1) + '"');
    const auto lines = world.run(json, {path, other});
    QCOMPARE(lines[0].output, world.folder.path("out/a.png"));
    QCOMPARE(lines[1].output, world.folder.path("out/a (2).png"));
}

void TestRecipeBatch::replacesItsOwnOriginalLast()
{
    const World world;
    const QString path = world.picture("a.png");
    world.picture("b.png");
    const QByteArray json = R"({"quorlin": 1, "outputs": [
        {"ifTaken": "replace", "operations": [{"do": "resize", "longest": 3}]},
        {"ifTaken": "replace", "name": "c", "operations": [{"do": "resize", "longest": 9}]},
        {"ifTaken": "replace", "name": "b"}]})";
    const auto lines = world.run(json, {path, world.folder.path("b.png")});
    QCOMPARE(QImage(path).size(), QSize(3, 2));
    QCOMPARE(QImage(world.folder.path("c.png")).size(), QSize(9, 6));
    QCOMPARE(lines[2].output, world.folder.path("b (2).png")); // another input is never replaced
}

void TestRecipeBatch::leavesWhatIsCurrent()
{
    const World world;
    const QString path = world.picture("a.png");
    const QByteArray json = R"({"quorlin": 1, "operations": [{"do": "turn", "degrees": 90}],
        "outputs": [{"name": "b", "ifTaken": "current"}]})";
    QVERIFY(world.run(json, {path}).first().status == LineStatus::Ok);
    QVERIFY(world.run(json, {path}).first().status == LineStatus::Skipped);
    QVERIFY(world.folder.write("b.png", world.folder.read("b.png") + "x"));
    QCOMPARE(world.run(json, {path}).first().output, world.folder.path("b (2).png")); // somebody has written to it
    QFile::remove(world.folder.path("b.png"));
    const ReportLine numbered = world.run(json, {path}).first();
    QVERIFY(numbered.status == LineStatus::Skipped); // it is there under another number
    QCOMPARE(numbered.output, world.folder.path("b (2).png"));
    QVERIFY(QFile::copy(numbered.output, world.folder.path("b.png")));
    world.picture("a.png", {20, 20});
    QCOMPARE(world.run(json, {path}).first().output, world.folder.path("b (3).png")); // the source is another one
}

void TestRecipeBatch::keepsNumbersOfWhatFails()
{
    const World world;
    QStringList inputs = {world.picture("a.png"), world.folder.path("none.png"), world.folder.path("text.png"),
                          world.picture("b.png")};
    QVERIFY(world.folder.write("text.png", "no picture"));
    const auto lines = world.run(R"({"quorlin": 1, "outputs": [{"name": "{counter:01}"}]})", inputs);
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines[1].status == LineStatus::Failed && lines[1].output.isEmpty() && !lines[1].reason.isEmpty());
    QVERIFY(lines[2].status == LineStatus::Failed && !lines[2].reason.isEmpty());
    QCOMPARE(lines[3].output, world.folder.path("04.png"));
    QCOMPARE(world.summary.failed, 2);
    QVERIFY(world.folder.isThere("01.png") && world.folder.isThere("04.png"));
}

void TestRecipeBatch::plansWithoutWriting()
{
    const World world;
    const QStringList inputs = {world.picture("a.png"), world.picture("b.png")};
    BatchOptions options;
    options.isDryRun = true;
    const QByteArray json = R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 6}],
        "outputs": [{"type": "jpeg", "folder": "new"}]})";
    const QStringList before = world.folder.names();
    const auto planned = world.run(json, inputs, options);
    QCOMPARE(world.folder.names(), before);
    QVERIFY(planned.first().status == LineStatus::Planned);
    QCOMPARE(planned.first().size, QSize(6, 4));
    QByteArray report;
    for (const ReportLine &line : planned)
        report += jsonLine(line, recipeName(json));
    QVERIFY(world.folder.write("plan", report));
    options = {};
    options.plan = EarlierReport::read(world.folder.path("plan"));
    const auto made = world.run(json, inputs.mid(1) + QStringList{world.picture("c.png")}, options);
    QCOMPARE(made[0].output, planned[1].output);
    QVERIFY(made[1].status == LineStatus::Failed); // it is not in the plan
}

void TestRecipeBatch::resumes()
{
    const World world;
    const QStringList inputs = {world.picture("a.png"), world.picture("b.png"), world.picture("c.png")};
    QByteArray report;
    const QByteArray json = R"({"quorlin": 1, "outputs": [{"type": "bmp", "folder": "new"}]})";
    for (const ReportLine &line : world.run(json, inputs.mid(0, 2)))
        report += jsonLine(line, recipeName(json));
    QVERIFY(world.folder.write("report", report + "{\"input\":\"cut off"));
    QVERIFY(world.folder.write("new/b.bmp", "another file"));
    BatchOptions options;
    options.resumed = EarlierReport::read(world.folder.path("report"));
    const auto lines = world.run(json, inputs, options);
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines[0].output, world.folder.path("new/b (2).bmp"));
    QCOMPARE(lines[1].output, world.folder.path("new/c.bmp"));
    QCOMPARE(world.folder.names("new").size(), 4);
}

void TestRecipeBatch::partsTheInputs()
{
    const World world;
    QStringList inputs;
    for (int i = 0; i < 40; ++i)
        inputs.append(world.picture(qPrintable(QStringLiteral("in/p%1.png").arg(i))));
    const QList<Input> named = inputsFrom(inputs);
    const QList<Input> found = inputsFrom({world.folder.path("in")});
    QCOMPARE(found.size(), 40);
    int used = 0;
    for (const Input &input : named) {
        int parts = 0;
        for (int shard = 1; shard <= 3; ++shard)
            parts += isInShard(input, shard, 3);
        QCOMPARE(parts, 1);
        used += isInShard(input, 1, 3);
    }
    QVERIFY(used > 3 && used < 30);
    for (const Input &input : found)
        QVERIFY(isInShard(input, 1, 3) == isInShard({input.path, {}, {}}, 1, 3)); // in the root the names are the same
    BatchOptions options;
    options.shard = 2;
    options.shards = 3;
    const QByteArray json = R"({"quorlin": 1, "outputs": [{"name": "{counter:01}", "folder": "out"}]})";
    for (const ReportLine &line : world.run(json, {world.folder.path("in")}, options)) {
        const int number = QFileInfo(line.output).completeBaseName().toInt();
        QCOMPARE(line.input, found[number - 1].path);
    }
}

void TestRecipeBatch::findsEachPictureOnce()
{
    const World world;
    const QString a = world.picture("in/a.png");
    world.picture("in/sub/b.png");
    QVERIFY(world.folder.write("in/notes.txt", "text"));
    QVERIFY(world.folder.link("in/a.png", "same.png"));
    const auto inputs = inputsFrom({a, world.folder.path("in"), world.folder.path("same.png"), a});
    QCOMPARE(inputs.size(), 2);
    QCOMPARE(inputs[1].path, world.folder.path("in/sub/b.png"));
    QCOMPARE(placeBelowRoot(inputs[1]), QStringLiteral("sub/b.png"));
    QCOMPARE(placeBelowRoot(inputs[0]), QStringLiteral("a.png"));
}

QUORLIN_TEST(TestRecipeBatch)
#include "tst_recipe_batch.moc"
