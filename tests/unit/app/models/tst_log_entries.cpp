#include "app/models/log_entries.h"
#include "tests/support/test_program.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using window::LogEntries;
using window::LogRun;
using window::TextPool;
using End = window::LogEntries::End;

namespace {

QByteArray text(const QJsonObject &line)
{
    return QJsonDocument(line).toJson(QJsonDocument::Compact);
}

// A line that belongs to no run, of the given minute.
QJsonObject bare(int minute, const char *status = "OK")
{
    return {{QStringLiteral("date"), QStringLiteral("2026-11-21T10:%1:00.000Z").arg(minute, 2, 10, QLatin1Char('0'))},
            {QStringLiteral("process"), QStringLiteral("Resize")},
            {QStringLiteral("action"), QStringLiteral("longest 1600")},
            {QStringLiteral("status"), QString::fromLatin1(status)},
            {QStringLiteral("inputPath"), QStringLiteral("/p/Lake/a.jpg")},
            {QStringLiteral("outputPath"), QStringLiteral("/p/Web/a.jpg")}};
}

QJsonObject ofRun(const char *run, const char *status = "OK")
{
    QJsonObject line = bare(1, status);
    line.insert(QStringLiteral("run"), QString::fromLatin1(run));
    return line;
}

QJsonObject takingBack(const char *run, const char *undone, const char *status = "OK")
{
    QJsonObject line = ofRun(run, status);
    line.insert(QStringLiteral("undoes"), QString::fromLatin1(undone));
    return line;
}

QJsonObject edit(const char *before, const char *after, const char *status = "OK")
{
    QJsonObject line = ofRun("edits", status);
    line.insert(QStringLiteral("before"), QString::fromLatin1(before));
    line.insert(QStringLiteral("after"), QString::fromLatin1(after));
    return line;
}

LogEntries read(const QList<QJsonObject> &lines, End end = End::Newer)
{
    LogEntries entries;
    for (const QJsonObject &line : lines)
        entries.add(text(line), end);
    return entries;
}

} // namespace

