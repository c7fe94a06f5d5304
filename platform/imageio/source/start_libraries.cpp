#include "platform/imageio/source/start_libraries.h"

#include "platform/foundation/memory_left.h"
#include "platform/graphics/pixels.h"
#include "platform/imageio/metadata/metadata_blocks.h"

#include <utility>

namespace platform {

void prepareForPictures(int threads)
{
    prepareHeapForPictures();
    limitVipsThreads(threads);
}

void watchLibraries(std::function<void()> begins, std::function<void()> ended)
{
    watchVipsLoading([begins = std::move(begins), ended = std::move(ended)](Loading loading) {
        if (loading == Loading::Begins) {
            begins();
        } else {
            startMetadataLibrary(); // nearly every picture that needs the one needs the other
            ended();
        }
    });
}

} // namespace platform
