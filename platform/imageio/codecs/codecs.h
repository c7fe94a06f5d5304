#pragma once

// Private to the platform.

#include "platform/graphics/pixels.h"
#include "platform/imageio/bytes/picture_bytes.h"
#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/formats/file_format.h"
#include "platform/imageio/load/loaders.h"

#include <QSize>

#include <optional>

namespace platform {

/** How pixels are encoded. What a format has no use for is passed over. */
struct CodecOptions
{
    Resolution resolution;
    std::optional<double> jpegQuality;            ///< 0.01 to 1
    std::optional<JpegQuantisation> sourceTables; ///< of a JPEG, where no quality is asked for
    std::optional<Compression> compression; ///< of other types that may lose some of the picture, where it is asked for
    QByteArray profile;                     ///< the one that is kept; empty where none is
    ContainerBlocks blocks;                 ///< of an AVIF; other files get their metadata once they are encoded
};

/** What the program does with one kind of picture file; what such files are and keep stands in formats.h under the same key. */
struct Codec
{
    Content content = Content::Unknown;
    vips::VImage (*load)(const PictureBytes &source, const LoadOptions &options) = nullptr;
    bool (*isWhole)(QIODevice &file) = nullptr; ///< null where no structure could tell
    /** Null for what is not written. The pixels are as the format can hold them. Throws vips::VError. */
    Result<QByteArray> (*encode)(const vips::VImage &image, const CodecOptions &options) = nullptr;
    /** Without the decoder, where that is asked for a size which the file does not have room for; null for others. */
    QSize (*claimedSize)(QIODevice &file) = nullptr;
};

/** The row of some content; null for Content::Unknown. */
const Codec *codecOf(Content content);

/**
 * Opens image @p options.page of the file for one pass from top to bottom; pixels are decoded as they are pulled, and a
 * damaged or cut picture fails then. The samples are those of the file, with what is known of them: inForm() makes pixels of
 * them that can be worked with. Throws vips::VError.
 */
vips::VImage openImage(const PictureBytes &source, Content content, const LoadOptions &options = {});

/** The pixels as a file of that format; see Codec::encode. */
Result<QByteArray> encodedPixels(const vips::VImage &image, FileFormat format, const CodecOptions &options);

/** The size a bitmap file or a Photoshop file claims, read without its decoder; empty for other content. */
QSize claimedSize(const PictureBytes &source, Content content);

} // namespace platform
