#pragma once

#include "jobs/batch.h"
#include "jobs/watch_lock.h"
#include "tools/batch/command_line.h"

#include <memory>

/** What was asked for, read and checked: nothing has been written yet. */
struct Request
{
    image::Recipe recipe;
    std::optional<jobs::Inputs> inputs;
    jobs::BatchOptions options;
    jobs::WatchLock lock;
    std::unique_ptr<jobs::Crew> crew; ///< that knows the recipe
    QString problem;                  ///< a sentence if it cannot be carried out
};

Request requestFrom(const CommandLine &line);

/** Whether the report is the file that is resumed, and gets further lines. */
bool addsToReport(const CommandLine &line);
