#pragma once

#include "image/recipe/recipe_reader.h"
#include "jobs/batch.h"

/** Batches as quorlin-batch carries them out, with workers of the build. */
namespace batches {

inline QString workerProgram(const char *name = "quorlin-worker")
{
    return QStringLiteral(QUORLIN_WORKERS "/") + QLatin1String(name);
}

struct Run
{
    jobs::BatchOptions options;
    jobs::CrewOptions crew = {workerProgram(), 2, {}};
    QString folder = QStringLiteral("/"); ///< of the recipe
    std::function<jobs::Stop()> isStopped = [] { return jobs::Stop::No; };
    std::function<void(const jobs::ReportLine &line)> onLine = [](const jobs::ReportLine &) {};
    jobs::Summary summary; ///< afterwards
};

/** The lines in the order in which they came. */
inline QList<jobs::ReportLine> linesOf(const QByteArray &json, jobs::Inputs &inputs, Run &run)
{
    const auto recipe = image::readRecipe(json, run.folder);
    if (!recipe)
        qFatal("%s", qPrintable(recipe.error().message));
    run.options.recipe = jobs::recipeName(json);
    run.options.settings = run.options.recipe;
    run.options.made = jobs::madeWith(json, *recipe);
    jobs::Crew crew(run.crew, json, run.folder);
    if (const QString problem = crew.begin(); !problem.isEmpty())
        qFatal("%s", qPrintable(problem));
    QList<jobs::ReportLine> lines;
    const auto take = [&](const jobs::ReportLine &line) {
        lines.append(line);
        run.onLine(line);
        return true;
    };
    run.summary = jobs::runBatch(*recipe, inputs, run.options, crew, take, run.isStopped);
    return lines;
}

/** The same in the order of the inputs and outputs. */
inline QList<jobs::ReportLine> sortedLinesOf(const QByteArray &json, const QStringList &names, Run &run)
{
    jobs::Inputs all(names);
    QStringList order;
    for (const jobs::Input &input : jobs::inputsFrom(names))
        order.append(input.path);
    QList<jobs::ReportLine> lines = linesOf(json, all, run);
    const auto place = [&order](const jobs::ReportLine &line) {
        return std::pair(order.indexOf(line.input), line.index);
    };
    std::stable_sort(lines.begin(), lines.end(),
                     [&place](const auto &one, const auto &other) { return place(one) < place(other); });
    return lines;
}

} // namespace batches
