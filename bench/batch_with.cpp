// batch_with WORKER COUNT RECIPE OUT_FOLDER PICTURE...: a batch whose workers are any program; prints how busy they were, as the
// time that all of them say they worked over the time that all of them had, from when the last one had started.

#include "image/recipe/recipe_reader.h"
#include "jobs/batch.h"
#include "platform/file/atomic_file.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    constexpr int own = 5;
    const auto recipe = image::readRecipeFile(arguments.value(3));
    if (argc <= own || !recipe)
        return EXIT_FAILURE;
    const int workers = arguments[2].toInt();
    jobs::Crew crew({arguments[1], workers, {}}, *platform::readFile(arguments[3]), QStringLiteral("/"));
    if (const QString problem = crew.begin(); !problem.isEmpty())
        return EXIT_FAILURE;
    jobs::BatchOptions options;
    options.destination.folder = arguments[4];
    jobs::Inputs inputs(arguments.mid(own));
    qint64 worked = 0;
    bool isWhole = false;
    QElapsedTimer timer; // from when all of them are there
    const auto take = [&](const jobs::ReportLine &line) {
        if (!isWhole && int(crew.ready().size()) == workers) {
            isWhole = true;
            timer.start();
        }
        worked += isWhole ? std::min(line.milliseconds, timer.elapsed()) : 0;
        return line.status == jobs::LineStatus::Ok;
    };
    const jobs::Summary summary = jobs::runBatch(*recipe, inputs, options, crew, take, [] { return jobs::Stop::No; });
    const double had = double(timer.elapsed()) * workers;
    std::printf("%d pictures, %.2f s, workers busy %.1f %%\n", summary.ok, summary.seconds, 100 * double(worked) / had);
    return summary.failed == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
