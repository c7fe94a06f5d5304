#include "platform/imageio/source/start_libraries.h"

#include "platform/graphics/pixels.h"
#include "platform/imageio/metadata/metadata_blocks.h"

namespace platform {

bool startPictureLibraries(int threads)
{
    try {
        initVips();
    } catch (const vips::VError &error) {
        takeVipsError(error);
        return false;
    }
    vips_concurrency_set(threads);
    startMetadataLibrary();
    return true;
}

} // namespace platform
