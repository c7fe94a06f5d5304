#include "jobs/batch.h"

#include "jobs/crew/batch_run.h"
#include "jobs/path_hash.h"
#include "platform/foundation/paths.h"

namespace jobs {

bool isInShard(const Input &input, int shard, int shards)
{
    if (shards <= 1)
        return true;
    return pathHash(platform::encodedPath(placeBelowRoot(input))) % quint64(shards) == quint64(shard - 1);
}

Summary runBatch(const image::Recipe &recipe, Inputs &inputs, const BatchOptions &options, Crew &crew,
                 const TakeLine &take, const std::function<Stop()> &isStopped)
{
    return BatchRun(recipe, inputs, options, crew, take, isStopped).run();
}

} // namespace jobs
