#include "image/recipe/recipe_reader.h"
#include "jobs/batch.h"
#include "jobs/output_places.h"
#include "jobs/path_hash.h"
#include "jobs/result_mark.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/paths.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"
#include "tests/unit/jobs/batches.h"

#include <QImage>
#include <QTest>

#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace jobs;

/** What a batch is given: names that come one by one, names of any bytes, parts, reports that are odd themselves. */
class TestBatchInputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesNamesAsTheyCome();
    void takesNamesOfAnyKind_data();
    void takesNamesOfAnyKind();
    void countsSecondNamesForThemselves();
    void leavesOutItsOwnResults();
    void worksOnNamesThatAreNoText();
    void hashesAsOthersDo();
    void plansTheSameNamesInEveryPart();
    void looksAtNothingOfOthers();
    void repeatsItselfWithoutNewNames_data();
    void repeatsItselfWithoutNewNames();
    void keepsNamesOfAPlan();
    void knowsResultsWhoseLineIsLost();
    void endsALineThatWasCutOff();
    void writesNoReportOverAPicture();
    void tellsThatAReportCannotBeWritten();
};

namespace {

struct World
{
    ScratchFolder folder;

    QString picture(const char *name) const
    {
        QImage image(6, 4, QImage::Format_RGB32);
        image.fill(qRgb(10 * int(qstrlen(name)), 60, 90));
        QDir().mkpath(QFileInfo(folder.path(name)).path());
        return image.save(folder.path(name)) ? folder.path(name) : QString();
    }

    static image::Recipe recipe(const QByteArray &json)
    {
        const auto recipe = image::readRecipe(json, QStringLiteral("/"));
        if (!recipe)
            qFatal("%s", qPrintable(recipe.error().message));
        return *recipe;
    }

    static QList<ReportLine> run(const QByteArray &json, Inputs &inputs, const BatchOptions &options = {})
    {
        batches::Run batch;
        batch.options = options;
        return batches::linesOf(json, inputs, batch);
    }

    static QList<ReportLine> run(const QByteArray &json, const QStringList &names, const BatchOptions &options = {})
    {
        batches::Run batch;
        batch.options = options;
        return batches::sortedLinesOf(json, names, batch);
    }
};

QString latin1(const char *bytes)
{
    return platform::decodedPath(bytes);
}

NameStream streamOf(const ScratchFolder &folder, const QByteArray &bytes, NameStream::Separator separator)
{
    folder.write("names", bytes);
    auto stream = NameStream::open(folder.path("names"), separator);
    if (!stream)
        qFatal("%s", qPrintable(stream.error().message));
    return std::move(*stream);
}

} // namespace

void TestBatchInputs::takesNamesAsTheyCome()
{
    const World world;
    const QString a = world.picture("a.png");
    const QString b = world.picture("b.png");
    const QString pipe = world.folder.path("pipe");
    QVERIFY(::mkfifo(qPrintable(pipe), 0600) == 0);
    const int writer = ::open(qPrintable(pipe), O_RDWR | O_CLOEXEC);
    auto stream = NameStream::open(pipe, NameStream::Separator::LineFeed);
    QVERIFY(stream.has_value());
    Inputs inputs({}, std::move(*stream));
    QCOMPARE(inputs.look(), Inputs::State::Waiting);
    const auto write = [writer](const QString &text) {
        return ::write(writer, qPrintable(text), size_t(text.size())) > 0;
    };
    QVERIFY(write(a + u'\n' + b));
    QCOMPARE(inputs.look(), Inputs::State::Ready); // the second is not whole, and nobody waits for it
    QCOMPARE(inputs.take().path, a);
    QCOMPARE(inputs.look(), Inputs::State::Waiting);
    QVERIFY(write(QStringLiteral("\n")));
    QCOMPARE(inputs.look(), Inputs::State::Ready);
    QCOMPARE(inputs.take().path, b);
    ::close(writer);
    QCOMPARE(inputs.look(), Inputs::State::Ended);
    QCOMPARE(inputs.descriptor(), -1);
    QCOMPARE(inputs.taken(), 2);
}

