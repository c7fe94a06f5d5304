#include "jobs/picture_watch.h"
#include "jobs/result_mark.h"
#include "jobs/watch_lock.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <fcntl.h>
#include <unistd.h>

using namespace jobs;

/** What arrives in watched folders, whether the system reports it or the folders are scanned. */
class TestPictureWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void takes_data() { manners(); }
    void takes();
    void waitsForWhatIsWritten_data() { manners(); }
    void waitsForWhatIsWritten();
    void waitsForNames_data() { manners(); }
    void waitsForNames();
    void takesFoldersThatCome_data() { manners(); }
    void takesFoldersThatCome();
    void takesAPictureAgainOnceItChanges_data() { manners(); }
    void takesAPictureAgainOnceItChanges();
    void leavesResultsOut_data() { manners(); }
    void leavesResultsOut();
    void takesWhatCameSince_data() { manners(); }
    void takesWhatCameSince();
    void endsWithoutFolders();
    void noticesThatAFolderIsDeleted_data() { manners(); }
    void noticesThatAFolderIsDeleted();
    void tellsOfTooManyFolders();
    void locksFolders();

private:
    static void manners();
    PictureWatch watch(WatchOptions options = {}) const;
    QStringList arrivals(PictureWatch &watch, int expected, int waitMs = 20'000) const;

    std::unique_ptr<ScratchFolder> m_folder;
};

namespace {

constexpr qint64 stillMs = 100;

} // namespace

void TestPictureWatch::init()
{
    m_folder = std::make_unique<ScratchFolder>();
    QVERIFY(m_folder->write("in/old.jpg", "was there"));
}

void TestPictureWatch::manners()
{
    QTest::addColumn<int>("manner");
    QTest::newRow("told") << int(WatchOptions::Manner::Told);
    QTest::newRow("looking") << int(WatchOptions::Manner::Looking);
}

PictureWatch TestPictureWatch::watch(WatchOptions options) const
{
    QFETCH(int, manner);
    options.manner = WatchOptions::Manner(manner);
    options.stillMs = stillMs;
    options.recipe = QStringLiteral("0123456789ab");
    auto watch = PictureWatch::start({m_folder->path("in")}, options);
    if (!watch)
        qFatal("%s", qPrintable(watch.error().message));
    return std::move(*watch);
}

/** So many pictures as soon as they are complete, and those that come a while after them. */
QStringList TestPictureWatch::arrivals(PictureWatch &watch, int expected, int waitMs) const
{
    QStringList names;
    QElapsedTimer timer;
    timer.start();
    qint64 enough = -1;
    while (timer.elapsed() < waitMs && (enough < 0 || timer.elapsed() < enough)) {
        if (watch.look(10) == PictureWatch::State::Ready) {
            const Arrival arrival = watch.take();
            if (arrival.root != m_folder->path("in"))
                qFatal("another root: %s", qPrintable(arrival.root));
            names.append(arrival.path.mid(arrival.root.size() + 1));
        }
        if (enough < 0 && names.size() >= expected)
            enough = timer.elapsed() + 5 * stillMs;
    }
    return names;
}

void TestPictureWatch::takes()
{
    PictureWatch watch = this->watch();
    QVERIFY(arrivals(watch, 0).isEmpty());
    QVERIFY(m_folder->write("in/a.jpg", "written") && m_folder->write("moved.png", "moved in"));
    QVERIFY(QFile::rename(m_folder->path("moved.png"), m_folder->path("in/moved.png")));
    QStringList names = arrivals(watch, 2);
    names.sort();
    QCOMPARE(names, QStringList({QStringLiteral("a.jpg"), QStringLiteral("moved.png")}));
}

