#include "tools/worker/worker_main.h"

#include <cstdlib>

int main(int argc, char **argv)
{
    std::_Exit(runWorker(argc, argv)); // there is nothing to clear away that does not go with the process
}
