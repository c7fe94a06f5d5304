#pragma once

#include "image/recipe/recipe.h"
#include "jobs/crew/crew.h"
#include "jobs/inputs.h"
#include "jobs/names.h"
#include "jobs/records/result_records.h"
#include "jobs/report.h"

#include <functional>

namespace jobs {

struct BatchOptions
{
    Destination destination;
    bool isDryRun = false;
    /** Gives the outputs their paths, in place of planning them; an output that it does not have is Failed. */
    std::optional<EarlierReport> plan;
    /** What it has as done with this recipe, and whose file is still as large, is left out. */
    std::optional<EarlierReport> resumed;
    int shard = 1; ///< which of so many parts of the inputs is done, from 1
    int shards = 1;
    QString recipe;       ///< its name, see recipeName()
    QString settings;     ///< identifies results later, see settingsOf(); the same as the recipe if it names no files
    QList<MadeWith> made; ///< of each output; empty: nothing is known to be up to date, and nothing is noted
};

/** Receives a line as soon as it is known; false ends the batch after the pictures in progress. */
using TakeLine = std::function<bool(const ReportLine &line)>;

enum class Stop {
    No,
    Soon, ///< pictures in progress are finished, or dropped completely if that takes more than a few seconds
    Now,  ///< they are left out
};

/**
 * Carries out a recipe over many pictures. Workers open, plan and make them; names are given here, in the order of the inputs, so that
 * what comes of them does not depend on how many workers there are.
 *
 * Every input keeps its name and its number, also one that cannot be read, so that names do not depend on what fails. Results are
 * written into a hidden folder beside their place and take it when they are whole; nothing is replaced unasked, also not what appears
 * at the last moment. A picture whose worker ends is tried once more in one that has just been started; a second time, or one that
 * takes too long or too much memory, fails it.
 *
 * @param crew       one that has begun with the same recipe
 * @param isStopped  is asked several times a second
 */
Summary runBatch(const image::Recipe &recipe, Inputs &inputs, const BatchOptions &options, Crew &crew,
                 const TakeLine &take, const std::function<Stop()> &isStopped);

/** Whether an input belongs to a part: pathHash() of the path below its root, or of the name of a root, modulo their number. */
bool isInShard(const Input &input, int shard, int shards);

} // namespace jobs