void TestBatchInputs::takesNamesOfAnyKind_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isNul");
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char *name, const QByteArray &bytes, bool isNul, const QStringList &names) {
        QTest::newRow(name) << bytes << isNul << names;
    };
    const QString line = QStringLiteral("/a\nb");
    row("lines", "/a\n/b\n", false, {QStringLiteral("/a"), QStringLiteral("/b")});
    row("no end", "/a\n/b", false, {QStringLiteral("/a"), QStringLiteral("/b")});
    row("empty ones", "\n\n/a\n\n", false, {QStringLiteral("/a")});
    row("carriage returns", "/a\r\n\r\n/b\r\n", false, {QStringLiteral("/a"), QStringLiteral("/b")});
    row("NUL", QByteArray("/a\nb\0/c\r\0", 9), true, {line, QStringLiteral("/c\r")});
    row("bytes", "/caf\xe9\n", false, {latin1("/caf\xe9")});
    row("nothing", "", false, {});
    row("long", '/' + QByteArray(200'000, 'x') + "\n/b", false,
        {QString(u'/' + QString(200'000, u'x')), QStringLiteral("/b")});
}

void TestBatchInputs::takesNamesOfAnyKind()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isNul);
    const World world;
    using Separator = NameStream::Separator;
    NameStream stream = streamOf(world.folder, bytes, isNul ? Separator::Nul : Separator::LineFeed);
    QStringList names;
    while (stream.look(0) == NameStream::State::Ready)
        names.append(stream.take());
    QTEST(names, "names");
    QVERIFY(stream.problem().isEmpty());
}

void TestBatchInputs::countsSecondNamesForThemselves()
{
    const World world;
    const QString a = world.picture("in/a.png");
    QVERIFY(::link(qPrintable(a), qPrintable(world.folder.path("in/b.png"))) == 0);
    QVERIFY(world.folder.link("in", "same"));
    QVERIFY(world.folder.link(world.picture("elsewhere.png").toUtf8(), "in/link.png")); // not followed
    const auto inputs = inputsFrom({world.folder.path("in"), world.folder.path("same/b.png"), a});
    QCOMPARE(inputs.size(), 2);
    QCOMPARE(inputs[1].path, world.folder.path("in/b.png"));
}

/** A list that is made while results appear may name them: they are no pictures of the batch. */
void TestBatchInputs::leavesOutItsOwnResults()
{
    const World world;
    const QString a = world.picture("a.png");
    const QByteArray pipe = QFile::encodeName(world.folder.path("list"));
    QCOMPARE(::mkfifo(pipe.constData(), 0600), 0);
    platform::Descriptor list(::open(pipe.constData(), O_RDWR | O_CLOEXEC));
    const auto name = [&list](const QString &path) {
        const QByteArray bytes = path.toUtf8() + '\n';
        QCOMPARE(::write(list.number(), bytes.constData(), size_t(bytes.size())), bytes.size());
    };
    name(a);
    auto names = NameStream::open(world.folder.path("list"), NameStream::Separator::LineFeed);
    QVERIFY(names);
    Inputs inputs({}, std::move(*names));
    batches::Run batch;
    batch.onLine = [&](const ReportLine &) {
        name(world.folder.path("a (2).png"));
        list.close();
    };
    const auto lines = batches::linesOf(R"({"quorlin": 1, "outputs": [{}]})", inputs, batch);
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines[0].output, world.folder.path("a (2).png"));
    QCOMPARE(world.folder.names().size(), 3);
}

void TestBatchInputs::worksOnNamesThatAreNoText()
{
    const World world;
    const QString plain = world.picture("a.png");
    const QByteArray folder = QFile::encodeName(world.folder.path("in")) + "\xe9";
    QVERIFY(::mkdir(folder.constData(), 0700) == 0);
    QVERIFY(::rename(qPrintable(plain), QByteArray(folder + "/\xe9t\xe9.png").constData()) == 0);
    const QString in = platform::decodedPath(folder);
    const QByteArray json =
        R"({"quorlin": 1, "outputs": [{"type": "jpeg", "name": "{name}-{folder}", "folder": "{folder}", "dates": "keep"}]})";
    BatchOptions options;
    options.destination = {platform::decodedPath(QFile::encodeName(world.folder.path("out")) + "\xff"), false};
    const auto lines = World::run(json, {in}, options);
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines[0].status == LineStatus::Ok, qPrintable(lines[0].reason));
    QCOMPARE(lines[0].input, in + latin1("/\xe9t\xe9.png"));
    QCOMPARE(lines[0].output, options.destination.folder + latin1("/in\xe9/\xe9t\xe9-in\xe9.jpg"));
    QCOMPARE(platform::regularFile(lines[0].output)->bytes, lines[0].bytes);
    QCOMPARE(platform::regularFile(lines[0].output)->modified, platform::regularFile(lines[0].input)->modified);
    const QByteArray written = jsonLine(lines[0], recipeName(json));
    QVERIFY(written.contains("/in\\udce9/\\udce9t\\udce9-in\\udce9.jpg\""));
    QVERIFY(QString::fromUtf8(written).toUtf8() == written); // the report itself is UTF-8
    QVERIFY(world.folder.write("report", written));
    const auto report = EarlierReport::read(world.folder.path("report"));
    QCOMPARE(report->of(recipeName(json), lines[0].input, 0)->output, lines[0].output);
    options.resumed = report;
    QVERIFY(World::run(json, {in}, options).isEmpty());
    QVERIFY(QFile::remove(world.folder.path("report")));
    std::filesystem::remove_all(folder.toStdString()); // the folder's own removal has no word for these
    std::filesystem::remove_all(platform::encodedPath(options.destination.folder).toStdString());
}

