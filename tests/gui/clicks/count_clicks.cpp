// count_clicks earlier|present: does the jobs of click_jobs.h and prints a line "COUNT<tab>NAME" for each, with the problem of one that
// could not be done. Used by bench/clicks.

#include "tests/gui/clicks/click_jobs.h"

#include <QApplication>

#include <cstdio>
#include <cstring>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const bool isEarlier = argc > 1 && std::strcmp(argv[1], "earlier") == 0;
    bool areDone = true;
    for (const clicks::Job &job : clicks::doAll(isEarlier ? clicks::Program::Earlier : clicks::Program::Present)) {
        areDone = areDone && job.problem.isEmpty();
        std::printf("%d\t%s\t%s\n", job.count, qPrintable(job.name), qPrintable(job.problem));
    }
    return areDone ? 0 : 1;
}
