#include "tests/gui/runs/window_session.h"
#include "tests/support/test_program.h"

#include <QPushButton>
#include <QRandomGenerator>

using session::Ended;
using session::Home;

namespace {

/** A run on a disk that is full from a change of it on; whatever is asked is answered with Cancel. */
int runOnADiskThatFills(const QString &home, const QString &does, int call)
{
    auto driver = WindowDriver::started(home);
    QTimer look;
    look.callOnTimeout([] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            session::say(QStringLiteral("question ") + box->text());
            box->buttons().constLast()->click();
        }
    });
    look.start(20);
    jobs::WorkerDesk::ofProcess().setSize(2);
    driver->show(qPrintable(does));
    driver->drop({driver->inputFolder()});
    driver->waitFor([&] { return driver->control<QAbstractButton>("startButton")->isEnabled(); });
    session::Calls::fillBefore(call);
    driver->click("startButton");
    session::say(QStringLiteral("summary ") + driver->waitForSummary());
    driver.reset();
    session::say(QStringLiteral("calls %1").arg(session::Calls::count()));
    return 0;
}

} // namespace

/** A disk that fills up at any moment of a run: what is done is whole, the rest is not there, and originals are as they were. */
class FullMoments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leaveNothingInHalf_data();
    void leaveNothingInHalf();

private:
    using Files = QMap<QString, QByteArray>;

    static Ended run(const Home &home, const QString &action, int call)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--full"), home.path(), action, QString::number(call)});
        constexpr int mostMs = 120'000;
        Ended ended;
        ended.isKilled = !process.waitForFinished(mostMs) || process.exitStatus() == QProcess::CrashExit;
        for (const QByteArray &line : process.readAllStandardOutput().split('\n'))
            if (!line.isEmpty())
                ended.said.append(QString::fromUtf8(line));
        return ended;
    }

    void fillOnce(const QString &action, int call);

    static constexpr int pictureCount = 4;
    Files m_whole;
};

void FullMoments::leaveNothingInHalf_data()
{
    QTest::addColumn<QString>("action");
    for (const char *action : {"resize", "contact", "web"})
        QTest::newRow(action) << QString::fromLatin1(action);
}

void FullMoments::leaveNothingInHalf()
{
    QFETCH(QString, action);
    const Home home;
    const Files before = home.addPictures(pictureCount);
    const Ended ended = run(home, action, 0);
    m_whole = Home::files(home.input());
    const int calls = ended.line("calls ").toInt();
    QVERIFY2(!ended.isKilled && m_whole.size() > before.size() && calls > 5, qPrintable(ended.said.join(u'\n')));
    const int stride = std::max(1, calls / tests::repetitions(6, 50));
    for (int call = 1 + QRandomGenerator::global()->bounded(stride); call <= calls; call += stride) {
        fillOnce(action, call);
        if (QTest::currentTestFailed())
            return;
    }
}

void FullMoments::fillOnce(const QString &action, int call)
{
    const Home home;
    const Files before = home.addPictures(pictureCount);
    const Ended ended = run(home, action, call);
    const QString told = QStringLiteral("full from change %1: ").arg(call) + ended.said.join(QStringLiteral(" | "));
    QVERIFY2(!ended.isKilled && ended.has("summary "), qPrintable(told));
    const Files now = Home::files(home.input());
    for (auto file = before.begin(); file != before.end(); ++file)
        QVERIFY2(now.value(file.key()) == file.value(), qPrintable(told));
    for (auto file = now.begin(); file != now.end(); ++file) {
        QVERIFY2(m_whole.contains(file.key()), qPrintable(told + u' ' + file.key())); // nothing is hidden
        // A PDF and a page have dates in them.
        QVERIFY2(!file.key().endsWith(QLatin1String(".jpg")) || file.value() == m_whole[file.key()],
                 qPrintable(told + u' ' + file.key()));
        QVERIFY2(!file.key().endsWith(QLatin1String(".pdf")) || file.value().trimmed().endsWith("%%EOF"),
                 qPrintable(told));
    }
    QVERIFY2(!now.contains(QStringLiteral("Web Page/index.html")) || now.keys() == m_whole.keys(), qPrintable(told));
}

int main(int argc, char **argv)
{
    if (argc < 5 || qstrcmp(argv[1], "--full") != 0)
        return tests::mainWithoutWindows<FullMoments>(argc, argv);
    QApplication application(argc, argv);
    return runOnADiskThatFills(QString::fromLocal8Bit(argv[2]), QString::fromLatin1(argv[3]),
                               QByteArray(argv[4]).toInt());
}

#include "tst_full_moments.moc"