void TestBatchInputs::hashesAsOthersDo()
{
    QCOMPARE(pathHash(""), 0xcbf29ce484222325ULL);
    QCOMPARE(pathHash("a"), 0xaf63dc4c8601ec8cULL);
    QCOMPARE(pathHash("foobar"), 0x85944171f73967e8ULL);
    const PathKey wide = {0x343e1662793c64bfULL, 0x6f0d3597ba446f18ULL};
    QVERIFY(pathKey("foobar") == wide);
    QVERIFY(!(pathKey("foobas") == wide));
    QVERIFY(isInShard({QStringLiteral("/x/foobar"), {}, {}}, int(0x85944171f73967e8ULL % 7) + 1, 7));
    QVERIFY(isInShard({QStringLiteral("/x/foobar"), QStringLiteral("/"), {}}, int(pathHash("x/foobar") % 7) + 1, 7));
}

void TestBatchInputs::plansTheSameNamesInEveryPart()
{
    const World world;
    QStringList names;
    for (int i = 0; i < 12; ++i)
        names.append(world.picture(qPrintable(QStringLiteral("in/%1/a%2.png").arg(i).arg(i % 3))));
    const QByteArray json = R"({"quorlin": 1, "outputs": [
        {"type": "png", "ifTaken": "replace"}, {"type": "png", "name": "{counter:01}", "folder": "n"}]})";
    BatchOptions options;
    options.destination = {world.folder.path("whole"), false};
    QMap<QString, QString> whole;
    for (const ReportLine &line : World::run(json, names, options))
        whole.insert(line.input + QString::number(line.index), QString(line.output).remove(world.folder.path("whole")));
    QCOMPARE(whole.size(), 24);
    options.destination = {world.folder.path("parts"), false};
    options.shards = 3;
    QMap<QString, QString> parts;
    for (options.shard = 1; options.shard <= 3; ++options.shard)
        for (const ReportLine &line : World::run(json, names, options))
            parts.insert(line.input + QString::number(line.index),
                         QString(line.output).remove(world.folder.path("parts")));
    QCOMPARE(parts, whole);
    QCOMPARE(world.folder.names("parts"), world.folder.names("whole"));
}

/** Inputs of another part keep their names, also where their pictures, or the folders of their results, cannot be looked at. */
void TestBatchInputs::looksAtNothingOfOthers()
{
    const World world;
    const QByteArray json = R"({"quorlin": 1, "outputs": [{"type": "png", "folder": "/nowhere"}]})";
    const image::Recipe recipe = World::recipe(json);
    QVERIFY(!namesNeedPictures(recipe));
    Inputs inputs({QStringLiteral("/none/a.jpg"), world.picture("a.png")});
    OutputPlaces places(recipe, {recipeName(json), recipeName(json), nullptr, nullptr}, inputs, {});
    const auto nextPath = [&](int number) {
        const Input input = inputs.take();
        return places.of(input, factsOfFile(input.path, number, false), {}, {}, true).first().path;
    };
    QCOMPARE(nextPath(0), QStringLiteral("/nowhere/a.png"));
    QCOMPARE(nextPath(1), QStringLiteral("/nowhere/a (2).png"));
    for (const char *output : {"{}", R"({"type": "png", "name": "{taken}"})",
                               R"({"type": "png", "folder": "{size:class}"})", R"({"type": "png", "name": "{width}"})"})
        QVERIFY2(namesNeedPictures(World::recipe(QByteArray(R"({"quorlin": 1, "outputs": [)") + output + "]}")),
                 output);
}

void TestBatchInputs::repeatsItselfWithoutNewNames_data()
{
    QTest::addColumn<QByteArray>("ifTaken");
    QTest::addColumn<int>("status");
    QTest::newRow("current") << QByteArray("current") << int(LineStatus::Skipped);
    QTest::newRow("skip") << QByteArray("skip") << int(LineStatus::Skipped);
    QTest::newRow("replace") << QByteArray("replace") << int(LineStatus::Ok);
}

