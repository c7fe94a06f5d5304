// measure_reactions FOLDER: the window converts all pictures of a folder to JPEG, PNG and JPEG 2000, while somebody moves the mouse and types;
// prints how long it took until each move and each key was handled and shown. Fails if one in a hundred takes 50 ms, or
// any takes 100 ms. For bench/window.

#include "tests/gui/support/window_driver.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

using window::PictureModel;

namespace {

constexpr double mostOfNearlyAll = 50;
constexpr double mostOfAny = 100;

double nowMs()
{
    timespec now = {};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

/** The person: a separate process, which nothing here can delay. Reports its actions through a pipe. */
int beginPerson()
{
    std::array<int, 2> ends = {-1, -1};
    if (::pipe(ends.data()) != 0 || ::fork() != 0) {
        ::close(ends[1]);
        ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
        return ends[0];
    }
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::close(ends[0]);
    constexpr useconds_t least = 9'000; // microseconds
    constexpr int spread = 16'000;
    for (;;) {
        ::usleep(least + useconds_t(std::rand() % spread));
        const double when = nowMs();
        if (::write(ends[1], &when, sizeof when) != sizeof when)
            ::_exit(0);
    }
}

/** Does what the person did, and keeps how long that took since. */
class Reactions
{
public:
    explicit Reactions(WindowDriver &driver) : m_driver(driver) {}

    std::vector<double> taken;

    void react(double when)
    {
        constexpr int keyEach = 4;
        if (++m_count % keyEach == 0)
            type();
        else
            move();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest); // it is on the screen
        taken.push_back(nowMs() - when);
    }

private:
    void type()
    {
        const int rows = m_driver.pictures().model()->rowCount();
        const bool isDown = (m_count / 4) % (2 * rows) < rows;
        QTest::keyClick(&m_driver.pictures(), isDown ? Qt::Key_Down : Qt::Key_Up);
    }

    void move()
    {
        constexpr int step = 7;
        QWidget &window = m_driver.window();
        const QPoint at(m_count * step % window.width(), m_count * step * 3 % window.height());
        QWidget *below = window.childAt(at);
        QTest::mouseMove(below ? below : &window, below ? below->mapFrom(&window, at) : at);
    }

    WindowDriver &m_driver;
    int m_count = 0;
};

bool report(const QString &what, std::vector<double> taken, int made)
{
    constexpr size_t fewest = 100;
    if (taken.size() < fewest) {
        std::printf("%s, %d pictures: only %zu reactions, which is too few to tell; COUNT=64 gives it more pictures\n",
                    qPrintable(what), made, taken.size());
        std::fflush(stdout);
        return false;
    }
    std::sort(taken.begin(), taken.end());
    const double nearlyAll = taken[taken.size() * 99 / 100];
    const bool isWell = nearlyAll < mostOfNearlyAll && taken.back() <= mostOfAny;
    std::printf("%s, %d pictures: %zu reactions, half within %.1f ms, 99 %% within %.1f ms, the longest %.1f ms%s\n",
                qPrintable(what), made, taken.size(), taken[taken.size() / 2], nearlyAll, taken.back(),
                isWell ? "" : " - too long");
    std::fflush(stdout);
    return isWell;
}

bool isPlanned(WindowDriver &driver)
{
    const int last = driver.pictures().model()->rowCount() - 1;
    return last >= 0 && driver.control<QAbstractButton>("startButton")->isEnabled() &&
           driver.cell(last, PictureModel::Status) == QStringLiteral("Ready");
}

/** @return whether all reactions during a run were quick enough */
bool measure(WindowDriver &driver, int person, const QString &type)
{
    constexpr int longMs = 1'200'000;
    driver.choose("target", type);
    driver.waitFor([&] { return isPlanned(driver); }, longMs);
    driver.waitFor([] { return false; }, 2000); // thumbnails and the preview
    Reactions reactions(driver);
    QSocketNotifier notifier(person, QSocketNotifier::Read);
    // What was done before is no reaction to this run.
    std::array<double, 64> old = {};
    while (::read(person, old.data(), sizeof old) > 0) {
    }
    QObject::connect(&notifier, &QSocketNotifier::activated, &notifier, [&] {
        double when = 0;
        if (::read(person, &when, sizeof when) == sizeof when)
            reactions.react(when);
    });
    auto *dismiss = driver.control<QAbstractButton>("dismissButton");
    driver.click("startButton");
    QEventLoop loop;
    QTimer look;
    look.callOnTimeout([&] {
        if (dismiss->isVisible())
            loop.quit();
    });
    look.start(20);
    loop.exec();
    int made = 0;
    for (int row = 0; row < driver.pictures().model()->rowCount(); ++row)
        made += driver.cell(row, PictureModel::Status) == QStringLiteral("OK");
    driver.click("dismissButton");
    return report(type, reactions.taken, made);
}

} // namespace

int main(int argc, char **argv)
{
    const int person = beginPerson();
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2)
        return EXIT_FAILURE;
    const auto driver = WindowDriver::showing("convert");
    driver->window().resize(1280, 800);
    driver->drop({arguments[1]});
    bool isWell = true;
    for (const char *type : {"jpeg", "png", "jp2"})
        isWell = measure(*driver, person, QString::fromLatin1(type)) && isWell;
    return isWell ? EXIT_SUCCESS : EXIT_FAILURE;
}
