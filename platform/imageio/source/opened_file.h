#pragma once

// Private to the platform: what opening a picture file told about it.

#include "platform/imageio/bytes/picture_bytes.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/formats/memory_need.h"
#include "platform/imageio/source/image_source.h"

namespace platform {

struct ImageSource::File
{
    PictureBytes bytes;
    /** The raw file of a camera whose preview the bytes are; empty for all other pictures. */
    PictureBytes raw;
    Content content = Content::Unknown;
    QSize storedSize;
    int imageCount = 1;
    int orientation = 1;

    /** How messages name the file. */
    QString name() const { return path().isEmpty() ? QStringLiteral("the data") : path(); }
    bool isRaw() const { return !raw.isInMemory() || !raw.bytes.isEmpty(); }
    QString path() const { return isRaw() ? raw.path : bytes.path; }
    /**
     * What the file says of the picture; of a raw file, what the camera wrote there and not into the preview. Throws vips::VError
     * where the file cannot be read any more.
     */
    Metadata metadata() const;
};

/** Asks for that amount before anything of @p image, which is still to be computed, is decoded; see memoryIsLeftFor(). */
Result<void> memoryIsLeftToDecode(const ImageSource::File &file, const vips::VImage &image, const Outcome &outcome);

/** The failure of reading that messages tell. */
tl::unexpected<Error> unreadable(const QString &name, const QString &reason);

} // namespace platform
