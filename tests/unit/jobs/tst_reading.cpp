#include "jobs/reading/read_errand.h"
#include "tests/support/corpus.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"
#include "tests/unit/jobs/batches.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QTest>

#include <memory>

using namespace jobs;

/** Looks into pictures by workers, which may crash, hang or say nonsense: each has one answer, and nobody waits for more. */
class TestReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersOutOfTheEventLoop();
    void forgetsWhatNobodyWaitsFor();
    void goesWithWhoeverAsked();
    void saysWhatHappened_data();
    void saysWhatHappened();
    void waitsWhereItHasTo();
    void waitsNoLongerThanItMay();
    void doesNotCountTheLoadingOfLibraries();
    void saysThatThereIsNoWorker();
    void asksFromWithinAnAnswer();
    void readsTheCorpus();
};

namespace {

struct World
{
    ScratchFolder folder;

    QString add(const QString &name, QSize size = {64, 48})
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(qRgb(10, 60, 90));
        const QString path = folder.path(qPrintable(name));
        if (!image.save(path))
            qFatal("no picture");
        return path;
    }
};

WorkerDesk::Options with(int workers, const QString &program = batches::workerProgram())
{
    return {program, workers, {20, qint64(512) << 20, 0}};
}

QString trialProgram()
{
    return QStringLiteral(QUORLIN_TRIAL_WORKER);
}

ReadRequest facts(const QString &path, int seconds = 0)
{
    ReadRequest request{Reading::Facts, path, {}};
    request.seconds = seconds;
    return request;
}

ReadRequest thumbnail(const QString &path)
{
    return {Reading::Thumbnail, path, {{QStringLiteral("width"), 24}, {QStringLiteral("height"), 16}}};
}

} // namespace

void TestReading::answersOutOfTheEventLoop()
{
    World world;
    WorkerDesk desk(with(2));
    Reader reader(&desk);
    QList<QSize> sizes;
    constexpr int many = 20;
    for (int i = 1; i <= many; ++i)
        reader.ask(facts(world.add(QStringLiteral("p%1.png").arg(i), {i, 2 * i})), Urgency::Soon,
                   [&sizes](const ReadResult &result) { sizes.append(result.size()); });
    QVERIFY(sizes.isEmpty());
    QCOMPARE(reader.inWork(), many);
    QTRY_COMPARE_WITH_TIMEOUT(sizes.size(), many, 30000);
    QCOMPARE(reader.inWork(), 0);
    for (int i = 1; i <= many; ++i)
        QVERIFY(sizes.contains(QSize(i, 2 * i)));
}

void TestReading::forgetsWhatNobodyWaitsFor()
{
    World world;
    WorkerDesk desk(with(1));
    Reader reader(&desk);
    int answers = 0;
    QList<Reader::Number> numbers;
    for (int i = 0; i < 6; ++i)
        numbers.append(reader.ask(thumbnail(world.add(QStringLiteral("p%1.png").arg(i))), Urgency::Later,
                                  [&answers](const ReadResult &) { ++answers; }));
    QTRY_VERIFY_WITH_TIMEOUT(answers > 0, 30000); // so that one of the others is begun
    const int before = answers;
    for (const Reader::Number number : numbers)
        reader.drop(number);
    QCOMPARE(reader.inWork(), 0);
    bool isThere = false;
    reader.ask(facts(world.add(QStringLiteral("last.png"))), Urgency::Later,
               [&isThere](const ReadResult &result) { isThere = result.isGood(); });
    QTRY_VERIFY_WITH_TIMEOUT(isThere, 30000);
    QCOMPARE(answers, before);
    QCOMPARE(desk.count(), 1); // and none was ended for it
}

void TestReading::goesWithWhoeverAsked()
{
    World world;
    WorkerDesk desk(with(1));
    bool isCalled = false;
    {
        Reader reader(&desk);
        reader.ask(facts(world.add(QStringLiteral("a.png"))), Urgency::Now,
                   [&isCalled](const ReadResult &) { isCalled = true; });
    }
    Reader reader(&desk);
    bool isThere = false;
    reader.ask(facts(world.add(QStringLiteral("b.png"))), Urgency::Later,
               [&isThere](const ReadResult &) { isThere = true; });
    QTRY_VERIFY_WITH_TIMEOUT(isThere, 30000);
    QVERIFY(!isCalled);
}

void TestReading::saysWhatHappened_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("problem");
    QTest::newRow("crash") << QStringLiteral("read-crash.png") << QStringLiteral("its reader crashed");
    QTest::newRow("nonsense") << QStringLiteral("read-nonsense.png") << QStringLiteral("its reader crashed");
    QTest::newRow("hang") << QStringLiteral("read-hang.png") << QStringLiteral("it took longer than 1 seconds");
    QTest::newRow("memory") << QStringLiteral("read-memory.png")
                            << QStringLiteral("it needs more than 512 MB of memory");
}

