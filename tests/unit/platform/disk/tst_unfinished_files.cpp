#include "tests/support/every_call.h"

#include "platform/disk/folders.h"
#include "platform/disk/hidden_sweep.h"
#include "platform/file/atomic_file.h"
#include "platform/file/replacement_file.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <csignal>
#include <sched.h>
#include <sys/wait.h>

using namespace platform;

namespace {

/** Picture and data folder of a program that is killed. */
class Place
{
public:
    Place()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.path("data")));
        QVERIFY(m_folder.write("in/a.jpg", "the old one"));
    }
    QString picture() const { return m_folder.path("in/a.jpg"); }
    QByteArray content() const { return m_folder.read("in/a.jpg"); }
    QStringList names() const { return m_folder.names("in"); }

private:
    ScratchFolder m_folder;
};

/** Ends at the given call; on a disk where every file has a name from the start, if that is asked for. */
bool killAt(int call, bool hasNameless, const std::function<void()> &work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        EveryCall::count = 0;
        EveryCall::before = [=](std::string_view name, const char *) {
            if (EveryCall::count > call)
                ::_exit(9);
            return name == "open without a name" && !hasNameless ? EOPNOTSUPP : 0;
        };
        work();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 9;
}

/** Begins a file under a hidden name and is there until it is killed. */
[[noreturn]] void beginAndStay(const QString &path, int told)
{
    EveryCall::before = [](std::string_view name, const char *) {
        return name == "open without a name" ? EOPNOTSUPP : 0;
    };
    ReplacementFile file(path);
    file.write(0, "half");
    (void)!::write(told, "x", 1);
    for (;;)
        ::pause();
}

/** The process that works in a separate PID namespace; 0 if none can be created. */
pid_t beginInAnotherNamespace(const QString &path)
{
    int ends[2] = {-1, -1};
    if (::pipe(ends) != 0)
        return 0;
    const pid_t outer = ::fork();
    if (outer == 0) {
        ::setpgid(0, 0);
        if (::unshare(CLONE_NEWPID) != 0 || ::fork() == 0) {
            // The first process of a namespace ends with its creator.
            if (::getpid() == 1)
                beginAndStay(path, ends[1]);
            ::_exit(1);
        }
        ::close(ends[1]);
        for (;;)
            ::pause();
    }
    ::close(ends[1]);
    char told = 0;
    const bool isThere = ::read(ends[0], &told, 1) == 1;
    ::close(ends[0]);
    if (isThere)
        return outer;
    ::kill(outer, SIGKILL);
    ::waitpid(outer, nullptr, 0);
    return 0;
}

} // namespace

/** The next start removes what a kill left of a file being written, wherever it is. */
class TestUnfinishedFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { EveryCall::before = nullptr; }
    void areGoneAfterAKillAndASweep_data();
    void areGoneAfterAKillAndASweep();
    void stayWhileSomebodyElsewhereWritesThem();
    void areNoReasonToTouchOthers();
    void leaveNoPlaceholderOfAMove();
};

void TestUnfinishedFiles::areGoneAfterAKillAndASweep_data()
{
    QTest::addColumn<bool>("hasNameless");
    QTest::addColumn<bool>("isEdit");
    for (const bool hasNameless : {true, false})
        for (const bool isEdit : {true, false})
            QTest::addRow("%s, %s", isEdit ? "edited" : "replaced", hasNameless ? "without a name" : "named")
                << hasNameless << isEdit;
}

void TestUnfinishedFiles::areGoneAfterAKillAndASweep()
{
    QFETCH(bool, hasNameless);
    QFETCH(bool, isEdit);
    int calls = 0;
    int left = 0;
    for (bool isKilled = true; isKilled; ++calls) {
        const Place place;
        isKilled = killAt(calls, hasNameless, [&] {
            QFile source(place.picture());
            if (isEdit && source.open(QIODevice::ReadOnly))
                (void)spliceFile(source, {{4, 3, "new"}});
            else if (!isEdit)
                (void)replaceFile(place.picture(), "the new one");
        });
        left += place.names().size() > 1;
        QVERIFY(sweepHiddenItems().isEmpty());
        QVERIFY2(place.names() == QStringList(QStringLiteral("a.jpg")),
                 "killed at call " + QByteArray::number(calls) + ": " + place.names().join(u' ').toUtf8());
        QVERIFY(place.content() == "the new one" || (isKilled && place.content() == "the old one"));
    }
    QVERIFY(calls > 3 && left > 0);
}

