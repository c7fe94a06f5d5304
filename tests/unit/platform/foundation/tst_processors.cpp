#include "platform/foundation/processors.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_program.h"

#include <QTest>

#include <sched.h>

/** How many processors a process may use. */
class TestProcessors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsThoseItMayRunOn();
    void mindsTheShareOfItsGroups_data();
    void mindsTheShareOfItsGroups();
};

void TestProcessors::countsThoseItMayRunOn()
{
    cpu_set_t all;
    QCOMPARE(::sched_getaffinity(0, sizeof all, &all), 0);
    QVERIFY(platform::usableProcessors(QStringLiteral("/nowhere/")) == CPU_COUNT(&all));
    cpu_set_t one;
    CPU_ZERO(&one);
    for (int i = 0; i < CPU_SETSIZE && CPU_COUNT(&one) == 0; ++i)
        if (CPU_ISSET(i, &all))
            CPU_SET(i, &one);
    QCOMPARE(::sched_setaffinity(0, sizeof one, &one), 0);
    QCOMPARE(platform::usableProcessors(QStringLiteral("/nowhere/")), 1);
    QCOMPARE(::sched_setaffinity(0, sizeof all, &all), 0);
}

void TestProcessors::mindsTheShareOfItsGroups_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<int>("most");
    const QString unified = QStringLiteral("proc/self/cgroup=0::/user/job\n");
    const QString divided = QStringLiteral("proc/self/cgroup=4:cpu,cpuacct:/job\n");
    QTest::newRow("no groups") << QStringList() << 1000;
    QTest::newRow("no limit") << QStringList{unified, QStringLiteral("sys/fs/cgroup/user/job/cpu.max=max 100000\n")}
                              << 1000;
    QTest::newRow("one") << QStringList{unified, QStringLiteral("sys/fs/cgroup/user/job/cpu.max=100000 100000\n")} << 1;
    QTest::newRow("less than one") << QStringList{unified,
                                                  QStringLiteral("sys/fs/cgroup/user/job/cpu.max=20000 100000\n")}
                                   << 1;
    QTest::newRow("of the group around it")
        << QStringList{unified, QStringLiteral("sys/fs/cgroup/user/cpu.max=50000 100000\n")} << 1;
    QTest::newRow("of the topmost") << QStringList{unified, QStringLiteral("sys/fs/cgroup/cpu.max=90000 100000\n")}
                                    << 1;
    QTest::newRow("one and a half are two")
        << QStringList{unified, QStringLiteral("sys/fs/cgroup/cpu.max=150000 100000\n")} << 2;
    QTest::newRow("divided") << QStringList{divided,
                                            QStringLiteral("sys/fs/cgroup/cpu,cpuacct/job/cpu.cfs_quota_us=100000\n"),
                                            QStringLiteral("sys/fs/cgroup/cpu,cpuacct/job/cpu.cfs_period_us=100000\n")}
                             << 1;
    QTest::newRow("divided, under one of its names")
        << QStringList{divided, QStringLiteral("sys/fs/cgroup/cpu/job/cpu.cfs_quota_us=100000\n"),
                       QStringLiteral("sys/fs/cgroup/cpu/job/cpu.cfs_period_us=100000\n")}
        << 1;
    QTest::newRow("divided, no limit") << QStringList{divided,
                                                      QStringLiteral("sys/fs/cgroup/cpu/job/cpu.cfs_quota_us=-1\n"),
                                                      QStringLiteral(
                                                          "sys/fs/cgroup/cpu/job/cpu.cfs_period_us=100000\n")}
                                       << 1000;
}

void TestProcessors::mindsTheShareOfItsGroups()
{
    QFETCH(QStringList, files);
    QFETCH(int, most);
    const ScratchFolder folder;
    for (const QString &file : files) {
        const QString name = file.section(u'=', 0, 0);
        QDir().mkpath(QFileInfo(folder.path(qPrintable(name))).path());
        folder.write(qPrintable(name), file.section(u'=', 1).toUtf8());
    }
    const int all = platform::usableProcessors(QStringLiteral("/nowhere/"));
    QCOMPARE(platform::usableProcessors(folder.path() + u'/'), std::min(all, most));
}

QUORLIN_TEST(TestProcessors)

#include "tst_processors.moc"
