// window_start: starts the window as the program does and ends with its first frame; prints the CPU time of it in milliseconds and the
// most that it had in memory, in megabytes.

#include "app/window/start_up.h"

#include <QApplication>
#include <QTimer>
#include <QWindow>

#include <cstdio>
#include <cstdlib>

#include <sys/resource.h>

namespace {

/** Waits for a window that can be seen, and for what it draws then. */
class FirstFrame : public QObject
{
protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *window = qobject_cast<QWindow *>(watched);
        if (event->type() == QEvent::Expose && window && window->isExposed())
            QTimer::singleShot(0, [] { report(); });
        return false;
    }

private:
    [[noreturn]] static void report()
    {
        rusage used = {};
        getrusage(RUSAGE_SELF, &used);
        const auto milliseconds = [](const timeval &time) {
            return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
        };
        std::printf("%.2f %.1f\n", milliseconds(used.ru_utime) + milliseconds(used.ru_stime),
                    double(used.ru_maxrss) / 1024);
        std::fflush(stdout);
        std::_Exit(EXIT_SUCCESS);
    }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    FirstFrame frame;
    application.installEventFilter(&frame);
    window::StartUp startUp(application);
    if (!startUp.loadScripts({}, {})) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(startUp.problem()));
        return EXIT_FAILURE;
    }
    return QApplication::exec();
}
