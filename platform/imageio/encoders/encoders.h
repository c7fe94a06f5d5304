#pragma once

// Private to the platform: one encoder a format. Pixels arrive as the format can hold them.

#include "platform/graphics/pixels.h"
#include "platform/imageio/bytes/file_ends.h"
#include "platform/imageio/formats/formats.h"
#include "platform/imageio/metadata/container_blocks.h"
#include "platform/planes/plane.h"

#include <vector>

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

/** Brightness, alone or with the two differences of colour that JPEGs have. */
using JpegPlanes = std::vector<Plane>;

/** How many pixels across and down share one colour in a JPEG of so many components: 1 or 2 each. */
QSize jpegSampling(const JpegSettings &settings, int components);

/** The same file of planes that are as large as jpegSampling() has them; brightness has the size of the picture. */
Result<QByteArray> encodeJpegPlanes(JpegPlanes planes, const QByteArray &profile, const JpegSettings &settings);

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

/** How much of the picture may be lost. */
struct Compression
{
    int quality = 85; ///< 1 to 100, as near as a JPEG of that quality; without a meaning for what is lossless
    bool isLossless = false;
};

/** Without @p compression nothing is lost that can be seen. */
QByteArray encodeJpeg2000(const vips::VImage &image, const std::optional<Compression> &compression = {});
/** Without any metadata but the profile. At most longestWebpSide pixels on either side. */
QByteArray encodeWebp(const vips::VImage &image, const Compression &compression);
constexpr int longestWebpSide = 16383;
/** Of 8 bits, with EXIF and XMP in it. */
QByteArray encodeAvif(const vips::VImage &image, int quality, const ContainerBlocks &blocks);
/** The pixels with their profile; a container around them only where they need one. */
QByteArray encodeJpegXl(const vips::VImage &image, const Compression &compression);

/** Grey as three equal colours, for files that have no grey. A profile of grey, which then would be wrong, is converted from. */
vips::VImage withThreeColours(const vips::VImage &image);

QByteArray encodeBmp(const vips::VImage &image, Resolution resolution);

/** All that stands before the rows of a bitmap file, of which the last comes first, blue before green before red. */
QByteArray bmpHeaders(QSize pixels, int bands, Resolution resolution);
/** The length of one row in a bitmap file, a multiple of 4. */
qint64 bmpRowBytes(int width, int bands);

} // namespace platform
