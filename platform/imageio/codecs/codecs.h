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

/** How pixels are encoded. A format ignores what it has no use for. */
struct CodecOptions
{
    Resolution resolution;
    std::optional<double> jpegQuality;            ///< 0.01 to 1
    std::optional<JpegQuantisation> sourceTables; ///< of a JPEG, if no quality is requested
    std::optional<Compression> compression;       ///< of other lossy types, if requested
    QByteArray profile;                           ///< the profile to embed; empty for none
    ContainerBlocks blocks;                       ///< of an AVIF; other files get their metadata after encoding
};

/**
 * What the program does with one kind of picture file; the properties of such files are in formats.h under the same
 * key.
 */
struct Codec
{
    Content content = Content::Unknown;
    vips::VImage (*load)(const PictureBytes &source, const LoadOptions &options) = nullptr;
    bool (*isWhole)(QIODevice &file) = nullptr; ///< null if the structure cannot tell
    /** Null if the type is not written. The pixels are in a form that the format can hold. Throws vips::VError. */
    Result<QByteArray> (*encode)(const vips::VImage &image, const CodecOptions &options) = nullptr;
    /**
     * Without the decoder, if that would allocate for a claimed size which the file cannot contain; null for others.
     */
    QSize (*claimedSize)(QIODevice &file) = nullptr;
};

/** The row of some content; null for Content::Unknown. */
const Codec *codecOf(Content content);

/**
 * Opens image @p options.page of the file for one pass from top to bottom; pixels are decoded as they are pulled, and a
 * damaged or truncated picture fails then. The samples are those of the file, with what is known about them: inForm()
 * converts them to usable pixels. Throws vips::VError.
 */
vips::VImage openImage(const PictureBytes &source, Content content, const LoadOptions &options = {});

/** The pixels as a file of that format; see Codec::encode. */
Result<QByteArray> encodedPixels(const vips::VImage &image, FileFormat format, const CodecOptions &options);

/** The size a bitmap file or a Photoshop file claims, read without its decoder; empty for other content. */
QSize claimedSize(const PictureBytes &source, Content content);

} // namespace platform
