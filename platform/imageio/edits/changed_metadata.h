#pragma once

#include "platform/foundation/result.h"
#include "platform/imageio/edits/metadata_change.h"
#include "platform/imageio/source/image_source.h"

namespace platform {

/**
 * The same picture with changed metadata, for what is made of it: metadata() and properties() give that from then on.
 * The file stays as it is. Fails with Unreadable if some of its metadata is damaged.
 */
Result<ImageSource> withChangedMetadata(const ImageSource &source, const MetadataChange &change);

/** Whether it is such a picture. */
bool hasChangedMetadata(const ImageSource &source);

} // namespace platform
