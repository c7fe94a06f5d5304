#pragma once

// Private to the platform: what opening a picture file told about it.

#include "platform/imageio/image_source.h"
#include "platform/imageio/loaders.h"
#include "platform/imageio/resolution.h"

namespace platform {

struct ImageSource::File
{
    PictureBytes bytes;
    Content content = Content::Unknown;
    QSize storedSize;
    int imageCount = 1;
    int orientation = 1;

    /** How messages name the file. */
    QString name() const { return bytes.path.isEmpty() ? QStringLiteral("the data") : bytes.path; }
};

/** The metadata of a file of known content. */
Metadata metadataOf(const PictureBytes &bytes, Content content);

} // namespace platform