/** Such a process cannot be seen from here, and its number is that of another one; only its lock reveals it. */
void TestUnfinishedFiles::stayWhileSomebodyElsewhereWritesThem()
{
    const Place place;
    const pid_t elsewhere = beginInAnotherNamespace(place.picture());
    if (elsewhere == 0)
        QSKIP("this user may not make a namespace of processes");
    const QStringList working = place.names();
    sweepHiddenItems();
    const QStringList after = place.names();
    ::kill(elsewhere, SIGKILL);
    ::kill(-elsewhere, SIGKILL);
    ::waitpid(elsewhere, nullptr, 0);
    QCOMPARE(working.size(), 2);
    QCOMPARE(after, working);
    QTRY_VERIFY((sweepHiddenItems(), place.names() == QStringList(QStringLiteral("a.jpg"))));
    QCOMPARE(place.content(), QByteArray("the old one"));
}

/** A note that was tampered with, or that another program uses, can only lead to an unfinished file made by Quorlin. */
void TestUnfinishedFiles::areNoReasonToTouchOthers()
{
    const ScratchFolder here;
    qputenv("XDG_DATA_HOME", QFile::encodeName(here.path("data")));
    QVERIFY(here.write("in/.quorlin-aside-1", "a") && here.write("in/b.jpg", "b") &&
            here.write("in/.quorlin-part-folder/c.jpg", "c") && here.link("b.jpg", "in/.quorlin-part-link"));
    QByteArray notes = "{\"by\":\"nobody\"}\n";
    for (const char *name : {".quorlin-aside-1", "b.jpg", ".quorlin-part-folder", ".quorlin-part-link"})
        notes += "{\"what\":\"part\",\"hidden\":\"" + here.path("in/").toUtf8() + name + "\"}\n";
    QVERIFY(here.write("data/quorlin/hidden/0.hidden", notes));
    QVERIFY(sweepHiddenItems().isEmpty());
    QCOMPARE(here.names("in"),
             QStringLiteral(".quorlin-aside-1 .quorlin-part-folder .quorlin-part-link b.jpg").split(u' '));
    QCOMPARE(here.read("in/b.jpg") + here.read("in/.quorlin-part-folder/c.jpg"), QByteArray("bc"));
}

/** On a disk that has neither second names nor a rename that replaces nothing, an empty file keeps the new name for a moment. */
void TestUnfinishedFiles::leaveNoPlaceholderOfAMove()
{
    int left = 0;
    int calls = 0;
    for (const QByteArray content : {"a picture", ""}) {
        bool isKilled = true;
        for (calls = 0; isKilled; ++calls) {
            const ScratchFolder here;
            qputenv("XDG_DATA_HOME", QFile::encodeName(here.path("data")));
            QVERIFY(here.write("in/a.jpg", content) && here.write("in/empty.jpg", ""));
            isKilled = killAt(calls, true, [&] {
                const auto before = EveryCall::before;
                EveryCall::before = [before](std::string_view name, const char *path) {
                    return name == "link" ? (before(name, path), EPERM) : before(name, path);
                };
                (void)renameWithoutPromise(here.path("in/a.jpg"), here.path("in/b.jpg"));
            });
            left += here.names("in").size() > 2;
            QVERIFY(sweepHiddenItems().isEmpty());
            const QByteArray told = "killed at call " + QByteArray::number(calls);
            const QStringList names = here.names("in");
            QVERIFY2(names == QStringLiteral("a.jpg empty.jpg").split(u' ') ||
                         names == QStringLiteral("b.jpg empty.jpg").split(u' '),
                     told + ": " + names.join(u' ').toUtf8());
            QCOMPARE(here.read(QStringLiteral("in/") + names.first()), content);
        }
        QVERIFY(calls > 3);
    }
    QVERIFY(left > 0);
}

QUORLIN_TEST(TestUnfinishedFiles)
#include "tst_unfinished_files.moc"
