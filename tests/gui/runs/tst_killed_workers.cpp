#include "tests/gui/support/window_driver.h"
#include "tests/support/test_program.h"

#include "jobs/desk/worker_desk.h"

#include <QDir>
#include <QDirIterator>
#include <QImage>
#include <QRandomGenerator>
#include <QTest>
#include <QTimer>

#include <csignal>

#include <unistd.h>

using jobs::WorkerDesk;
using window::PictureModel;

/** Whatever happens to the workers of a run of the window, the other pictures are made, and nothing is left. */
class KilledWorkers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void makesTheOthers_data();
    void makesTheOthers();

private:
    using Files = QMap<QString, QByteArray>;

    static QList<pid_t> children()
    {
        QList<pid_t> found;
        QFile children(QStringLiteral("/proc/self/task/%1/children").arg(::getpid()));
        if (children.open(QIODevice::ReadOnly))
            for (const QByteArray &number : children.readAll().simplified().split(' '))
                if (number.toInt() > 0)
                    found.append(number.toInt());
        return found;
    }

    /** Everything in a folder, hidden things too, by name. */
    static Files filesOf(const QString &folder)
    {
        Files all;
        QDirIterator found(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        while (found.hasNext()) {
            QFile file(found.next());
            all.insert(found.fileName(), file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file"));
        }
        return all;
    }

    void addPictures(const QString &folder) const;
    void run(int signal, int *left);
    QString faultOf(WindowDriver &driver, const Files &made, int *failed) const;

    int m_pictures = 0;
    Files m_expected;
};

void KilledWorkers::addPictures(const QString &folder) const
{
    for (int i = 0; i < m_pictures; ++i) {
        QImage image(1200 + i, 900, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, qRgb(x * 3 % 256, y * 5 % 256, i * 2));
        QVERIFY(image.save(QStringLiteral("%1/p%2.jpg").arg(folder).arg(i, 3, 10, QChar(u'0'))));
    }
}

void KilledWorkers::initTestCase()
{
    m_pictures = tests::repetitions(25, 100);
    const auto driver = WindowDriver::started();
    addPictures(driver->inputFolder());
    driver->drop({driver->inputFolder()});
    driver->click("startButton");
    QVERIFY(driver->waitForSummary().startsWith(QStringLiteral("%1 pictures done").arg(m_pictures)));
    m_expected = filesOf(driver->inputFolder() + QStringLiteral("/Resized"));
    QCOMPARE(m_expected.size(), m_pictures);
}

void KilledWorkers::makesTheOthers_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGKILL") << SIGKILL;
    QTest::newRow("SIGSEGV") << SIGSEGV;
    QTest::newRow("SIGSTOP") << SIGSTOP;
}

/** Each picture that is said to be done is there, whole, and nothing else is. */
QString KilledWorkers::faultOf(WindowDriver &driver, const Files &made, int *failed) const
{
    Files expected;
    for (int row = 0; row < m_pictures; ++row) {
        const QString name = driver.cell(row, PictureModel::Name);
        const QString status = driver.cell(row, PictureModel::Status);
        if (status == QLatin1String("OK"))
            expected.insert(name, m_expected[name]);
        else if (status == QLatin1String("Failed: its reader crashed") ||
                 status == QLatin1String("Failed: it took longer than 2 seconds"))
            ++*failed;
        else
            return name + QStringLiteral(": ") + status;
    }
    return made == expected ? QString() : QStringLiteral("%1 files, not %2").arg(made.size()).arg(expected.size());
}

void KilledWorkers::run(int signal, int *left)
{
    auto driver = WindowDriver::started();
    const QString results = driver->inputFolder() + QStringLiteral("/Resized");
    addPictures(driver->inputFolder());
    const Files originals = filesOf(driver->inputFolder());
    WorkerDesk::ofProcess().setSize(2);
    driver->drop({driver->inputFolder()});
    int sent = 0;
    qsizetype seen = 0;
    QTimer shots;
    shots.callOnTimeout([&] {
        const QList<pid_t> workers = children();
        const qsizetype done = QDir(results).entryList(QDir::Files).size();
        // Something was made since the last one: a slow machine starts workers more slowly than they are shot.
        if (*left <= 0 || workers.isEmpty() || done <= seen)
            return;
        seen = done;
        ::kill(workers[QRandomGenerator::global()->bounded(int(workers.size()))], signal);
        --*left;
        ++sent;
    });
    shots.start(signal == SIGSTOP ? 300 : 60);
    driver->click("startButton");
    QVERIFY(driver->waitFor([&] { return !driver->waitForSummary().isEmpty(); }, 240'000));
    shots.stop();
    int failed = 0;
    const QString fault = faultOf(*driver, filesOf(results), &failed);
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
    // Being stopped costs the picture at once, every other end only the second time.
    QVERIFY2(failed <= (signal == SIGSTOP ? sent : sent / 2), qPrintable(QStringLiteral("%1 failed").arg(failed)));
    Files now = filesOf(driver->inputFolder());
    now.remove(QStringLiteral("Resized"));
    QCOMPARE(now, originals);
    driver.reset();
}

void KilledWorkers::makesTheOthers()
{
    QFETCH(int, signal);
    int left = signal == SIGSTOP ? tests::repetitions(2, 40) : tests::repetitions(5, 80);
    int batches = 0;
    const auto endWorkers = [](const std::optional<platform::WorkerLimits> &limits) {
        WorkerDesk::useProgram(QStringLiteral(QUORLIN_WORKER), limits);
    };
    const platform::WorkerLimits limits = {2, qint64(2048) << 20, 10};
    endWorkers(limits);
    while (left > 0 && !QTest::currentTestFailed() && batches < 100) {
        run(signal, &left);
        ++batches;
        endWorkers(limits);
        QTRY_COMPARE(children(), QList<pid_t>());
    }
    endWorkers({});
    QCOMPARE(left, 0);
    qInfo("%d runs of %d pictures", batches, m_pictures);
}

QUORLIN_GUI_TEST(KilledWorkers)

#include "tst_killed_workers.moc"
