#include "presets/dbViewController.h"
#include "presets/layout.h"
#include "tests/support/preset_store.h"
#include "tests/support/raised_text.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <array>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

/** Several programs that start at the same moment, before there is a database. */
class TestStartedAtOnce : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allFindTheWholeDatabase();
};

namespace {

/** Waits until the other end of the pipe is closed, then starts like a window and keeps a preset. */
[[noreturn]] void startAtTheSignal(const std::array<int, 2> &signal, int number)
{
    ::close(signal[1]);
    char none = 0;
    (void)!::read(signal[0], &none, 1);
    dbViewController db;
    const QString raised = raisedBy([&] {
        db.linkToPresetsDB();
        QStringList row = presets::sampleRow();
        row[0] = QString::number(number);
        db.insertSortingPresetToDB01(row);
    });
    ::_exit(raised == QLatin1String("nothing") ? 0 : 1);
}

} // namespace

void TestStartedAtOnce::allFindTheWholeDatabase()
{
    constexpr int programs = 6;
    for (int round = tests::repetitions(15, 150); round > 0; --round) {
        const PresetStore store;
        std::array<int, 2> signal = {};
        QCOMPARE(::pipe(signal.data()), 0);
        std::vector<pid_t> children;
        for (int number = 0; number < programs; ++number) {
            const pid_t child = ::fork();
            if (child == 0)
                startAtTheSignal(signal, number);
            children.push_back(child);
        }
        ::close(signal[0]);
        ::close(signal[1]);
        for (const pid_t child : children) {
            int status = 0;
            QCOMPARE(::waitpid(child, &status, 0), child);
            QVERIFY(WIFEXITED(status));
            QCOMPARE(WEXITSTATUS(status), 0);
        }
        QCOMPARE(store.sql("SELECT count(*) FROM Presets"), QStringList{QString::number(programs)});
        QCOMPARE(store.sql("SELECT StrField0 FROM AppResource"), QStringList{QStringLiteral("appSys")});
        QCOMPARE(store.sql("SELECT StrField0 FROM AppBookmarks"), QStringList{QStringLiteral("myAppDestBookmark")});
    }
}

QUORLIN_TEST(TestStartedAtOnce)
#include "tst_started_at_once.moc"
