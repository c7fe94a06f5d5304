#include "tests/gui/runs/window_session.h"
#include "tests/support/test_program.h"

#include <QRandomGenerator>

using session::Ended;
using session::Home;

/**
 * The window is killed while results take the place of their originals, at each change of the disk: nothing is lost, the next one finishes
 * or leaves it in order, and all of it can be undone.
 */
class KilledReplacing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void losesNothing_data();
    void losesNothing();

private:
    using Files = QMap<QString, QByteArray>;

    void killAt(int call, const QString &answer);
    QString faultOf(const Home &home, const Files &before) const;

    static constexpr int pictureCount = 3;
    static constexpr int answers = 3;
    Files m_results;
    int m_calls = 0;
};

void KilledReplacing::initTestCase()
{
    const Home home;
    const Files before = home.addPictures(pictureCount);
    const Ended ended = home.window(QStringLiteral("replace"));
    QVERIFY2(!ended.isKilled && ended.line("summary ").startsWith(QStringLiteral("3 pictures done")),
             qPrintable(ended.said.join(u'\n')));
    m_results = Home::files(home.input());
    QCOMPARE(m_results.keys(), before.keys());
    QCOMPARE(home.trash().size(), pictureCount);
    for (const QString &name : before.keys())
        QVERIFY(m_results[name] != before[name] && home.trash().values().contains(before[name]));
    m_calls = ended.line("calls ").toInt();
    QVERIFY(m_calls > 5 * pictureCount);
    const Ended undone = home.window(QStringLiteral("undo"));
    QVERIFY2(Home::files(home.input()) == before, qPrintable(undone.said.join(u'\n')));
    qInfo("%d changes of the disk", m_calls);
}

/** Each picture is there, as it was or as its result, and what it was is kept; nothing else is. */
QString KilledReplacing::faultOf(const Home &home, const Files &before) const
{
    const Files now = Home::files(home.input());
    const Files trash = home.trash();
    if (now.keys() != before.keys())
        return QStringLiteral("there are ") + now.keys().join(u' ');
    for (const QString &name : before.keys()) {
        const bool isOld = now[name] == before[name];
        if (!isOld && now[name] != m_results[name])
            return name + QStringLiteral(" is something else");
        const auto kept = std::count(trash.begin(), trash.end(), before[name]);
        if (kept != (isOld ? 0 : 1))
            return name + QStringLiteral(" is %1 times in the trash").arg(kept);
    }
    return {};
}

void KilledReplacing::killAt(int call, const QString &answer)
{
    const Home home;
    const Files before = home.addPictures(pictureCount);
    const Ended ended = home.window(QStringLiteral("replace"), {-1, call});
    QString told = QStringLiteral("killed before change %1 of %2, ").arg(call).arg(m_calls) +
                   ended.said.join(QStringLiteral(" | "));
    for (const QByteArray &old : before)
        QVERIFY2(Home::files(home.path()).values().contains(old), qPrintable(told));
    if (answer == QLatin1String("undo at once")) {
        const Ended undone = home.window(QStringLiteral("undo"));
        told += u'\n' + undone.said.join(QStringLiteral(" | "));
        QVERIFY2(Home::files(home.input()) == before, qPrintable(told));
        // While the bar of the interrupted run is shown, undoing it needs no further question.
        QVERIFY2(!undone.said.contains(QStringLiteral("asked")) || !undone.has("question"), qPrintable(told));
        return;
    }
    const Ended next = home.window(answer);
    told += u'\n' + next.said.join(QStringLiteral(" | "));
    const QString fault = faultOf(home, before);
    QVERIFY2(fault.isEmpty(), qPrintable(told + u'\n' + fault));
    const Files now = Home::files(home.input());
    const bool isContinued = answer == QLatin1String("continue") && next.has("asked");
    QVERIFY2(!isContinued || now == m_results, qPrintable(told));
    if (now != before)
        told += u'\n' + home.window(QStringLiteral("undo")).said.join(QStringLiteral(" | "));
    QVERIFY2(Home::files(home.input()) == before, qPrintable(told));
}

void KilledReplacing::losesNothing_data()
{
    QTest::addColumn<int>("first");
    int first = QRandomGenerator::global()->bounded(answers);
    for (const char *answer : {"continue", "leave", "undo at once"})
        QTest::newRow(answer) << 1 + first++ % answers;
}

/** Each change is met by one of the answers, by another one each time. */
void KilledReplacing::losesNothing()
{
    QFETCH(int, first);
    const int stride = std::max(answers, m_calls / tests::repetitions(4, 12));
    for (int call = first; call <= m_calls; call += stride) {
        killAt(call, QString::fromLatin1(QTest::currentDataTag()));
        if (QTest::currentTestFailed())
            return;
    }
}

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--window") == 0)
        return session::act(argc, argv);
    return tests::mainWithoutWindows<KilledReplacing>(argc, argv);
}

#include "tst_killed_replacing.moc"
