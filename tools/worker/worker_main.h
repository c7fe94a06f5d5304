#pragma once

#include "jobs/crew/recipe_worker.h"

/**
 * What quorlin-worker does: carries out recipes for the process that has started it, and can do nothing else.
 *
 * @param arguments  the program, the number of that process, and how much memory a picture may take, in bytes
 * @return the status to end with
 */
int runWorker(int count, char **arguments, const jobs::WorkerTrial &trial = {});
