#pragma once

#include "platform/imageio/metadata/metadata.h"
#include "platform/imageio/source/image_source.h"

#include <QFlags>

#include <optional>

namespace platform {

/** What a picture file has beside its one picture and the description of it. */
enum class PartBeside {
    FurtherPictures = 1, ///< behind the first one, by an index (MPF)
    GainMap = 2,
    Motion = 4,
    Credentials = 8,   ///< signed statements about the file (C2PA), which no changed file agrees with
    BehindTheEnd = 16, ///< bytes behind the end of the picture, whatever they are
    OfMakers = 32,     ///< what makers of cameras and programs put into segments of their own: thermal pictures, sound
    ExtendedXmp = 64,  ///< XMP that one segment of a JPEG has no room for
};
Q_DECLARE_FLAGS(PartsBeside, PartBeside)
Q_DECLARE_OPERATORS_FOR_FLAGS(PartsBeside)

/**
 * Which of them a file has. None of them goes into a file that is encoded, nor into what withOtherMetadata() makes, and neither do
 * the tags that announce them. Reads the file again; nothing where it cannot be read.
 */
PartsBeside partsBesideOf(const ImageSource &source);

/**
 * The file with other metadata, pixels untouched: JPEG, PNG, WebP, GIF, JPEG 2000 and JPEG XL. All pages, frames, colours and
 * profiles stay; everything that describes the picture is taken out, and @p metadata put in as Carried::Everything has it.
 *
 * @param metadata  that of this file, as reduced(); with the orientation that its pixels have
 * @param dpi       above 0; the resolution that the file states from then on. Without it what the file stated stays
 * @return none for other types, and where the file is not sound enough for it
 */
std::optional<QByteArray> withOtherMetadata(const ImageSource &source, const Metadata &metadata,
                                            std::optional<double> dpi = {});

} // namespace platform