/** Equal names get the same numbers in the next run, so that each result meets itself. */
void TestBatchInputs::repeatsItselfWithoutNewNames()
{
    QFETCH(QByteArray, ifTaken);
    const World world;
    const QStringList names = {world.picture("x/a.png"), world.picture("y/a.png")};
    const QByteArray json = R"({"quorlin": 1, "operations": [{"do": "turn", "degrees": 90}],
        "outputs": [{"type": "png", "ifTaken": ")" +
                            ifTaken + R"("}]})";
    BatchOptions options;
    options.destination = {world.folder.path("out"), false};
    World::run(json, names, options);
    const QStringList made = world.folder.names("out");
    QCOMPARE(made.size(), 2);
    const auto lines = World::run(json, names, options);
    QCOMPARE(lines[1].output, world.folder.path("out/a (2).png"));
    QTEST(int(lines[1].status), "status");
    QCOMPARE(world.folder.names("out"), made);
}

void TestBatchInputs::keepsNamesOfAPlan()
{
    const World world;
    const QStringList names = {world.picture("x/a.png"), world.picture("y/a.png")};
    const QByteArray json = R"({"quorlin": 1, "outputs": [{"type": "png"}]})";
    BatchOptions options;
    options.destination = {world.folder.path("out"), false};
    options.isDryRun = true;
    QByteArray report;
    for (const ReportLine &line : World::run(json, names, options))
        report += jsonLine(line, recipeName(json));
    QVERIFY(world.folder.write("plan", report));
    options.isDryRun = false;
    options.plan = EarlierReport::read(world.folder.path("plan"));
    world.picture("out/a.png"); // somebody was faster
    const auto lines = World::run(json, names, options);
    QCOMPARE(lines[0].output, world.folder.path("out/a (3).png"));
    QCOMPARE(lines[1].output, world.folder.path("out/a (2).png")); // its own, as it was planned
}

/** A killed run may have put a result in its place and not have written its line. */
void TestBatchInputs::knowsResultsWhoseLineIsLost()
{
    const World world;
    const QStringList names = {world.picture("a.png"), world.picture("b.png")};
    const QByteArray json = R"({"quorlin": 1, "outputs": [{"type": "png", "folder": "out"}]})";
    const auto before = World::run(json, names);
    QVERIFY(world.folder.write("report", jsonLine(before[0], recipeName(json))));
    BatchOptions options;
    options.resumed = EarlierReport::read(world.folder.path("report"));
    const auto lines = World::run(json, names, options);
    QCOMPARE(lines.size(), 1);
    if (!isResultOf(before[1].output, recipeName(json)))
        QSKIP("this disk has no place for notes on files");
    QCOMPARE(lines[0].output, before[1].output);
    QCOMPARE(world.folder.names("out").size(), 2);
    // Somebody else's file stays.
    QVERIFY(world.folder.write("out/b.png", "another"));
    QCOMPARE(World::run(json, names, options)[0].output, world.folder.path("out/b (2).png"));
}

void TestBatchInputs::endsALineThatWasCutOff()
{
    const World world;
    QVERIFY(world.folder.write("report", "{\"a\": 1}\n{\"inp"));
    {
        ReportFile report;
        QCOMPARE(report.open(world.folder.path("report"), ReportFile::Start::Added), QString());
        QVERIFY(report.add("{}\n"));
    }
    QCOMPARE(world.folder.read("report"), QByteArray("{\"a\": 1}\n{\"inp\n{}\n"));
    {
        ReportFile report;
        QCOMPARE(report.open(world.folder.path("report"), ReportFile::Start::Empty), QString());
    }
    QCOMPARE(world.folder.read("report"), QByteArray());
}

void TestBatchInputs::writesNoReportOverAPicture()
{
    const World world;
    world.picture("a.png");
    const QByteArray before = world.folder.read("a.png");
    ReportFile report;
    QVERIFY(!report.open(world.folder.path("a.png"), ReportFile::Start::Empty).isEmpty());
    QVERIFY(!report.open(world.folder.path("a.png"), ReportFile::Start::Added).isEmpty());
    QCOMPARE(world.folder.read("a.png"), before);
}

void TestBatchInputs::tellsThatAReportCannotBeWritten()
{
    const World world;
    ReportFile report;
    QVERIFY(!report.open(world.folder.path("none/report"), ReportFile::Start::Empty).isEmpty());
    if (!QFile::exists(QStringLiteral("/dev/full")))
        QSKIP("there is no device that is always full");
    ReportFile full;
    QCOMPARE(full.open(QStringLiteral("/dev/full"), ReportFile::Start::Empty), QString());
    QVERIFY(!full.add("{}\n"));
}

QUORLIN_TEST(TestBatchInputs)
#include "tst_batch_inputs.moc"