void TestReading::saysWhatHappened()
{
    QFETCH(QString, name);
    QFETCH(QString, problem);
    World world;
    WorkerDesk desk(with(2, trialProgram()));
    Reader reader(&desk);
    ReadResult bad;
    int good = 0;
    const auto ask = [&](const QString &each) {
        ReadRequest request = facts(world.add(each));
        request.seconds = name.contains(QLatin1String("hang")) ? 1 : 0;
        reader.ask(request, Urgency::Soon, [&, each](const ReadResult &result) {
            if (each == name)
                bad = result;
            else
                good += result.size() == QSize(64, 48);
        });
    };
    for (const QString &each : {QStringLiteral("a.png"), name, QStringLiteral("b.png"), QStringLiteral("c.png")})
        ask(each);
    QTRY_COMPARE_WITH_TIMEOUT(reader.inWork(), 0, 60000);
    QCOMPARE(good, 3);
    QCOMPARE(bad.problem, problem);
    QVERIFY(bad.isReaderGone);
    QVERIFY(bad.values.isEmpty() && bad.image.isNull());
}

void TestReading::waitsWhereItHasTo()
{
    World world;
    WorkerDesk desk(with(1));
    for (int i = 1; i < 5; ++i) {
        const ReadResult result = readNow(facts(world.add(QStringLiteral("a.png"), {i, i})), desk);
        QCOMPARE(result.problem, QString());
        QCOMPARE(result.size(), QSize(i, i));
    }
    QCOMPARE(readNow(thumbnail(world.folder.path("a.png")), desk).image.size(), QSize(24, 16));
    const ReadResult missing = readNow(facts(world.folder.path("gone.png")), desk);
    QVERIFY(!missing.problem.isEmpty());
    QVERIFY(!missing.isReaderGone);
}

void TestReading::waitsNoLongerThanItMay()
{
    World world;
    WorkerDesk desk(with(1, trialProgram()));
    QCOMPARE(readNow(facts(world.add(QStringLiteral("read-hang.png")), 1), desk).problem,
             QStringLiteral("it took longer than 1 seconds"));
    QCOMPARE(readNow(facts(world.add(QStringLiteral("read-crash.png"))), desk).problem,
             QStringLiteral("its reader crashed"));
    QCOMPARE(readNow(facts(world.add(QStringLiteral("a.png"))), desk).size(), QSize(64, 48));
}

/** The trial spends three seconds on loading them before it looks into the picture, and then hangs. */
void TestReading::doesNotCountTheLoadingOfLibraries()
{
    World world;
    WorkerDesk desk(with(1, trialProgram()));
    const QString path = world.add(QStringLiteral("read-late.png"));
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(readNow(facts(path, 1), desk).problem, QStringLiteral("it took longer than 1 seconds"));
    QVERIFY2(timer.elapsed() >= 3000, "it was ended while it loaded them");
}

void TestReading::saysThatThereIsNoWorker()
{
    World world;
    const QString path = world.add(QStringLiteral("a.png"));
    for (const char *program : {"/nowhere/worker", "/bin/true"}) {
        WorkerDesk desk(with(1, QString::fromLatin1(program)));
        const ReadResult result = readNow(facts(path), desk);
        QVERIFY(result.isReaderGone);
        QVERIFY(!result.problem.isEmpty());
    }
}

void TestReading::asksFromWithinAnAnswer()
{
    World world;
    WorkerDesk desk(with(2));
    Reader reader(&desk);
    const QString path = world.add(QStringLiteral("a.png"));
    int left = 10;
    std::function<void()> ask = [&] {
        reader.ask(facts(path), Urgency::Now, [&](const ReadResult &) {
            if (--left > 0)
                ask();
        });
    };
    ask();
    QTRY_COMPARE_WITH_TIMEOUT(left, 0, 30000);
}

void TestReading::readsTheCorpus()
{
    if (!corpusIsThere())
        QSKIP("There is no collection of pictures");
    WorkerDesk desk(with(2));
    Reader reader(&desk);
    int asked = 0;
    int answered = 0;
    int gone = 0;
    for (QDirIterator files(corpusFolder(), QDir::Files, QDirIterator::Subdirectories); files.hasNext(); ++asked)
        reader.ask(thumbnail(files.next()), Urgency::Later, [&](const ReadResult &result) {
            ++answered;
            gone += result.isReaderGone;
            QVERIFY(result.isGood() == !result.image.isNull());
        });
    QVERIFY(asked > 0);
    QTRY_COMPARE_WITH_TIMEOUT(answered, asked, 120000);
    QCOMPARE(gone, 0);
}

QUORLIN_TEST(TestReading)
#include "tst_reading.moc"
