#include "presets/dbViewController.h"
#include "presets/layout.h"
#include "tests/support/preset_store.h"
#include "tests/support/raised_text.h"
#include "tests/support/test_program.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QString presetsTable = QStringLiteral("Presets");
const QString nameColumn = QStringLiteral("NameOfPreset");

/** Writes and removes presets until it is killed. */
[[noreturn]] void writeForEver()
{
    dbViewController db;
    db.linkToPresetsDB();
    for (int i = 0;; ++i) {
        QStringList row = presetRow(QStringLiteral("n%1").arg(i), QStringLiteral("Sorting"), QStringLiteral("x"));
        row[40] = QString(20'000, u'y'); // over several pages, so that a kill finds some written and some not
        const QString raised = raisedBy([&] { db.insertSortingPresetToDB01(row); });
        if (i >= 3)
            db.removePresetFromDatabase(presetsTable, nameColumn, QStringLiteral("n%1").arg(i - 3));
        if (raised != QStringLiteral("nothing"))
            ::_exit(1);
    }
}

} // namespace

/** A program that ends in the middle of a write, at any moment. */
class TestKilledWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesASoundDatabaseAtEveryMoment();
    void leavesASoundFileWhileItIsSeeded();

private:
    /** Runs @p writer in a separate process and kills it after a random time. True if it was still running. */
    template<typename Writer> bool killed(Writer writer, int mostMicroseconds);
    QRandomGenerator m_random{5};
};

template<typename Writer> bool TestKilledWriter::killed(Writer writer, int mostMicroseconds)
{
    const pid_t child = ::fork();
    if (child == 0) {
        writer();
        ::_exit(0);
    }
    ::usleep(useconds_t(m_random.bounded(mostMicroseconds)));
    ::kill(child, SIGKILL);
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFSIGNALED(status);
}

void TestKilledWriter::leavesASoundDatabaseAtEveryMoment()
{
    const PresetStore store;
    dbViewController().linkToPresetsDB();
    int interrupted = 0;
    const int kills = tests::repetitions(20, 220);
    for (int i = 0; i < kills; ++i) {
        QVERIFY(killed(writeForEver, 25'000));
        interrupted += QFileInfo::exists(store.path() + QStringLiteral("-journal"));
        QCOMPARE(store.sql("PRAGMA integrity_check"), QStringList{QStringLiteral("ok")});
        QCOMPARE(store.sql("SELECT count(*) FROM Presets WHERE StrField61 IS NOT 'value 61'"),
                 QStringList{QString(u'0')}); // whole rows or none
    }
    qInfo("%d of %d kills met a write that was half done", interrupted, kills);
    QVERIFY(interrupted > 0);
    dbViewController db;
    db.insertSortingPresetToDB01(presets::sampleRow());
    QCOMPARE(db.checkPresetNameFromTableNamed(presetsTable, nameColumn, presets::sampleRow().first()),
             presets::sampleRow().first());
    QCOMPARE(store.sql("SELECT count(*) FROM AppResource"), QStringList{QString(u'1')});
}

void TestKilledWriter::leavesASoundFileWhileItIsSeeded()
{
    for (int i = tests::repetitions(10, 100); i > 0; --i) {
        const PresetStore store;
        killed([] { dbViewController().linkToPresetsDB(); }, 6'000);
        if (QFileInfo::exists(store.path()))
            QCOMPARE(store.sql("PRAGMA integrity_check"), QStringList{QStringLiteral("ok")});
        // What is there is taken as it is; a name check never fails.
        dbViewController db;
        db.linkToPresetsDB();
        QVERIFY(db.checkPresetNameFromTableNamed(presetsTable, nameColumn, nameColumn).isNull());
        QVERIFY(QFileInfo::exists(store.path()));
    }
}

QUORLIN_TEST(TestKilledWriter)
#include "tst_killed_writer.moc"
