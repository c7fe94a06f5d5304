#include "jobs/desk/recipe_errand.h"
#include "jobs/desk/worker_desk.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"
#include "tests/unit/jobs/batches.h"

#include <QDir>
#include <QImage>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <csignal>

#include <sys/resource.h>
#include <unistd.h>

using namespace jobs;

/** Errands of a process with windows: each has one answer, whatever happens to the workers. */
class TestWorkerDesk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesTheSameWithAnyNumber();
    void keepsItsWorkers();
    void isPoliteToOthers();
    void takesNoMoreMemoryThanItMay_data();
    void takesNoMoreMemoryThanItMay();
    void answersForEachPicture_data();
    void answersForEachPicture();
    void dropsWhatIsWaitingAndWhatIsMade();
    void doesWhatIsUrgentFirst();
    void tellsEachWorkerItsRecipe();
    void tellsThatThereIsNoWorker();
    void goesOnAfterKilledWorkers();
    void refusesWhatIsNoRecipe();
};

namespace {

const QByteArray recipe =
    R"({"quorlin": 1, "operations": [{"do": "resize", "longest": 40}], "outputs": [{"type": "png"}]})";

using Outcome = RecipeResult::Outcome;

struct World
{
    ScratchFolder folder;
    QMap<QString, RecipeResult> results; ///< by the names of the pictures
    QStringList order;
    std::shared_ptr<const SharedRecipe> shared = *SharedRecipe::from(recipe);

    World() { QDir(folder.path("")).mkdir(QStringLiteral("out")); }