class TestLogEntries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsEveryTextOnce()
    {
        TextPool pool;
        QCOMPARE(pool.number(QString()), 0);
        const int lake = pool.number(QStringLiteral("Lake"));
        QCOMPARE(pool.number(QStringLiteral("Lake")), lake);
        QVERIFY(pool.number(QStringLiteral("lake")) != lake);
        QCOMPARE(pool.text(lake), QStringLiteral("Lake"));
        QCOMPARE(pool.count(), 3);
    }

    void readsALine()
    {
        QJsonObject line = bare(7, "Failed");
        line.insert(QStringLiteral("reason"), QStringLiteral("cut off"));
        line.insert(QStringLiteral("bytes"), 4294967296.0);
        const LogEntries entries = read({line});
        const window::LogEntry &entry = entries.at(0);
        QCOMPARE(entry.time,
                 QDateTime::fromString(QStringLiteral("2026-11-21T10:07:00Z"), Qt::ISODate).toMSecsSinceEpoch());
        QCOMPARE(entry.bytes, 4294967296);
        QCOMPARE(entries.texts().text(entry.process), QStringLiteral("Resize"));
        QCOMPARE(entries.texts().text(entry.status), QStringLiteral("Failed"));
        QCOMPARE(entries.texts().text(entry.reason), QStringLiteral("cut off"));
        QCOMPARE(entry.input, QStringLiteral("a.jpg"));
        QCOMPARE(entries.inputPath(entry), QStringLiteral("/p/Lake/a.jpg"));
        QCOMPARE(entries.outputPath(entry), QStringLiteral("/p/Web/a.jpg"));
        QVERIFY(!entry.isEdit);
    }

    void readsTheOtherKeysOfALine()
    {
        const LogEntries entries = read({{{QStringLiteral("LogDate"), QStringLiteral("2026-11-21T10:07:00.000Z")},
                                          {QStringLiteral("LogProcess"), QStringLiteral("Crop")},
                                          {QStringLiteral("LogAction"), QStringLiteral("left")},
                                          {QStringLiteral("LogStatus"), QStringLiteral("OK")},
                                          {QStringLiteral("LogIpath"), QStringLiteral("/p/b.jpg")},
                                          {QStringLiteral("LogO"), QStringLiteral("c.jpg")}}});
        QCOMPARE(entries.texts().text(entries.at(0).process), QStringLiteral("Crop"));
        QCOMPARE(entries.inputPath(entries.at(0)), QStringLiteral("/p/b.jpg"));
        QCOMPARE(entries.at(0).output, QStringLiteral("c.jpg"));
        QCOMPARE(entries.outputPath(entries.at(0)), QString());
    }

    void addsNothingForALineThatSaysNothing_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no JSON") << QByteArray("half a li");
        QTest::newRow("a list") << QByteArray("[1]");
        QTest::newRow("no process and no status") << QByteArray(R"({"date":"2026-11-21T10:07:00.000Z"})");
        QTest::newRow("no texts") << QByteArray(R"({"process":7,"status":null})");
    }

    void addsNothingForALineThatSaysNothing()
    {
        QFETCH(QByteArray, line);
        LogEntries entries;
        QVERIFY(!entries.add(line, End::Newer));
        QCOMPARE(entries.count(), 0);
        QCOMPARE(entries.runCount(), 0);
    }

    void takesADateThatCannotBeReadForNone()
    {
        QJsonObject line = bare(1);
        line.insert(QStringLiteral("date"), QStringLiteral("yesterday"));
        QCOMPARE(read({line}).at(0).time, 0);
    }

    void growsAtBothEnds()
    {
        LogEntries entries = read({bare(30), bare(31)});
        QVERIFY(entries.add(text(bare(29)), End::Older));
        QCOMPARE(entries.count(), 3);
        QCOMPARE(entries.oldest(), -1);
        QCOMPARE(entries.newest(), 1);
        QVERIFY(entries.at(-1).time < entries.at(0).time);
        entries.clear();
        QCOMPARE(entries.count(), 0);
        QCOMPARE(entries.texts().count(), 1);
    }

    void countsLinesWithoutARunTogetherWhileTheyFollowClosely_data()
    {
        QTest::addColumn<End>("end");
        QTest::addColumn<QList<int>>("minutes");
        QTest::addColumn<int>("runs");
        QTest::newRow("close") << End::Newer << QList<int>{1, 11, 21} << 1;
        QTest::newRow("apart") << End::Newer << QList<int>{1, 12} << 2;
        QTest::newRow("close, read backwards") << End::Older << QList<int>{21, 11, 1} << 1;
        QTest::newRow("apart, read backwards") << End::Older << QList<int>{12, 1} << 2;
    }

    void countsLinesWithoutARunTogetherWhileTheyFollowClosely()
    {
        QFETCH(End, end);
        QFETCH(QList<int>, minutes);
        QList<QJsonObject> lines;
        for (const int minute : minutes)
            lines.append(bare(minute));
        QTEST(read(lines, end).runCount(), "runs");
    }

    void countsWhatARunDid()
    {
        const LogEntries entries = read({ofRun("one"), ofRun("one", "Failed"), ofRun("one", "Skipped"), ofRun("two")});
        QCOMPARE(entries.runCount(), 2);
        const LogRun &one = entries.run(entries.runNamed(QStringLiteral("one")));
        QCOMPARE(one.count, 3);
        QCOMPARE(one.problems, 1);
        QCOMPARE(one.edits, 0);
        QCOMPARE(entries.runNamed(QStringLiteral("three")), -1);
        QCOMPARE(entries.runNamed(QString()), -1);
        // The newest comes first.
        QCOMPARE(entries.run(entries.runOrder().front()).id, QStringLiteral("two"));
        QCOMPARE(read({ofRun("new"), ofRun("old")}, End::Older).runOrder(), (std::vector<int>{0, 1}));
    }

    void countsWhatLaterRunsTookBack()
    {
        QList<QJsonObject> lines = {ofRun("one"), ofRun("one"), takingBack("back", "one"),
                                    takingBack("back", "one", "Failed")};
        QCOMPARE(read(lines).undoneOf(QStringLiteral("one")), 1);
        lines.append(takingBack("again", "back"));
        QCOMPARE(read(lines).undoneOf(QStringLiteral("one")), 0);
        QCOMPARE(read(lines).undoneOf(QString()), 0);
        QCOMPARE(read(lines).undoneOf(QStringLiteral("unknown")), 0);
    }

    void endsWhereRunsTakeBackEachOther()
    {
        const LogEntries entries = read({takingBack("a", "b"), takingBack("b", "a"), takingBack("c", "c")});
        QVERIFY(entries.undoneOf(QStringLiteral("a")) >= 0);
        QVERIFY(entries.undoneOf(QStringLiteral("c")) >= 0);
    }

    void revertsOnlyEditsThatChangedAComment()
    {
        const LogEntries entries =
            read({edit("old", "new"), edit("same", "same"), edit("old", "new", "Failed"), bare(1)});
        QVERIFY(entries.isRevertible(entries.at(0)));
        QVERIFY(!entries.isRevertible(entries.at(1)));
        QVERIFY(!entries.isRevertible(entries.at(2)));
        QVERIFY(!entries.isRevertible(entries.at(3)));
        const LogRun &run = entries.run(entries.runNamed(QStringLiteral("edits")));
        QCOMPARE(run.edits, 1);
        QVERIFY(run.areEdits);
    }
};

QUORLIN_TEST(TestLogEntries)
#include "tst_log_entries.moc"
