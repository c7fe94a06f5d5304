#include "tests/gui/runs/window_session.h"
#include "tests/support/test_program.h"

#include <QRandomGenerator>

using session::Ended;
using session::Home;

/**
 * The window is killed at any moment of a run that makes one thing of all pictures, or copies them: nothing is there in half, and the next
 * start leaves nothing unfinished.
 */
class KilledSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesNothingInHalf_data();
    void leavesNothingInHalf();
    void leavesWholeCopies_data();
    void leavesWholeCopies();

private:
    using Files = QMap<QString, QByteArray>;

    static QString sorted(const Home &home) { return home.path() + QStringLiteral("/sorted"); }

    /** Those that a person sees. */
    static QStringList visible(const Files &files)
    {
        QStringList names;
        for (auto file = files.begin(); file != files.end(); ++file)
            if (!file.key().startsWith(u'.') && !file.key().contains(QLatin1String("/.")) && file.value() != "no file")
                names.append(file.key());
        return names;
    }

    static Files filesOnly(Files files)
    {
        files.removeIf([](const Files::iterator &file) { return file.value() == "no file"; });
        return files;
    }

    void killSheet(const QString &action, session::Moment moment, const QString &told);
    void killCopies(const QString &answer, session::Moment moment, const QString &told);
    void killAll(int calls, int runMs, const std::function<void(session::Moment, const QString &)> &kill);

    static constexpr int pictureCount = 6;
    QStringList m_whole;
    Files m_copies;
};

void KilledSheets::killAll(int calls, int runMs, const std::function<void(session::Moment, const QString &)> &kill)
{
    const int stride = std::max(1, calls / tests::repetitions(5, 30));
    for (int call = 1 + QRandomGenerator::global()->bounded(stride); call <= calls; call += stride) {
        kill({-1, call}, QStringLiteral("killed before change %1 of %2").arg(call).arg(calls));
        if (QTest::currentTestFailed())
            return;
    }
    for (int i = 0; i < tests::repetitions(2, 15); ++i) {
        const int after = QRandomGenerator::global()->bounded(runMs);
        kill({after, 0}, QStringLiteral("killed after %1 of %2 ms").arg(after).arg(runMs));
        if (QTest::currentTestFailed())
            return;
    }
}

void KilledSheets::leavesNothingInHalf_data()
{
    QTest::addColumn<QString>("action");
    for (const char *action : {"web", "contact"})
        QTest::newRow(action) << QString::fromLatin1(action);
}

void KilledSheets::leavesNothingInHalf()
{
    QFETCH(QString, action);
    const Home home;
    const Files before = home.addPictures(pictureCount);
    const Ended ended = home.window(action);
    m_whole = visible(Home::files(home.input()));
    QVERIFY2(!ended.isKilled && m_whole.size() > before.size(), qPrintable(ended.said.join(u'\n')));
    QCOMPARE(m_whole.size(), filesOnly(Home::files(home.input())).size()); // nothing is hidden
    const int calls = ended.line("calls ").toInt();
    QVERIFY(calls > 5);
    killAll(calls, ended.workMs, [&](session::Moment moment, const QString &told) { killSheet(action, moment, told); });
}

void KilledSheets::killSheet(const QString &action, session::Moment moment, const QString &told)
{
    const Home home;
    const Files before = home.addPictures(pictureCount);
    const auto originals = [&] {
        Files now = Home::files(home.input());
        now.removeIf([&](const Files::iterator &file) { return !before.contains(file.key()); });
        return now;
    };
    const Ended ended = home.window(action, moment);
    QTRY_VERIFY2(home.workers().isEmpty(), qPrintable(told));
    QStringList seen = visible(Home::files(home.input()));
    QVERIFY2(seen == before.keys() || seen == m_whole, qPrintable(told + u' ' + seen.join(u' ')));
    QVERIFY2(originals() == before, qPrintable(told));
    const Ended next = home.window(QStringLiteral("leave"));
    const Files now = filesOnly(Home::files(home.input()));
    QVERIFY2(now.keys() == before.keys() || now.keys() == m_whole, qPrintable(told + u' ' + now.keys().join(u' ')));
    QVERIFY2(originals() == before, qPrintable(told));
    QVERIFY2(home.records().isEmpty(), qPrintable(told + u' ' + home.records().join(u' ')));
    for (const QString &name : Home::files(home.input()).keys())
        QVERIFY2(!name.startsWith(u'.') && !name.contains(QLatin1String("/.")), qPrintable(told + u' ' + name));
    QVERIFY2(!ended.isKilled || !next.has("asked "), qPrintable(told + u' ' + next.said.join(u' ')));
}

void KilledSheets::leavesWholeCopies_data()
{
    QTest::addColumn<QString>("answer");
    for (const char *answer : {"continue", "leave", "undo"})
        QTest::newRow(answer) << QString::fromLatin1(answer);
}

void KilledSheets::leavesWholeCopies()
{
    QFETCH(QString, answer);
    const Home home;
    const Files before = home.addPictures(pictureCount);
    const Ended ended = home.window(QStringLiteral("sort"));
    m_copies = filesOnly(Home::files(sorted(home)));
    QVERIFY2(!ended.isKilled && m_copies.size() == pictureCount, qPrintable(ended.said.join(u'\n')));
    QCOMPARE(Home::files(home.input()), before);
    const int calls = ended.line("calls ").toInt();
    QVERIFY(calls > 2 * pictureCount);
    killAll(calls, ended.workMs,
            [&](session::Moment moment, const QString &told) { killCopies(answer, moment, told); });
}

/** Each copy is whole or not there, all of them are there after going on, and none after undoing. */
void KilledSheets::killCopies(const QString &answer, session::Moment moment, const QString &told)
{
    const Home home;
    const Files before = home.addPictures(pictureCount);
    const Ended ended = home.window(QStringLiteral("sort"), moment);
    QVERIFY2(Home::files(home.input()) == before, qPrintable(told));
    const Ended next = home.window(answer);
    const QString all = told + u'\n' + next.said.join(QStringLiteral(" | "));
    QVERIFY2(Home::files(home.input()) == before, qPrintable(all));
    const Files copies = filesOnly(Home::files(sorted(home)));
    for (auto copy = copies.begin(); copy != copies.end(); ++copy)
        QVERIFY2(m_copies.contains(copy.key()) && copy.value().size() > 0, qPrintable(all + u' ' + copy.key()));
    for (auto copy = copies.begin(); copy != copies.end(); ++copy)
        QVERIFY2(before.values().contains(copy.value()), qPrintable(all + u' ' + copy.key()));
    if (answer == QLatin1String("continue") && (next.has("asked ") || !ended.isKilled))
        QCOMPARE(copies.size(), m_copies.size());
    if (answer == QLatin1String("undo") && next.has("undoes "))
        QCOMPARE(copies.size(), 0);
}

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--window") == 0)
        return session::act(argc, argv);
    return tests::mainWithoutWindows<KilledSheets>(argc, argv);
}

#include "tst_killed_sheets.moc"