    QString add(const QString &name, QSize size = {64, 48})
    {
        QImage image(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                image.setPixel(x, y, qRgb(x * 3 % 256, y * 5 % 256, int(qHash(name) % 256)));
        const QString path = folder.path(qPrintable(name));
        if (!image.save(path))
            qFatal("no picture");
        return path;
    }
    QString target(const QString &name) const { return folder.path("out/") + name; }

    std::shared_ptr<RecipeErrand> errand(const QString &name)
    {
        return std::make_shared<RecipeErrand>(
            shared, RecipeErrand::Task{folder.path(qPrintable(name)), target(name), 0, true, QSize(64, 48)},
            [this, name](const RecipeResult &result) {
                QVERIFY2(!results.contains(name), qPrintable(name));
                results.insert(name, result);
                order.append(name);
            });
    }

    QByteArray made(const QString &name) const
    {
        QFile file(target(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

WorkerDesk::Options with(int workers, const QString &program = batches::workerProgram())
{
    return {program, workers, {20, qint64(512) << 20, 10}};
}

QStringList manyNames(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names.append(QStringLiteral("p%1.png").arg(i, 3, 10, QChar(u'0')));
    return names;
}

} // namespace

void TestWorkerDesk::makesTheSameWithAnyNumber()
{
    QMap<int, QMap<QString, QByteArray>> bytes;
    for (const int workers : {1, 4}) {
        World world;
        WorkerDesk desk(with(workers));
        const QStringList names = manyNames(24);
        for (const QString &name : names) {
            world.add(name);
            desk.add(world.errand(name), Urgency::Soon);
        }
        QVERIFY(world.results.isEmpty()); // nothing is called out of add()
        QTRY_COMPARE_WITH_TIMEOUT(world.results.size(), names.size(), 30000);
        for (const QString &name : names) {
            const RecipeResult &result = world.results[name];
            QVERIFY2(result.outcome == Outcome::Ok, qPrintable(result.reason));
            QCOMPARE(result.size, QSize(40, 30));
            QCOMPARE(qint64(world.made(name).size()), result.bytes);
            QCOMPARE(QImage(world.target(name)).size(), result.size);
            bytes[workers].insert(name, world.made(name));
        }
        QVERIFY(desk.count() <= workers);
    }
    QCOMPARE(bytes[1], bytes[4]);
}

void TestWorkerDesk::keepsItsWorkers()
{
    World world;
    world.add(QStringLiteral("a.png"));
    world.add(QStringLiteral("b.png"));
    WorkerDesk desk(with(2));
    desk.warmUp();
    QCOMPARE(desk.count(), 1);
    desk.warmUp();
    desk.add(world.errand(QStringLiteral("a.png")), Urgency::Soon);
    QTRY_COMPARE_WITH_TIMEOUT(world.results.size(), 1, 30000);
    desk.add(world.errand(QStringLiteral("b.png")), Urgency::Soon);
    QTRY_COMPARE_WITH_TIMEOUT(world.results.size(), 2, 30000);
    QCOMPARE(desk.count(), 1);
}

void TestWorkerDesk::isPoliteToOthers()
{
    WorkerDesk desk(with(1));
    desk.warmUp();
    const QStringList processes = QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[0-9]*")}, QDir::Dirs);
    int workers = 0;
    for (const QString &process : processes) {
        QFile file(QStringLiteral("/proc/%1/stat").arg(process));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray stat = file.readAll();
        const QList<QByteArray> words = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
        if (words.value(1).toInt() != ::getpid() || words.value(0) == "Z")
            continue;
        ++workers;
        constexpr int most = 19;
        QCOMPARE(::getpriority(PRIO_PROCESS, id_t(process.toInt())),
                 std::min(most, ::getpriority(PRIO_PROCESS, 0) + 10));
    }
    QCOMPARE(workers, 1);
}

namespace {

/** Errands that go on until they are dropped. */
struct AtOnce
{
    int now = 0;
    int begun = 0;
};

/** An errand that a worker never finishes, with what it says of its memory. */
class LongErrand : public RecipeErrand
{
public:
    LongErrand(const World &world, const QString &name, qint64 bytes, AtOnce &counts)
        : RecipeErrand(world.shared, {world.folder.path(qPrintable(name)), world.target(name), 0, true, QSize(64, 48)},
                       [](const RecipeResult &result) { QFAIL(qPrintable(result.reason)); }),
          m_bytes(bytes), m_counts(counts)
    {
    }
    ~LongErrand() override { m_counts.now -= m_isBegun ? 1 : 0; }

    std::vector<platform::Message> begin(Hand &hand) override
    {
        m_isBegun = true;
        ++m_counts.now;
        ++m_counts.begun;
        return RecipeErrand::begin(hand);
    }
    qint64 expectedBytes() const override { return m_bytes; }

private:
    qint64 m_bytes;
    AtOnce &m_counts;
    bool m_isBegun = false;
};

} // namespace

void TestWorkerDesk::takesNoMoreMemoryThanItMay_data()
{
    QTest::addColumn<qint64>("most");
    QTest::addColumn<int>("atOnce");
    QTest::newRow("what is free") << qint64(0) << 3;
    QTest::newRow("all three") << qint64(40) << 3;
    QTest::newRow("two") << qint64(25) << 2;
    QTest::newRow("one at a time") << qint64(15) << 1;
    QTest::newRow("less than one takes") << qint64(5) << 1;
}

// Workers for which there is no memory do what needs none and is not urgent, so it shows that they were ready.
void TestWorkerDesk::takesNoMoreMemoryThanItMay()
{
    QFETCH(qint64, most);
    QFETCH(int, atOnce);
    constexpr int megabyteBits = 20;
    constexpr int workers = 3;
    constexpr int largeOnes = 5;
    World world;
    AtOnce large;
    AtOnce small;
    WorkerDesk desk({QStringLiteral(QUORLIN_TRIAL_WORKER), workers, {300, qint64(512) << megabyteBits, 10}});
    desk.setMostMemory(most << megabyteBits);
    QList<WorkerDesk::Number> asked;
    const auto add = [&](const QString &name, qint64 megabytes, AtOnce &counts, Urgency urgency) {
        world.add(name);
        asked.append(desk.add(std::make_shared<LongErrand>(world, name, megabytes << megabyteBits, counts), urgency));
    };
    for (int i = 0; i < largeOnes; ++i)
        add(QStringLiteral("try-hang-large%1.png").arg(i), 10, large, Urgency::Soon);
    for (int i = 0; i < workers; ++i)
        add(QStringLiteral("try-hang-small%1.png").arg(i), 0, small, Urgency::Later);
    for (int over = 0; over < largeOnes; ++over) {
        QTRY_COMPARE_WITH_TIMEOUT(large.now + small.now, workers, 30000);
        QCOMPARE(large.now, std::min(atOnce, largeOnes - over));
        QCOMPARE(large.begun, large.now + over);
        desk.drop(asked.takeFirst());
    }
    QCOMPARE(large.now, 0);
}

void TestWorkerDesk::answersForEachPicture_data()
{
    QTest::addColumn<QString>("reason");
    QTest::newRow("crash") << "its reader crashed";
    QTest::newRow("nonsense") << "its reader crashed";
    QTest::newRow("again") << "its reader crashed"; // it claims twice that it had to load libraries
    QTest::newRow("hang") << "it took longer than 2 seconds";
    QTest::newRow("memory") << "it needs more than 300 MB of memory";
}

void TestWorkerDesk::answersForEachPicture()
{
    QFETCH(QString, reason);
    World world;
    // Only what hangs is to run out of time, however slow it is here.
    const int seconds = reason.contains(QLatin1String("longer")) ? 2 : 60;
    WorkerDesk desk({QStringLiteral(QUORLIN_TRIAL_WORKER), 2, {seconds, qint64(300) << 20, 10}});
    const QString bad = QStringLiteral("try-%1.png").arg(QLatin1String(QTest::currentDataTag()));
    QStringList names = manyNames(10);
    names.insert(4, bad);
    for (const QString &name : std::as_const(names)) {
        world.add(name);
        desk.add(world.errand(name), Urgency::Soon);
    }
    QTRY_COMPARE_WITH_TIMEOUT(world.results.size(), names.size(), 60000);
    for (const QString &name : std::as_const(names)) {
        const RecipeResult &result = world.results[name];
        QCOMPARE(result.reason, name == bad ? reason : QString());
        QCOMPARE(QFile::exists(world.target(name)), name != bad);
    }
}

void TestWorkerDesk::dropsWhatIsWaitingAndWhatIsMade()
{
    World world;
    WorkerDesk desk(with(1, QStringLiteral(QUORLIN_TRIAL_WORKER)));
    for (const QString &name :
         {QStringLiteral("try-hang.png"), QStringLiteral("waits.png"), QStringLiteral("last.png")})
        world.add(name);
    const auto hanging = desk.add(world.errand(QStringLiteral("try-hang.png")), Urgency::Soon);
    const auto waiting = desk.add(world.errand(QStringLiteral("waits.png")), Urgency::Soon);
    desk.add(world.errand(QStringLiteral("last.png")), Urgency::Soon);
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(world.target(QStringLiteral("try-hang.png"))), 30000);
    desk.drop(waiting);
    desk.drop(hanging);
    desk.drop(hanging);
    QTRY_COMPARE_WITH_TIMEOUT(world.results.size(), 1, 30000);
    QCOMPARE(world.results.firstKey(), QStringLiteral("last.png"));
    QCOMPARE(QDir(world.folder.path("out")).entryList(QDir::Files), QStringList{QStringLiteral("last.png")});
}

void TestWorkerDesk::doesWhatIsUrgentFirst()
{
    World world;
    WorkerDesk desk(with(1));
    const QList<std::pair<QString, Urgency>> asked = {{QStringLiteral("one.png"), Urgency::Later},
                                                      {QStringLiteral("two.png"), Urgency::Later},
                                                      {QStringLiteral("three.png"), Urgency::Soon}};
    for (const auto &[name, urgency] : asked) {
        world.add(name);
        desk.add(world.errand(name), urgency);
    }
    QTRY_COMPARE_WITH_TIMEOUT(world.results.size(), 3, 30000);
    QCOMPARE(world.order,
             (QStringList{QStringLiteral("three.png"), QStringLiteral("one.png"), QStringLiteral("two.png")}));
}

void TestWorkerDesk::tellsEachWorkerItsRecipe()
{
    World world;
    WorkerDesk desk(with(1));
    const auto small = *SharedRecipe::from(QByteArray(recipe).replace("40", "16"));
    const auto large = world.shared;
    const QStringList names = manyNames(6);
    for (int i = 0; i < names.size(); ++i) {
        world.add(names[i]);
        world.shared = i % 2 == 0 ? small : large;
        desk.add(world.errand(names[i]), Urgency::Soon);
    }
    QTRY_COMPARE_WITH_TIMEOUT(world.results.size(), names.size(), 30000);
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(world.results[names[i]].size, i % 2 == 0 ? QSize(16, 12) : QSize(40, 30));
}

void TestWorkerDesk::tellsThatThereIsNoWorker()
{
    for (const char *program : {"/nowhere/worker", "/bin/true"}) {
        World world;
        world.add(QStringLiteral("a.png"));
        WorkerDesk desk(with(2, QString::fromLatin1(program)));
        desk.add(world.errand(QStringLiteral("a.png")), Urgency::Soon);
        QTRY_COMPARE_WITH_TIMEOUT(world.results.size(), 1, 30000);
        QVERIFY(world.results.first().outcome == Outcome::Failed);
        QVERIFY(!world.results.first().reason.isEmpty());
        QVERIFY(!QFile::exists(world.target(QStringLiteral("a.png"))));
    }
}

/** Pictures that are broken, gone or none at all are Failed, and nothing is left of them; the others are made. */
void TestWorkerDesk::refusesWhatIsNoRecipe()
{
    QVERIFY(!SharedRecipe::from("{}"));
    QVERIFY(!SharedRecipe::from(R"({"quorlin": 1, "outputs": [{}, {}]})"));
    World world;
    WorkerDesk desk(with(1));
    world.add(QStringLiteral("good.png"));
    QFile broken(world.folder.path("broken.png"));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no picture");
    broken.close();
    for (const QString &name : {QStringLiteral("gone.png"), QStringLiteral("broken.png"), QStringLiteral("good.png")})
        desk.add(world.errand(name), Urgency::Soon);
    QTRY_COMPARE_WITH_TIMEOUT(world.results.size(), 3, 30000);
    QVERIFY(world.results[QStringLiteral("good.png")].outcome == Outcome::Ok);
    QVERIFY(world.results[QStringLiteral("gone.png")].cause == RecipeResult::Cause::Vanished);
    for (const QString &name : {QStringLiteral("gone.png"), QStringLiteral("broken.png")}) {
        QVERIFY(world.results[name].outcome == Outcome::Failed);
        QVERIFY(!world.results[name].reason.isEmpty());
        QVERIFY(!QFile::exists(world.target(name)));
    }
}

void TestWorkerDesk::goesOnAfterKilledWorkers()
{
    World world;
    WorkerDesk desk(with(2));
    const QStringList names = manyNames(tests::repetitions(20, 200));
    for (const QString &name : names) {
        world.add(name);
        desk.add(world.errand(name), Urgency::Soon);
    }
    // A worker that is killed costs no picture, unless the second one has the same fate.
    QTRY_VERIFY_WITH_TIMEOUT(world.results.size() > 3, 30000);
    QFile children(QStringLiteral("/proc/self/task/%1/children").arg(::getpid()));
    QVERIFY(children.open(QIODevice::ReadOnly));
    const QList<QByteArray> numbers = children.readAll().simplified().split(' ');
    QVERIFY(!numbers.isEmpty());
    ::kill(numbers.constFirst().toInt(), SIGKILL);
    QTRY_COMPARE_WITH_TIMEOUT(world.results.size(), names.size(), 60000);
    for (const QString &name : names)
        QVERIFY2(world.results[name].outcome == Outcome::Ok, qPrintable(world.results[name].reason));
}

QUORLIN_TEST(TestWorkerDesk)
#include "tst_worker_desk.moc"
