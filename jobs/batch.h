#pragma once

#include "image/recipe/recipe.h"
#include "jobs/inputs.h"
#include "jobs/names.h"
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
    QString recipe; ///< its name, see recipeName()
};

/** Takes a line as soon as it is known; false ends the batch behind the picture that is in work. */
using TakeLine = std::function<bool(const ReportLine &line)>;

/**
 * Carries out a recipe over many pictures, one after the other, in one process.
 *
 * Every input keeps its name and its number, also one that cannot be read, so that names do not depend on what fails. Results are
 * written into a hidden folder beside their place and take it when they are whole; nothing is replaced unasked, also not what appears
 * at the last moment.
 *
 * @param isStopped  is asked before each picture
 */
Summary runBatch(const image::Recipe &recipe, Inputs &inputs, const BatchOptions &options, const TakeLine &take,
                 const std::function<bool()> &isStopped);

/** Whether an input belongs to a part: pathHash() of the place below its root, or of its own name, modulo their number. */
bool isInShard(const Input &input, int shard, int shards);

} // namespace jobs
