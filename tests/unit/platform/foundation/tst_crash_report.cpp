#include "platform/foundation/crash_report.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <csignal>
#include <cstdlib>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/** The report that a crashing process leaves. */
class TestCrashReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhatItWasAbout_data();
    void saysWhatItWasAbout();
    void takesThePlaceOfTheOneBefore();
    void stacksThatRunOverAreReported();
    void nothingIsWrittenByOtherEnds();
    void refusesPathsThatAreTooLong();

private:
    ScratchFolder m_folder;
    QString file() const { return m_folder.path(QStringLiteral("Crash.txt")); }
};

namespace {

// Deep enough for any stack, and not to be made a loop.
__attribute__((noinline)) int runOver(int depth)
{
    volatile char room[4096];
    room[depth % 4096] = char(depth);
    return depth < 0 ? 0 : runOver(depth + 1) + room[0];
}

/** The status of a process that does this after it began to keep reports; a core would only cost space. */
template<typename Does> int endOf(const QString &file, const QByteArray &head, Does does)
{
    const pid_t process = ::fork();
    if (process == 0) {
        const rlimit none = {0, 0};
        ::setrlimit(RLIMIT_CORE, &none);
        ::signal(SIGTERM, SIG_DFL); // the test library catches it
        if (!platform::keepCrashReports(file, head))
            ::_exit(77);
        does();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(process, &status, 0);
    return status;
}

bool isSkipped(int status)
{
    return WIFEXITED(status) && WEXITSTATUS(status) == 77;
}

} // namespace

void TestCrashReport::saysWhatItWasAbout_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("segmentation") << SIGSEGV;
    QTest::newRow("abort") << SIGABRT;
    QTest::newRow("bus") << SIGBUS;
    QTest::newRow("floating point") << SIGFPE;
    QTest::newRow("illegal") << SIGILL;
}

void TestCrashReport::saysWhatItWasAbout()
{
    QFETCH(int, signal);
    const int status = endOf(file(), "Program 1.2\n", [signal] {
        platform::noteForCrashReport(QStringLiteral("Action: Crop\nPicture: Größe.jpg\n"));
        signal == SIGABRT ? std::abort() : void(::raise(signal));
    });
    if (isSkipped(status))
        QSKIP("sanitizers report themselves");
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), signal);
    const QString text = platform::crashReport(file());
    const QString begin = QStringLiteral("Program 1.2\nSignal: %1\nAction: Crop\nPicture: Größe.jpg\n\n").arg(signal);
    QVERIFY2(text.startsWith(begin), qPrintable(text));
    QVERIFY2(text.mid(begin.size()).count(u'\n') >= 3, qPrintable(text)); // the calls
    QCOMPARE(QFile::permissions(file()) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

void TestCrashReport::takesThePlaceOfTheOneBefore()
{
    const auto fail = [] { ::raise(SIGSEGV); };
    if (isSkipped(endOf(file(), QByteArray(5000, 'x'), fail)))
        QSKIP("sanitizers report themselves");
    QVERIFY(platform::crashReport(file()).startsWith(QString(2047, u'x') + QStringLiteral("Signal")));
    endOf(file(), "short\n", fail);
    QVERIFY(platform::crashReport(file()).startsWith(QStringLiteral("short\nSignal: 11\n")));
}

void TestCrashReport::stacksThatRunOverAreReported()
{
    const int status = endOf(file(), "deep\n", [] { runOver(0); });
    if (isSkipped(status))
        QSKIP("sanitizers report themselves");
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), SIGSEGV);
    QVERIFY(platform::crashReport(file()).startsWith(QStringLiteral("deep\nSignal: 11\n")));
}

void TestCrashReport::nothingIsWrittenByOtherEnds()
{
    QFile::remove(file());
    endOf(file(), "x", [] {});
    endOf(file(), "x", [] { ::raise(SIGTERM); });
    QCOMPARE(platform::crashReport(file()), QString());
    QVERIFY(!QFile::exists(file()));
}

void TestCrashReport::refusesPathsThatAreTooLong()
{
    QVERIFY(!platform::keepCrashReports(QString(4096, u'a'), "x"));
    QVERIFY(!platform::keepCrashReports(QString(), "x"));
}

QUORLIN_TEST(TestCrashReport)
#include "tst_crash_report.moc"
