#pragma once

#include "platform/graphics/bitmap.h"
#include "platform/imageio/formats/file_format.h"
#include "platform/imageio/metadata/metadata.h"

#include <QColor>

#include <optional>

namespace platform {

/** Fails with TooLarge if a picture of @p size has more pixels on a side than a file of @p format can have. */
Result<void> sidesFit(QSize size, FileFormat format);

/** Whether a file of @p format can hold that profile; true for an empty one. If not, colours become sRGB. */
bool holdsProfile(FileFormat format, const QByteArray &iccProfile);

/** Whether the resolution of the bitmap is written into the file. */
enum class WriteResolution { No, Yes };

struct EncodeOptions
{
    /** JPEG only, 0.01 to 1. Without it a picture from a JPEG keeps its own quantisation and others get 0.92. */
    std::optional<double> lossyQuality = {};
    /**
     * 1 to 100, on JPEG's scale, for JPEG (instead of lossyQuality), WebP, AVIF, JPEG XL and JPEG 2000; others ignore
     * it. The same number gives about the same fidelity in all of them. Without it WebP, AVIF and JPEG XL get 85, and
     * JPEG 2000 is visually lossless.
     */
    std::optional<int> quality = {};
    /** In WebP, JPEG XL and JPEG 2000, instead of quality; others ignore it. */
    bool isLossless = false;
    /**
     * The colour under transparent parts if the format has no transparency, in sRGB and treated as opaque; black
     * without it.
     */
    std::optional<QColor> matte = {};
    WriteResolution resolution = WriteResolution::No;
    /** Dots per inch, above 0, that are written instead of the bitmap's, regardless of resolution. */
    std::optional<double> dpi = {};
    /** Written to JPEG and TIFF; other formats ignore it. A resolution stated in it is written with it. */
    Metadata metadata = {};
    /**
     * Everything: the metadata goes into all formats that can hold any, that is all except BMP, and so does the
     * resolution, in EXIF if the format has no other place for it. The pixels count as upright, and EXIF says so, and
     * states the resolution too.
     */
    Carried carried = Carried::Blocks;
};

/**
 * One bitmap as the bytes of a file.
 *
 * Colour: the profile stays with the picture in every format that can hold one; otherwise, and for CMYK and Lab in
 * formats without them, the pixels are converted to sRGB. Depth: 16 bits stay in PNG, TIFF, JPEG 2000 and JPEG XL. In
 * JPEG and BMP, transparent parts become black, or the requested colour. Grey becomes three equal colours in WebP and
 * AVIF.
 *
 * Fails with WriteFailed if the encoder fails, with InvalidValue for a null bitmap, and with TooLarge if it needs more
 * memory than is left, or has more pixels on a side than the format allows, before anything is encoded.
 */
Result<QByteArray> encodeImage(const Bitmap &bitmap, FileFormat format, const EncodeOptions &options = {});

/** encodeImage(), then an atomic replacement of the file at @p path; its folder must exist. */
Result<void> writeImageFile(const QString &path, const Bitmap &bitmap, FileFormat format,
                            const EncodeOptions &options = {});

} // namespace platform
