// A worker that reports the same about every picture, and sleeps as long as it is told to instead of computing. It
// initialises no library, so that many of them start as fast on two processors as others do on many.

#include "jobs/crew/recipe_worker.h"
#include "platform/workers/worker_pool.h"

#include <QByteArray>

#include <cstdlib>

int main(int argc, char **argv)
{
    if (argc < 2)
        return EXIT_FAILURE;
    platform::endWithParent(std::atoi(argv[1]));
    jobs::WorkerTrial trial;
    trial.sleep = {qEnvironmentVariableIntValue("BENCH_LOOKING_US"), qEnvironmentVariableIntValue("BENCH_MAKING_US")};
    platform::MessageSocket socket(platform::Descriptor(platform::workerSocket), platform::MessageSocket::Files::Taken);
    jobs::workOnRecipes(socket, {}, trial);
    std::_Exit(EXIT_SUCCESS);
}
