#pragma once

// Private to the platform: one encoder a format. Pixels arrive as the format can hold them.

#include "platform/graphics/pixels.h"
#include "platform/imageio/bytes/file_ends.h"
#include "platform/imageio/formats/formats.h"

namespace platform {

/** The pixels in a form that a file which keeps so much can hold; a profile that might fit does not. Throws vips::VError. */
vips::VImage preparedFor(const Keeping &keeps, const vips::VImage &image);

struct JpegSettings
{
    /** 0.01 to 1; without it the tables of the source are used, or 0.92 where there are none. */
    std::optional<double> quality;
    std::optional<JpegQuantisation> sourceTables;
    Resolution resolution;
};

/** 8 bit grey, RGB or CMYK pixels in memory as a baseline JPEG with the profile of the image. */
Result<QByteArray> encodeJpeg(const vips::VImage &image, const JpegSettings &settings);

/** These throw vips::VError. */
QByteArray encodePng(const vips::VImage &image, Resolution resolution);
QByteArray encodeTiff(const vips::VImage &image, Resolution resolution);
/** As encodeTiff(), for what is small enough for offsets of 32 bits, which it does without any detour; empty for others. */
QByteArray encodePlainTiff(const vips::VImage &image, Resolution resolution);

/** Grey, RGB or CMYK of 8 or 16 bits or in floating point, and small enough for offsets of 32 bits. */
bool isPlainTiff(const vips::VImage &image);

/**
 * The ends of the file that encodePlainTiff() makes. @p image is not computed; @p tailAt says where the tail will lie: behind
 * head and pixels, or elsewhere where the pixels are left out at first.
 */
FileEnds plainTiffEnds(const vips::VImage &image, Resolution resolution, qint64 tailAt);
/** How long its head is. */
constexpr qint64 plainTiffHeadBytes = 8;

QByteArray encodeGif(const vips::VImage &image);
QByteArray encodeJpeg2000(const vips::VImage &image);
QByteArray encodeBmp(const vips::VImage &image, Resolution resolution);

/** All that stands before the rows of a bitmap file, of which the last comes first, blue before green before red. */
QByteArray bmpHeaders(QSize pixels, int bands, Resolution resolution);
/** The length of one row in a bitmap file, a multiple of 4. */
qint64 bmpRowBytes(int width, int bands);

} // namespace platform
