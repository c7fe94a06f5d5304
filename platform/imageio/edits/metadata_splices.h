#pragma once

// Inside platform/ only: where each kind of file has its metadata, for reading it and for changing it.

#include "platform/file/atomic_file.h"
#include "platform/foundation/result.h"
#include "platform/imageio/edits/metadata_change.h"
#include "platform/imageio/formats/content.h"

#include <optional>

namespace platform {

/** The blocks of a file as they are, each may be empty. */
struct StatedBlocks
{
    QByteArray exif; ///< TIFF header first; of a TIFF file all of it, without a copy
    QByteArray xmp;
    QByteArray iptc;
    QByteArray digest; ///< of IPTC when XMP was written last
};

/** Whether the metadata of such a file is changed in the file itself; @p bytes are the file's. */
bool changesInPlace(Content content, const QByteArray &bytes);

/** What such a file holds. Nothing for files whose metadata is not changed in place, but for those that are TIFF in all but name. */
StatedBlocks statedBlocks(Content content, const QByteArray &bytes);

/**
 * What has to change in the bytes of a file for its metadata to change; pixels and all other metadata stay as they are, byte for byte.
 *
 * EXIF and XMP are made where a file has none, IPTC in JPEG, TIFF and Photoshop files; a PNG or JPEG 2000 file that has IPTC has it
 * changed too. Fails with Unsupported for other files, with Unreadable where the file or a block is damaged, with TooLarge where a block
 * does not fit.
 */
Result<QList<Splice>> metadataSplices(Content content, const QByteArray &bytes, const MetadataChange &change);

} // namespace platform
