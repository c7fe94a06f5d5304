#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"
#include "tests/unit/jobs/batches.h"
#include "tests/workers/attacks.h"

#include <QDirIterator>
#include <QImage>
#include <QRandomGenerator>
#include <QTest>
#include <QTimer>

#include <csignal>

#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace jobs;

/** Workers that crash, hang and attack what is around them: one picture is lost at most, and nothing else happens. */
class TestWorkers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isConfined();
    void attacksNothing_data();
    void attacksNothing();
    void givesUpOnePicture_data();
    void givesUpOnePicture();
    void triesTheLastPictureAgain();
    void refusesWhatTheRecipeLacks();
    void tellsThatThereIsNoWorker();
    void survivesSignals_data();
    void survivesSignals();
    void makesTheSameWithAnyNumber();
    void usesOneProcessorEach();
    void stops_data();
    void stops();
    void diesWithItsParent();
};

namespace {

const QByteArray recipe = R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 40}],
    "outputs": [{"type": "jpeg", "folder": "out"}, {"type": "png", "folder": "out"}]})";

struct World
{
    ScratchFolder folder;
    QStringList pictures;

    QString add(const QString &name, QSize size = {64, 48})
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(qRgb(int(pictures.size()) % 256, 60, 90));
        const QString path = folder.path(qPrintable(name));
        if (!image.save(path))
            qFatal("no picture");
        pictures.append(path);
        return path;
    }

    void addMany(int count, QSize size = {64, 48})
    {
        for (int i = 0; i < count; ++i)
            add(QStringLiteral("p%1.png").arg(i, 3, 10, QChar(u'0')), size);
    }
};

