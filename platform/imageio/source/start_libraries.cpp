#include "platform/imageio/source/start_libraries.h"

#include "platform/foundation/memory_left.h"
#include "platform/graphics/pixels.h"

namespace platform {

void prepareForPictures(int threads)
{
    prepareHeapForPictures();
    limitVipsThreads(threads);
}

} // namespace platform
