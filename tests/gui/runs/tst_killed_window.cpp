#include "tests/gui/runs/window_session.h"
#include "tests/support/test_program.h"

#include <QImage>
#include <QRandomGenerator>

using session::Ended;
using session::Home;

/** The window is killed at any moment of a run: the next one finds what is done, and does exactly the rest. */
class KilledWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void goesOnAfterAnyMoment();
    void goesOnAfterAnyCall();

private:
    static void addPictures(const Home &home)
    {
        for (int i = 0; i < pictureCount; ++i) {
            // Names that are not in the order in which their pictures are ready.
            QImage image(1200 / (i + 1), 900 / (i + 1), QImage::Format_RGB32);
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    image.setPixel(x, y, qRgb(x * 3 % 256, y * 5 % 256, i * 9 % 256));
            QVERIFY(image.save(QStringLiteral("%1/p%2.jpg").arg(home.input()).arg(i, 2, 10, QChar(u'0'))));
        }
    }

    void checkWhole(const Home &home, const QString &told) const;
    void killOnce(session::Moment moment, const QString &told);
    static bool isUntouched(const Home &home);

    static constexpr int pictureCount = 24;
    QMap<QString, QByteArray> m_expected; ///< originals and results of a run that nobody disturbs
    QList<QJsonObject> m_rows;
    int m_runMs = 0;
    int m_calls = 0;
    int m_asked = 0;
};

void KilledWindow::initTestCase()
{
    const Home home;
    addPictures(home);
    const Ended ended = home.window(QStringLiteral("begin"));
    QVERIFY2(!ended.isKilled && ended.line("summary ").startsWith(QStringLiteral("24 pictures done")),
             qPrintable(ended.said.join(u'\n')));
    m_expected = Home::files(home.input());
    QCOMPARE(m_expected.size(), 2 * pictureCount + 1); // and the folder of the results
    m_rows = home.logRows();
    QCOMPARE(m_rows.size(), pictureCount);
    QCOMPARE(home.records(), QStringList());
    m_runMs = ended.workMs;
    m_calls = ended.line("calls ").toInt();
    QVERIFY(m_calls > 3 * pictureCount);
    qInfo("a run takes %d ms and changes the disk %d times", m_runMs, m_calls);
}

bool KilledWindow::isUntouched(const Home &home)
{
    return home.logRows().isEmpty() && Home::files(home.input()).size() <= pictureCount + 1;
}

/** Names, bytes, and the log, each row once. */
void KilledWindow::checkWhole(const Home &home, const QString &told) const
{
    const auto found = Home::files(home.input());
    QVERIFY2(found.keys() == m_expected.keys(),
             qPrintable(told + QStringLiteral("\nfiles: ") + found.keys().join(u' ')));
    for (auto file = m_expected.begin(); file != m_expected.end(); ++file)
        QVERIFY2(found[file.key()] == file.value(), qPrintable(told + u'\n' + file.key() + QStringLiteral(" differs")));
    const QList<QJsonObject> rows = home.logRows();
    QVERIFY2(rows == m_rows, qPrintable(told + QStringLiteral("\n%1 rows in the log").arg(rows.size())));
    QVERIFY2(home.records().isEmpty(), qPrintable(told + u'\n' + home.records().join(u' ')));
    QVERIFY2(home.workers().isEmpty(), qPrintable(told + QStringLiteral("\nworkers ") + home.workers().join(u' ')));
}

void KilledWindow::killOnce(session::Moment moment, const QString &told)
{
    const Home home;
    addPictures(home);
    Ended ended = home.window(QStringLiteral("begin"), moment);
    QTRY_VERIFY2(home.workers().isEmpty(), qPrintable(told));
    QString all = told;
    while (ended.isKilled) {
        // Going on is killed as well, now and then.
        const bool isKilledAgain = QRandomGenerator::global()->bounded(3) == 0;
        const int again = isKilledAgain ? QRandomGenerator::global()->bounded(m_runMs) : -1;
        ended = home.window(QStringLiteral("continue"), {again, 0});
        all += QStringLiteral("\nagain %1: %2").arg(again).arg(ended.said.join(QStringLiteral(" | ")));
        m_asked += ended.has("asked");
        if (ended.has("not asked") && isUntouched(home))
            ended = home.window(QStringLiteral("begin")); // it had not begun
    }
    checkWhole(home, all);
}

void KilledWindow::goesOnAfterAnyMoment()
{
    m_asked = 0;
    const int rounds = tests::repetitions(3, 100);
    for (int i = 0; i < rounds; ++i) {
        const int after = QRandomGenerator::global()->bounded(m_runMs * 11 / 10);
        killOnce({after, 0}, QStringLiteral("round %1, killed after %2 of %3 ms").arg(i).arg(after).arg(m_runMs));
        if (QTest::currentTestFailed())
            return;
    }
    constexpr int enough = 20; // for chance to be ruled out
    QVERIFY2(rounds < enough || m_asked > rounds / 4,
             qPrintable(QStringLiteral("asked in %1 of %2 rounds").arg(m_asked).arg(rounds)));
}

/** Moments that are too short to be met by chance: between two changes of the disk. */
void KilledWindow::goesOnAfterAnyCall()
{
    const int stride = std::max(1, m_calls / tests::repetitions(3, 100));
    for (int call = 1 + QRandomGenerator::global()->bounded(stride); call <= m_calls; call += stride) {
        killOnce({-1, call}, QStringLiteral("killed before change %1 of %2").arg(call).arg(m_calls));
        if (QTest::currentTestFailed())
            return;
    }
}

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--window") == 0)
        return session::act(argc, argv);
    return tests::mainWithoutWindows<KilledWindow>(argc, argv);
}

#include "tst_killed_window.moc"
