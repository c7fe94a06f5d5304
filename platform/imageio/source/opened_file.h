#pragma once

// Private to the platform: what opening a picture file revealed.

#include "platform/imageio/bytes/picture_bytes.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/formats/memory_need.h"
#include "platform/imageio/source/image_source.h"

namespace platform {

struct ImageSource::File
{
    PictureBytes bytes;
    /** The camera raw file whose preview the bytes are; empty for all other pictures. */
    PictureBytes raw;
    Content content = Content::Unknown;
    QSize storedSize;
    int imageCount = 1;
    int orientation = 1;
    std::shared_ptr<const Metadata> otherMetadata; ///< instead of the file's; usually none

    /** The name of the file in messages. */
    QString name() const { return path().isEmpty() ? QStringLiteral("the data") : path(); }
    bool isRaw() const { return !raw.isInMemory() || !raw.bytes.isEmpty(); }
    QString path() const { return isRaw() ? raw.path : bytes.path; }
    /**
     * What the file says about the picture; for a raw file, what the camera wrote there and not into the preview.
     * Throws vips::VError if the file can no longer be read.
     */
    Metadata metadata() const;
    /** The same picture with other metadata. */
    static ImageSource withMetadata(const ImageSource &source, const Metadata &metadata);
};

/**
 * Checks that there is enough memory before anything of @p image, which is evaluated lazily, is decoded; see
 * memoryIsLeftFor().
 */
Result<void> memoryIsLeftToDecode(const ImageSource::File &file, const vips::VImage &image, const Outcome &outcome);

/** The reading failure for messages. */
tl::unexpected<Error> unreadable(const QString &name, const QString &reason);

} // namespace platform