void TestPictureWatch::waitsForWhatIsWritten()
{
    PictureWatch watch = this->watch();
    const int file = ::open(qPrintable(m_folder->path("in/a.jpg")), O_WRONLY | O_CREAT, 0600);
    QVERIFY(::write(file, "begin", 5) == 5);
    const bool isKnown = platform::isBeingWritten(m_folder->path("in/a.jpg"));
    const int other = ::open(qPrintable(m_folder->path("in/a.jpg")), O_WRONLY);
    ::close(other); // closed by one, still open with another
    if (isKnown)
        QVERIFY(arrivals(watch, 0).isEmpty());
    QVERIFY(::write(file, "end", 3) == 3);
    ::close(file);
    QCOMPARE(arrivals(watch, 1), QStringList(QStringLiteral("a.jpg")));
}

void TestPictureWatch::waitsForNames()
{
    PictureWatch watch = this->watch();
    QVERIFY(m_folder->write("in/a.jpg.part", "x") && m_folder->write("in/.b.jpg", "x") &&
            m_folder->write("in/c.txt", "x"));
    QVERIFY(m_folder->write("in/.hidden/d.jpg", "x"));
    QVERIFY(arrivals(watch, 0).isEmpty());
    QVERIFY(QFile::rename(m_folder->path("in/a.jpg.part"), m_folder->path("in/a.jpg")));
    QVERIFY(QFile::rename(m_folder->path("in/.b.jpg"), m_folder->path("in/b.jpg")));
    QStringList names = arrivals(watch, 2);
    names.sort();
    QCOMPARE(names, QStringList({QStringLiteral("a.jpg"), QStringLiteral("b.jpg")}));
}

void TestPictureWatch::takesFoldersThatCome()
{
    PictureWatch watch = this->watch();
    QVERIFY(m_folder->write("trip/day 1/a.jpg", "x"));
    QVERIFY(QDir().rename(m_folder->path("trip"), m_folder->path("in/trip")));
    QCOMPARE(arrivals(watch, 1), QStringList(QStringLiteral("trip/day 1/a.jpg")));
    QVERIFY(m_folder->write("in/trip/day 2/b.jpg", "x"));
    QCOMPARE(arrivals(watch, 1), QStringList(QStringLiteral("trip/day 2/b.jpg")));
    // A folder that has another name now.
    QVERIFY(QDir().rename(m_folder->path("in/trip/day 1"), m_folder->path("in/first")));
    QVERIFY(m_folder->write("in/first/c.jpg", "x"));
    QVERIFY(arrivals(watch, 1).contains(QStringLiteral("first/c.jpg")));
}

