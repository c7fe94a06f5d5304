// measure_run WORKERS TYPE FOLDER: the window makes all pictures of a folder 1600 pixels wide, as TYPE, into the folder Resized in it; prints
// seconds from the click to the end of the last one, CPU seconds of window and workers meanwhile, and how many were made. For bench/window.

#include "tests/gui/support/window_driver.h"

#include "jobs/desk/worker_desk.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

#include <sys/resource.h>
#include <unistd.h>

using window::PictureModel;

namespace {

double secondsOf(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

/** CPU seconds of a process that lives, from its line in /proc. */
double cpuOf(const QByteArray &process)
{
    constexpr int userTime = 11; // counted from after the name
    QFile file(QStringLiteral("/proc/%1/stat").arg(QString::fromLatin1(process)));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray stat = file.readAll();
    const QList<QByteArray> words = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    return (words.value(userTime).toDouble() + words.value(userTime + 1).toDouble()) / double(::sysconf(_SC_CLK_TCK));
}

/** Of this process, of its workers, and of those that have ended. */
double cpuOfAll()
{
    double all = 0;
    for (const int who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage used = {};
        ::getrusage(__rusage_who(who), &used);
        all += secondsOf(used.ru_utime) + secondsOf(used.ru_stime);
    }
    QFile children(QStringLiteral("/proc/self/task/%1/children").arg(::getpid()));
    if (children.open(QIODevice::ReadOnly))
        for (const QByteArray &child : children.readAll().simplified().split(' '))
            all += cpuOf(child);
    return all;
}

bool isPlanned(WindowDriver &driver)
{
    const int last = driver.pictures().model()->rowCount() - 1;
    return last >= 0 && driver.control<QAbstractButton>("startButton")->isEnabled() &&
           driver.cell(last, PictureModel::Status) == QStringLiteral("Ready");
}

/** Waits as the program itself does: the loops of tests look at their condition again and again, and sleep in between. */
bool hasEnded(const QAbstractButton *dismiss, int mostMs)
{
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(mostMs);
    while (!dismiss->isVisible() && limit.isActive())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return dismiss->isVisible();
}

} // namespace

int main(int argc, char **argv)
{
    constexpr int planMs = 120'000;
    constexpr int runMs = 1'200'000;
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return EXIT_FAILURE;
    const auto driver = WindowDriver::started();
    jobs::WorkerDesk::ofProcess().setSize(arguments[1].toInt());
    driver->choose("fileType", arguments[2]);
    driver->drop({arguments[3]});
    if (!driver->waitFor([&] { return isPlanned(*driver); }, planMs))
        return EXIT_FAILURE;
    driver->waitFor([] { return false; }, 1000); // thumbnails
    auto *dismiss = driver->control<QAbstractButton>("dismissButton");
    const double cpu = cpuOfAll();
    QElapsedTimer timer;
    timer.start();
    driver->click("startButton");
    if (!hasEnded(dismiss, runMs))
        return EXIT_FAILURE;
    const double seconds = double(timer.elapsed()) / 1000;
    int made = 0;
    for (int row = 0; row < driver->pictures().model()->rowCount(); ++row)
        made += driver->cell(row, PictureModel::Status) == QStringLiteral("OK");
    std::printf("%.3f %.3f %d\n", seconds, cpuOfAll() - cpu, made);
    return EXIT_SUCCESS;
}
