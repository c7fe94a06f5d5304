#pragma once

// Private to the platform: what opening a picture file told about it.

#include "platform/imageio/image_source.h"
#include "platform/imageio/loaders.h"
#include "platform/imageio/resolution.h"

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
    bool isRaw() const { return !raw.path.isEmpty() || !raw.bytes.isEmpty(); }
    QString path() const { return isRaw() ? raw.path : bytes.path; }
    /** What the file says of the picture; of a raw file, what the camera wrote there and not into the preview. */
    Metadata metadata() const;
};

/** The metadata of a file of known content. */
Metadata metadataOf(const PictureBytes &bytes, Content content);

} // namespace platform