/** The numbers of this process' children. */
QList<pid_t> childProcesses()
{
    QList<pid_t> found;
    QDirIterator processes(QStringLiteral("/proc"), QDir::Dirs);
    while (processes.hasNext()) {
        QFile file(processes.next() + QStringLiteral("/stat"));
        const QByteArray name = processes.fileName().toLatin1();
        if (name.toInt() <= 0 || !file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray stat = file.readAll();
        const QList<QByteArray> words = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        if (words.value(1).toInt() == ::getpid() && words.value(0) != "Z")
            found.append(name.toInt());
    }
    return found;
}

/** Whether the pictures of a line are there, whole, and nothing else is in the folder of the results. */
QString faultOf(const World &world, const QList<ReportLine> &lines)
{
    QSet<QString> expected;
    for (const ReportLine &line : lines) {
        if (line.status != LineStatus::Ok)
            continue;
        expected.insert(line.output);
        if (QImage(line.output).size() != line.size || QFileInfo(line.output).size() != line.bytes)
            return QStringLiteral("%1 is not what the report says").arg(line.output);
    }
    QDirIterator files(world.folder.path("out"), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        if (const QString path = files.next(); !expected.remove(path))
            return QStringLiteral("%1 is left").arg(path);
    return expected.isEmpty() ? QString() : QStringLiteral("%1 is missing").arg(*expected.begin());
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

QString trialProgram()
{
    return QStringLiteral(QUORLIN_TRIAL_WORKER);
}

} // namespace

void TestWorkers::isConfined()
{
    const auto said = confinementOf(batches::workerProgram());
    QVERIFY(said);
    QVERIFY(said->hasNoNewPrivileges);
    QVERIFY(said->hasCallRules);
    QVERIFY(said->hasFileRules); // of every kernel that this is tested on
    QVERIFY(!confinementOf(QStringLiteral("/nowhere/worker")));
    QVERIFY(!confinementOf(QStringLiteral("/bin/true")));
    QVERIFY(childProcesses().isEmpty());
}

void TestWorkers::attacksNothing_data()
{
    QTest::addColumn<bool>("isEnded");
    for (const Attack &attack : attacks)
        QTest::newRow(attack.name.data()) << attack.isEnded;
}

void TestWorkers::attacksNothing()
{
    QFETCH(bool, isEnded);
    World world;
    world.add(QStringLiteral("a.png"));
    const QString tried = world.add(QStringLiteral("try-%1.png").arg(QLatin1String(QTest::currentDataTag())));
    world.add(QStringLiteral("z.png"));
    const QString victim = world.folder.path("victim");
    world.folder.write("victim", "nobody changes this");
    const auto stateOf = [](const QString &path) {
        struct stat state = {};
        ::stat(QFile::encodeName(path).constData(), &state);
        return QStringLiteral("%1 %2 %3 %4 %5")
            .arg(state.st_size)
            .arg(state.st_mode)
            .arg(state.st_uid)
            .arg(state.st_mtim.tv_nsec)
            .arg(::listxattr(QFile::encodeName(path).constData(), nullptr, 0));
    };
    const QStringList before = {stateOf(victim), stateOf(tried)};
    const QStringList names = world.folder.names("") << QStringLiteral("out");
    const pid_t process = ::fork();
    if (process == 0) {
        ::pause();
        ::_exit(0);
    }
    qputenv("QUORLIN_TRIAL_VICTIM", QFile::encodeName(victim));
    qputenv("QUORLIN_TRIAL_PROCESS", QByteArray::number(process));
    batches::Run run;
    run.crew = {trialProgram(), 2, {}};
    const auto lines = batches::sortedLinesOf(recipe, world.pictures, run);
    int status = 0;
    const bool lives = ::waitpid(process, &status, WNOHANG) == 0;
    ::kill(process, SIGKILL);
    ::waitpid(process, &status, 0);
    QVERIFY(lives);
    QCOMPARE(lines.size(), 6);
    for (int i : {0, 1, 4, 5})
        QVERIFY2(lines[i].status == LineStatus::Ok, qPrintable(lines[i].reason));
    for (int i : {2, 3}) {
        QCOMPARE(lines[i].status, LineStatus::Failed);
        QVERIFY2(isEnded ? lines[i].reason == QLatin1String("its reader crashed")
                         : lines[i].reason.startsWith(QLatin1String("refused: E")),
                 qPrintable(lines[i].reason));
    }
    QCOMPARE(QStringList({stateOf(victim), stateOf(tried)}), before);
    QCOMPARE(world.folder.read("victim"), QByteArray("nobody changes this"));
    QCOMPARE(sorted(world.folder.names("")), sorted(names));
    QCOMPARE(faultOf(world, lines), QString());
    QVERIFY(childProcesses().isEmpty());
}

void TestWorkers::givesUpOnePicture_data()
{
    QTest::addColumn<QString>("reason");
    QTest::newRow("crash") << QStringLiteral("its reader crashed");
    QTest::newRow("nonsense") << QStringLiteral("its reader crashed");
    QTest::newRow("hang") << QStringLiteral("it took longer than 1 seconds");
    QTest::newRow("memory") << QStringLiteral("it needs more than 300 MB of memory");
}

void TestWorkers::givesUpOnePicture()
{
    QFETCH(QString, reason);
    World world;
    world.addMany(5);
    // Only what hangs is to run out of time, however slow it is here.
    const int seconds = reason.contains(QLatin1String("longer")) ? 1 : 60;
    const QString tried = world.add(QStringLiteral("try-%1.png").arg(QLatin1String(QTest::currentDataTag())));
    world.add(QStringLiteral("z.png"));
    batches::Run run;
    run.crew = {trialProgram(), 2, {seconds, qint64(300) << 20}};
    const auto lines = batches::sortedLinesOf(recipe, world.pictures, run);
    QCOMPARE(lines.size(), 14);
    for (const ReportLine &line : lines) {
        const bool isTried = line.input == tried;
        QVERIFY2(line.status == (isTried ? LineStatus::Failed : LineStatus::Ok), qPrintable(line.input + line.reason));
        QCOMPARE(line.reason, isTried ? reason : QString());
        QCOMPARE(line.output.isEmpty(), isTried);
    }
    QCOMPARE(run.summary.ok, 12);
    QCOMPARE(run.summary.failed, 2);
    QCOMPARE(faultOf(world, lines), QString());
    QVERIFY(childProcesses().isEmpty());
}

/** The other worker has nothing to do then, and has had other pictures: it is not the one that tries again. */
void TestWorkers::triesTheLastPictureAgain()
{
    World world;
    world.addMany(20);
    world.add(QStringLiteral("try-crash.png"));
    for (const int workers : {1, 2, 3}) {
        QDir(world.folder.path("out")).removeRecursively();
        batches::Run run;
        run.crew = {trialProgram(), workers, {}};
        QCOMPARE(batches::sortedLinesOf(recipe, world.pictures, run).last().reason,
                 QStringLiteral("its reader crashed"));
        QCOMPARE(run.summary.ok, 40);
    }
}

void TestWorkers::refusesWhatTheRecipeLacks()
{
    const World world;
    world.folder.write("text.png", "no picture");
    for (const char *name : {"none.png", "text.png"}) {
        const QByteArray json = QByteArray(R"({"quorlin": 1, "operations": [{"do": "watermark", "picture": ")") + name +
                                "\"}], \"outputs\": [{}]}";
        Crew crew({batches::workerProgram(), 1, {}}, json, world.folder.path());
        const QString problem = crew.begin();
        QVERIFY2(problem.startsWith(QLatin1String("operations[0].picture: ")), qPrintable(problem));
    }
    Crew crew({batches::workerProgram(), 1, {}}, "[]", world.folder.path());
    QVERIFY(!crew.begin().isEmpty());
    QCOMPARE(crew.count(), 0); // nobody was asked for that
}

void TestWorkers::tellsThatThereIsNoWorker()
{
    for (const char *program : {"/nowhere/worker", "/bin/true"}) {
        Crew crew({QString::fromLatin1(program), 1, {}}, recipe, QStringLiteral("/"));
        QVERIFY(!crew.begin().isEmpty());
    }
    QVERIFY(childProcesses().isEmpty());
}

void TestWorkers::survivesSignals_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGKILL") << SIGKILL;
    QTest::newRow("SIGSEGV") << SIGSEGV;
    QTest::newRow("SIGSTOP") << SIGSTOP;
}

/** Signals to workers at random: no picture is hit twice here but by chance, so nearly all are made, and none by half. */
void TestWorkers::survivesSignals()
{
    QFETCH(int, signal);
    World world;
    world.addMany(tests::repetitions(30, 100), {1200, 900});
    int left = signal == SIGSTOP ? tests::repetitions(2, 20) : tests::repetitions(6, 90);
    int sent = 0;
    int batch = 0;
    while (left > 0) {
        QDir(world.folder.path("out")).removeRecursively();
        batches::Run run;
        run.crew = {batches::workerProgram(), 2, {2, qint64(2048) << 20}};
        QTimer shots;
        bool isUnderWay = false;
        run.onLine = [&isUnderWay](const ReportLine &) { isUnderWay = true; };
        const int before = sent;
        QObject::connect(&shots, &QTimer::timeout, &shots, [&] {
            const QList<pid_t> workers = childProcesses();
            if (left <= 0 || workers.isEmpty() || !isUnderWay)
                return;
            ::kill(workers[QRandomGenerator::global()->bounded(int(workers.size()))], signal);
            isUnderWay =
                false; // until something was made again: a slow machine starts workers more slowly than they are shot
            --left;
            ++sent;
        });
        shots.start(signal == SIGSTOP ? 300 : 120);
        const auto lines = batches::sortedLinesOf(recipe, world.pictures, run);
        shots.stop();
        QCOMPARE(lines.size(), world.pictures.size() * 2);
        int failed = 0;
        for (const ReportLine &line : lines) {
            failed += line.status != LineStatus::Ok;
            QVERIFY2(line.status == LineStatus::Ok || line.reason == QLatin1String("its reader crashed") ||
                         line.reason == QLatin1String("it took longer than 2 seconds"),
                     qPrintable(line.reason));
        }
        // Being stopped costs the picture at once, every other end only the second time.
        QVERIFY2(failed <= 2 * (signal == SIGSTOP ? sent - before : (sent - before) / 2),
                 qPrintable(QString::number(failed)));
        QCOMPARE(faultOf(world, lines), QString());
        QVERIFY(childProcesses().isEmpty());
        QVERIFY(++batch < 200);
    }
}

void TestWorkers::makesTheSameWithAnyNumber()
{
    World world;
    world.addMany(tests::repetitions(12, 60), {300, 200});
    world.folder.write("broken.png", "no picture");
    world.pictures.insert(5, world.folder.path("broken.png"));
    world.add(QStringLiteral("p003.jpg")); // the same name for another picture
    const QByteArray numbered =
        R"({"quorlin": 1, "operations": [{"do": "watermark", "text": "{name} {counter:01} {width}"}],
        "outputs": [{"type": "jpeg", "name": "{counter:001}", "folder": "out"}, {"type": "png", "folder": "out"}]})";
    QList<QByteArray> reports;
    QList<QByteArray> files;
    for (const int workers : {1, 2, 16}) {
        QDir(world.folder.path("out")).removeRecursively();
        batches::Run run;
        run.crew = {batches::workerProgram(), workers, {}};
        QByteArray report;
        for (ReportLine line : batches::sortedLinesOf(numbered, world.pictures, run)) {
            line.milliseconds = 0;
            report += jsonLine(line, run.options.recipe);
        }
        run.summary.seconds = 0;
        QCOMPARE(run.summary.jobs, workers);
        run.summary.jobs = 0;
        reports.append(report + jsonLine(run.summary));
        QByteArray all;
        for (const QString &name : world.folder.names("out"))
            all += name.toUtf8() + world.folder.read(qPrintable(QStringLiteral("out/") + name));
        files.append(all);
    }
    QVERIFY(reports[0].contains("p003 (2).png"));
    QCOMPARE(reports[1], reports[0]);
    QCOMPARE(reports[2], reports[0]);
    QVERIFY(files[1] == files[0] && files[2] == files[0] && !files[0].isEmpty());
}

