#pragma once

// Inside platform/ only: where each kind of file stores its metadata, for reading and changing it.

#include "platform/file/atomic_file.h"
#include "platform/foundation/result.h"
#include "platform/imageio/edits/metadata_change.h"
#include "platform/imageio/formats/content.h"

#include <optional>

namespace platform {

/** The blocks of a file; each may be empty. */
struct StatedBlocks
{
    QByteArray exif; ///< TIFF header first; for a TIFF file all of it, without a copy
    QByteArray xmp;
    QByteArray iptc;
    QByteArray digest; ///< of IPTC when XMP was last written
};

/** Whether the metadata of such a file is changed in the file itself; @p bytes are the file's. */
bool changesInPlace(Content content, const QByteArray &bytes);

/**
 * The blocks of such a file. Nothing for files whose metadata is not changed in place, except those that are TIFF in
 * all but name.
 */
StatedBlocks statedBlocks(Content content, const QByteArray &bytes);

/**
 * The changes to the bytes of a file that change its metadata; pixels and all other metadata stay as they are, byte for
 * byte.
 *
 * EXIF and XMP are created if a file has none, IPTC in JPEG, TIFF and Photoshop files; IPTC in a PNG or JPEG 2000 file
 * is changed if it exists. Fails with Unsupported for other files, with Unreadable if the file or a block is damaged,
 * with TooLarge if a block does not fit.
 */
Result<QList<Splice>> metadataSplices(Content content, const QByteArray &bytes, const MetadataChange &change);

} // namespace platform
