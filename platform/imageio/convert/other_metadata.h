#pragma once

#include "platform/imageio/metadata/metadata.h"
#include "platform/imageio/source/image_source.h"

#include <QFlags>

#include <optional>

namespace platform {

/** What a picture file contains besides its one picture and the description of it. */
enum class PartBeside {
    FurtherPictures = 1, ///< after the first one, listed in an index (MPF)
    GainMap = 2,
    Motion = 4,
    Credentials = 8,   ///< signed statements about the file (C2PA), which no longer match a changed file
    BehindTheEnd = 16, ///< bytes after the end of the picture, whatever they are
    OfMakers = 32,     ///< private segments of camera and software makers: thermal pictures, sound
    ExtendedXmp = 64,  ///< XMP that does not fit in one segment of a JPEG
};
Q_DECLARE_FLAGS(PartsBeside, PartBeside)
Q_DECLARE_OPERATORS_FOR_FLAGS(PartsBeside)

/**
 * Which of them a file has. None of them is copied into an encoded file, nor into the result of withOtherMetadata(),
 * nor are the tags that announce them. Reads the file again; nothing if it cannot be read.
 */
PartsBeside partsBesideOf(const ImageSource &source);

/**
 * The file with other metadata, pixels untouched: JPEG, PNG, WebP, GIF, JPEG 2000 and JPEG XL. All pages, frames, colours and
 * profiles stay; every description of the picture is removed, and @p metadata inserted as with Carried::Everything.
 *
 * @param metadata  that of this file, as reduced(); with the orientation that its pixels have
 * @param dpi       above 0; the resolution that the file then states. Without it the stated one stays
 * @return none for other types, and if the file is not intact enough for it
 */
std::optional<QByteArray> withOtherMetadata(const ImageSource &source, const Metadata &metadata,
                                            std::optional<double> dpi = {});

} // namespace platform