/** However many there are, and whatever its environment wants: the others are for other workers. */
void TestWorkers::usesOneProcessorEach()
{
    constexpr qsizetype wanted = 16;
    qputenv("VIPS_CONCURRENCY", QByteArray::number(wanted));
    World world;
    world.addMany(4, {3000, 2000});
    qsizetype most = 0;
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, &looks, [&most] {
        for (const pid_t worker : childProcesses())
            most = std::max(
                most,
                QDir(QStringLiteral("/proc/%1/task").arg(worker)).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size());
    });
    looks.start(2);
    batches::Run run;
    run.crew = {batches::workerProgram(), 1, {}};
    const auto lines = batches::sortedLinesOf(recipe, world.pictures, run);
    qunsetenv("VIPS_CONCURRENCY");
    QCOMPARE(run.summary.ok, int(lines.size()));
    // One that works, one that waits for it, and one that writes.
    QVERIFY2(most > 1 && most < wanted / 2, qPrintable(QString::number(most)));
}

void TestWorkers::stops_data()
{
    QTest::addColumn<bool>("isNow");
    QTest::addColumn<QString>("name");
    QTest::newRow("soon") << false << QStringLiteral("z.png");
    QTest::newRow("now") << true << QStringLiteral("z.png");
    QTest::newRow("soon, over a picture that takes for ever") << false << QStringLiteral("try-hang.png");
}

