#include "tests/gui/support/rights.h"
#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"
#include "tests/workers/attacks.h"

#include "jobs/desk/worker_desk.h"

#include <QDir>
#include <QImage>
#include <QTest>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

using window::PictureModel;

/** Workers of the window that have been taken over by a picture change nothing, and the run goes on. */
class Attacks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_TRIAL_WORKER));
        m_driver = WindowDriver::started();
        m_victim = m_driver->folder() + QStringLiteral("/victim");
        QFile file(m_victim);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("nobody changes this") == 19);
        m_process = ::fork();
        if (m_process == 0) {
            ::pause();
            ::_exit(0);
        }
        qputenv("QUORLIN_TRIAL_VICTIM", QFile::encodeName(m_victim));
        qputenv("QUORLIN_TRIAL_PROCESS", QByteArray::number(m_process));
    }

    void cleanup()
    {
        m_driver.reset();
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
        jobs::WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKER));
    }

    void changeNothing_data()
    {
        QTest::addColumn<QString>("program");
        QTest::newRow("a worker that tries") << QStringLiteral(QUORLIN_TRIAL_WORKER);
        QTest::newRow("the worker that people have") << QStringLiteral(QUORLIN_WORKER);
    }
    void changeNothing();

private:
    QString add(const QString &name) const
    {
        QImage image(64, 48, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        const QString path = m_driver->inputFolder() + u'/' + name;
        if (!image.save(path))
            qFatal("no picture");
        return path;
    }

    /** Everything that an attack could change of a file, but when it was read. */
    static QString stateOf(const QString &path)
    {
        struct stat state = {};
        ::stat(QFile::encodeName(path).constData(), &state);
        QFile file(path);
        const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
        return QStringLiteral("%1 %2 %3 %4 %5")
            .arg(rights::of(path))
            .arg(state.st_mtim.tv_sec)
            .arg(state.st_mtim.tv_nsec)
            .arg(::listxattr(QFile::encodeName(path).constData(), nullptr, 0))
            .arg(QString::fromLatin1(content.toHex()));
    }

    std::unique_ptr<WindowDriver> m_driver;
    QString m_victim;
    pid_t m_process = 0;
};

/** The one that people have does not know those names: to it they are pictures like any other. */
void Attacks::changeNothing()
{
    QFETCH(QString, program);
    const bool isTrial = program == QStringLiteral(QUORLIN_TRIAL_WORKER);
    jobs::WorkerDesk::useProgram(program);
    QMap<QString, QString> before = {{m_victim, stateOf(m_victim)}};
    QStringList paths;
    for (const Attack &attack : attacks) {
        paths.append(add(QStringLiteral("try-%1.png").arg(attack.name)));
        paths.append(add(QStringLiteral("well after %1.png").arg(attack.name)));
    }
    for (const QString &path : std::as_const(paths))
        before.insert(path, stateOf(path));
    const QStringList names = QDir(m_driver->folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    m_driver->drop(paths);
    m_driver->click("startButton");
    const QString summary = m_driver->waitForSummary();
    const int well = int(attacks.size()) * (isTrial ? 1 : 2);
    QVERIFY2(summary.startsWith(QStringLiteral("%1 pictures done").arg(well)), qPrintable(summary));
    for (size_t i = 0; i < attacks.size(); ++i) {
        const QString said = m_driver->cell(int(2 * i), PictureModel::Status);
        const QString refused = QStringLiteral("Failed: refused: E");
        const bool isAsExpected = !isTrial             ? said == QLatin1String("OK")
                                  : attacks[i].isEnded ? said == QLatin1String("Failed: its reader crashed")
                                                       : said.startsWith(refused);
        QVERIFY2(isAsExpected, qPrintable(attacks[i].name + QStringLiteral(": ") + said));
        QCOMPARE(m_driver->cell(int(2 * i + 1), PictureModel::Status), QStringLiteral("OK"));
    }
    for (auto file = before.begin(); file != before.end(); ++file)
        QCOMPARE(stateOf(file.key()), file.value());
    QCOMPARE(::waitpid(m_process, nullptr, WNOHANG), 0); // it lives
    QCOMPARE(QDir(m_driver->folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), names);
    QCOMPARE(QDir(m_driver->inputFolder() + QStringLiteral("/Resized"))
                 .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                 .size(),
             well);
}

QUORLIN_GUI_TEST(Attacks)

#include "tst_attacks.moc"
