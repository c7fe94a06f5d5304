#include "tests/gui/clicks/click_jobs.h"
#include "tests/support/test_program.h"

#include <QFile>
#include <QMap>
#include <QTest>

/** How many clicks and keys jobs of everyday take, beside what they took before the ways were shortened; see bench/clicks. */
class Clicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void jobsTakeTwoThirdsOfTheClicks();

private:
    /** By the name of the job. */
    static QMap<QString, int> earlierCounts();
};

QMap<QString, int> Clicks::earlierCounts()
{
    QFile file(QStringLiteral(QUORLIN_GUI_SCRIPTS "/clicks/earlier.tsv"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s", qPrintable(file.errorString()));
    QMap<QString, int> counts;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts))
        counts.insert(line.section(u'\t', 1, 1), line.section(u'\t', 0, 0).toInt());
    return counts;
}

void Clicks::jobsTakeTwoThirdsOfTheClicks()
{
    const QMap<QString, int> earlier = earlierCounts();
    int before = 0;
    int now = 0;
    for (const clicks::Job &job : clicks::doAll(clicks::Program::Present)) {
        QVERIFY2(job.problem.isEmpty(), qPrintable(job.name + QStringLiteral(": ") + job.problem));
        QVERIFY2(earlier.contains(job.name), qPrintable(job.name));
        const int count = earlier.value(job.name);
        QVERIFY2(job.count <= count,
                 qPrintable(QStringLiteral("%1: %2 of %3").arg(job.name).arg(job.count).arg(count)));
        before += count;
        now += job.count;
    }
    QCOMPARE(earlier.size(), 4);
    QVERIFY2(3 * now <= 2 * before, qPrintable(QStringLiteral("%1 of %2").arg(now).arg(before)));
}

QUORLIN_GUI_TEST(Clicks)

#include "tst_clicks.moc"