void TestWorkers::stops()
{
    QFETCH(bool, isNow);
    QFETCH(QString, name);
    World world;
    world.add(name);
    world.addMany(60, {900, 600});
    batches::Run run;
    run.crew = {trialProgram(), 2, {}};
    int count = 0;
    run.onLine = [&count](const ReportLine &) { ++count; };
    QElapsedTimer sinceStop;
    run.isStopped = [&] {
        if (count < 6)
            return Stop::No;
        if (!sinceStop.isValid())
            sinceStop.start();
        return isNow ? Stop::Now : Stop::Soon;
    };
    const auto lines = batches::sortedLinesOf(recipe, world.pictures, run);
    QVERIFY(sinceStop.isValid() && sinceStop.elapsed() < 10'000);
    QVERIFY(lines.size() >= 6 && lines.size() < 60 && lines.size() % 2 == 0);
    for (const ReportLine &line : lines)
        QVERIFY2(line.status == LineStatus::Ok, qPrintable(line.reason));
    QCOMPARE(run.summary.ok, int(lines.size()));
    QCOMPARE(run.summary.inputs, int(lines.size()) / 2);
    QCOMPARE(faultOf(world, lines), QString());
    QVERIFY(childProcesses().isEmpty());
}

/** A worker that is in the middle of something learns of no closed socket. */
void TestWorkers::diesWithItsParent()
{
    World world;
    world.add(QStringLiteral("try-hang.png"));
    int ends[2] = {-1, -1};
    QCOMPARE(::pipe(ends), 0);
    const pid_t parent = ::fork();
    if (parent == 0) {
        QTimer::singleShot(1500, [&] {
            const pid_t worker = childProcesses().value(0);
            (void)::write(ends[1], &worker, sizeof worker);
            ::raise(SIGKILL);
        });
        batches::Run run;
        run.crew = {trialProgram(), 1, {}};
        (void)batches::sortedLinesOf(recipe, world.pictures, run);
        ::_exit(0);
    }
    pid_t worker = 0;
    QCOMPARE(::read(ends[0], &worker, sizeof worker), ssize_t(sizeof worker));
    int status = 0;
    QCOMPARE(::waitpid(parent, &status, 0), parent);
    QVERIFY(WIFSIGNALED(status) && worker > 0);
    QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(QStringLiteral("/proc/%1/exe").arg(worker)) ||
                                 QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(worker)).isEmpty(),
                             5000);
    ::close(ends[0]);
    ::close(ends[1]);
}

QUORLIN_TEST(TestWorkers)

#include "tst_workers.moc"