void TestPictureWatch::takesAPictureAgainOnceItChanges()
{
    PictureWatch watch = this->watch();
    QVERIFY(m_folder->write("in/a.jpg", "first"));
    QCOMPARE(arrivals(watch, 1).size(), 1);
    QVERIFY(QFile(m_folder->path("in/a.jpg")).setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(arrivals(watch, 0).isEmpty());
    QVERIFY(m_folder->write("in/a.jpg", "second"));
    QCOMPARE(arrivals(watch, 1), QStringList(QStringLiteral("a.jpg")));
    QVERIFY(m_folder->write("in/old.jpg", "was there, and is another now"));
    QCOMPARE(arrivals(watch, 1), QStringList(QStringLiteral("old.jpg")));
}

void TestPictureWatch::leavesResultsOut()
{
    PictureWatch watch = this->watch();
    QVERIFY(m_folder->write("in/result.jpg", "x"));
    watch.leaveOut(m_folder->path("in/result.jpg"));
    QVERIFY(m_folder->write("in/noted.jpg", "x"));
    markResult(m_folder->path("in/noted.jpg"), m_folder->path("in/old.jpg"), QStringLiteral("0123456789ab 0"));
    const bool hasNotes = isResultOf(m_folder->path("in/noted.jpg"), QStringLiteral("0123456789ab"));
    QVERIFY(!isResultOf(m_folder->path("in/noted.jpg"), QStringLiteral("another recipe")));
    QCOMPARE(arrivals(watch, 0), hasNotes ? QStringList() : QStringList(QStringLiteral("noted.jpg")));
    QVERIFY(m_folder->write("in/result.jpg", "somebody has worked on it"));
    QCOMPARE(arrivals(watch, 1), QStringList(QStringLiteral("result.jpg")));
}

void TestPictureWatch::takesWhatCameSince()
{
    QTest::qWait(50); // times of files come in steps of some milliseconds
    QVERIFY(m_folder->write("in/new.jpg", "x") && m_folder->write("in/made.jpg", "x"));
    WatchOptions options;
    options.sinceNs = platform::targetFacts(m_folder->path("in/new.jpg"))->changedNs;
    ReportLine line;
    line.input = m_folder->path("in/old.jpg");
    line.output = m_folder->path("in/made.jpg");
    line.status = LineStatus::Ok;
    QVERIFY(m_folder->write("report", jsonLine(line, QStringLiteral("0123456789ab"))));
    options.resumed = EarlierReport::read(m_folder->path("report"));
    PictureWatch watch = this->watch(options);
    while (watch.look(10) != PictureWatch::State::Ready) {
    }
    QVERIFY(!watch.take().isLive);
    QVERIFY(arrivals(watch, 0).isEmpty());
    QVERIFY(m_folder->write("in/new.jpg", "x again"));
    QCOMPARE(arrivals(watch, 1), QStringList(QStringLiteral("new.jpg")));
}

void TestPictureWatch::endsWithoutFolders()
{
    WatchOptions options;
    options.manner = WatchOptions::Manner::Told;
    auto watch = PictureWatch::start({m_folder->path("in")}, options);
    QVERIFY(watch && watch->look(0) == PictureWatch::State::Waiting);
    QVERIFY(QDir(m_folder->path("in")).removeRecursively());
    QTRY_COMPARE(watch->look(10), PictureWatch::State::Ended);
    QVERIFY(watch->news().contains(m_folder->path("in")));
    QVERIFY(!PictureWatch::start({m_folder->path("none")}, options));
}

void TestPictureWatch::noticesThatAFolderIsDeleted()
{
    WatchLock lock;
    QVERIFY(lock.take(m_folder->path("in"), QStringLiteral("work"))); // it holds a file of it open
    QFETCH(int, manner);
    WatchOptions options;
    options.manner = WatchOptions::Manner(manner);
    options.stillMs = stillMs;
    auto watch = PictureWatch::start({m_folder->path("in")}, options);
    QVERIFY(watch && watch->look(0) == PictureWatch::State::Waiting);
    QVERIFY(QDir(m_folder->path("in")).removeRecursively());
    QVERIFY(QDir().mkpath(m_folder->path("in"))); // another one
    QTRY_VERIFY(watch->look(10) == PictureWatch::State::Ended);
    QVERIFY(watch->news().endsWith(QLatin1String("is gone")));
}

void TestPictureWatch::tellsOfTooManyFolders()
{
    // The number of watches is the user's, and only the system's owner can lower it; what can be tried is the number of watchers.
    std::vector<platform::FolderWatch> all;
    constexpr int many = 2000;
    for (int i = 0; i < many; ++i) {
        auto watch = platform::FolderWatch::start({m_folder->path("in")});
        if (!watch) {
            QCOMPARE(watch.error().code, platform::ErrorCode::TooLarge);
            QVERIFY(watch.error().message.contains(QLatin1String("max_user_watches")));
            return;
        }
        all.push_back(std::move(*watch));
    }
    QSKIP("the system has no limit that is reached soon");
}

void TestPictureWatch::locksFolders()
{
    const QString folder = m_folder->path("in");
    const QStringList before = m_folder->names("in");
    {
        WatchLock lock;
        WatchLock other;
        QVERIFY(lock.take(folder, QStringLiteral("one")));
        QVERIFY(!other.take(folder, QStringLiteral("one")));
        QVERIFY(other.take(folder, QStringLiteral("two")));
    }
    QCOMPARE(m_folder->names("in"), before);
    WatchLock again;
    QVERIFY(again.take(folder, QStringLiteral("one")));
}

QUORLIN_TEST(TestPictureWatch)
#include "tst_picture_watch.moc"
