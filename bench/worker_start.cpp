// worker_start WORKER RECIPE: starts a worker, has it read the recipe and ends it, as the batch does with its first one; prints the CPU
// time of the worker in milliseconds and the most that it had in memory, in megabytes.

#include "jobs/crew/crew.h"
#include "platform/file/atomic_file.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const auto recipe = platform::readFile(arguments.value(2));
    if (!recipe)
        return EXIT_FAILURE;
    {
        jobs::Crew crew({arguments[1], 1, {}}, *recipe, QStringLiteral("/"));
        if (!crew.begin().isEmpty())
            return EXIT_FAILURE;
    }
    rusage used = {};
    getrusage(RUSAGE_CHILDREN, &used);
    const auto milliseconds = [](const timeval &time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    std::printf("%.2f %.1f\n", milliseconds(used.ru_utime) + milliseconds(used.ru_stime),
                double(used.ru_maxrss) / 1024);
    return EXIT_SUCCESS;
}
