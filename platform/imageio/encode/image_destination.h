#pragma once

#include "platform/graphics/bitmap.h"
#include "platform/imageio/formats/file_format.h"
#include "platform/imageio/metadata/metadata.h"

#include <QColor>

#include <optional>

namespace platform {

/** Whether a file of @p format can hold that profile; true for an empty one. Where it cannot, colours become sRGB. */
bool holdsProfile(FileFormat format, const QByteArray &iccProfile);

/** Whether the resolution of the bitmap is written into the file. */
enum class WriteResolution { No, Yes };

struct EncodeOptions
{
    /** JPEG only, 0.01 to 1. Without it a picture from a JPEG keeps its own quantisation and others get 0.92. */
    std::optional<double> lossyQuality = {};
    /**
     * 1 to 100, as JPEG has it, for JPEG (in place of lossyQuality), WebP, AVIF, JPEG XL and JPEG 2000; others pass it over. The
     * same number comes about as near to the picture in all of them. Without it WebP, AVIF and JPEG XL get 85, and JPEG 2000 what
     * cannot be seen.
     */
    std::optional<int> quality = {};
    /** In WebP, JPEG XL and JPEG 2000, in place of quality; others pass it over. */
    bool isLossless = false;
    /** What lies under transparent parts where the format has none, in sRGB and taken as opaque; black without it. */
    std::optional<QColor> matte = {};
    WriteResolution resolution = WriteResolution::No;
    /** Dots per inch, above 0, that are written in place of the bitmap's, whatever resolution says. */
    std::optional<double> dpi = {};
    /** Carried into JPEG and TIFF; other formats leave it. A resolution that it states is written with it. */
    Metadata metadata = {};
    /**
     * Everything: the metadata goes into all formats that can hold any, BMP alone left out, and so does the resolution, in EXIF
     * where the format has no other place for it. The pixels count as upright, and EXIF is told so, and of the resolution too.
     */
    Carried carried = Carried::Blocks;
};

/**
 * One bitmap as the bytes of a file.
 *
 * Colour: the profile stays with the picture in every format that can hold one; otherwise, and for CMYK and Lab in
 * formats without them, the pixels are converted to sRGB. Depth: 16 bits stay in PNG, TIFF, JPEG 2000 and JPEG XL. Alpha is
 * laid on black, or on a colour that is asked for, in JPEG and BMP. Grey becomes three equal colours in WebP and AVIF.
 *
 * Fails with WriteFailed if the encoder fails, with InvalidValue for a null bitmap, and with TooLarge where it needs more memory
 * than is left, or has more pixels on a side than the format can say, before anything is encoded.
 */
Result<QByteArray> encodeImage(const Bitmap &bitmap, FileFormat format, const EncodeOptions &options = {});

/** encodeImage(), then an atomic replacement of the file at @p path; its folder must exist. */
Result<void> writeImageFile(const QString &path, const Bitmap &bitmap, FileFormat format,
                            const EncodeOptions &options = {});

} // namespace platform
