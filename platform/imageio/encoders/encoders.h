#pragma once

// Private to the platform: one encoder per format. Pixels arrive in a form that the format can hold.

#include "platform/graphics/pixels.h"
#include "platform/imageio/bytes/file_ends.h"
#include "platform/imageio/formats/formats.h"
#include "platform/imageio/metadata/container_blocks.h"
#include "platform/planes/plane.h"

#include <functional>
#include <vector>

namespace platform {

/** The pixels in a form that such a file can hold; a profile that might not fit is dropped. Throws vips::VError. */
vips::VImage preparedFor(const Keeping &keeps, const vips::VImage &image);

struct JpegSettings
{
    /** 0.01 to 1; without it the tables of the source are used, or 0.92 if there are none. */
    std::optional<double> quality;
    std::optional<JpegQuantisation> sourceTables;
    Resolution resolution;
};

/** 8 bit grey, RGB or CMYK pixels in memory as a baseline JPEG with the profile of the image. */
Result<QByteArray> encodeJpeg(const vips::VImage &image, const JpegSettings &settings);

/** Fills the next row of pixels, from top to bottom; false if there is none. */
using NextPixelRow = std::function<bool(uchar *row)>;

/** The same from rows, of which no more than one is in memory. */
Result<QByteArray> encodeJpegPixels(QSize size, int bands, const NextPixelRow &next, const QByteArray &profile,
                                    const JpegSettings &settings);

/** Brightness, alone or with JPEG's two colour differences. */
using JpegPlanes = std::vector<Plane>;

/** How many pixels horizontally and vertically share one colour in a JPEG of so many components: 1 or 2 each. */
QSize jpegSampling(const JpegSettings &settings, int components);

/** The same file from planes of the sizes given by jpegSampling(); brightness has the size of the picture. */
Result<QByteArray> encodeJpegPlanes(JpegPlanes planes, const QByteArray &profile, const JpegSettings &settings);

/** Draws @p count rows of a plane from row @p first on. Rows are asked for from top to bottom. */
using DrawPlaneRows = std::function<void(int plane, int first, int count, uchar *const *rows)>;

/** The same for planes that are drawn while they are encoded, so that they are never complete. */
Result<QByteArray> encodeJpegRows(QSize size, int components, const DrawPlaneRows &draw, const QByteArray &profile,
                                  const JpegSettings &settings);

/** The facts about its rows that a PNG file states. */
struct PngShape
{
    QSize size;
    int bands = 3; ///< grey, grey with transparency, RGB, RGB with transparency
    int bits = 8;  ///< of a component
    QByteArray profile;
    Resolution resolution;
};

/** The file of rows as PngRows makes them, which are given away. Throws vips::VError. */
QByteArray pngFile(const PngShape &shape, QByteArray rows);

/** These throw vips::VError. */
QByteArray encodePng(const vips::VImage &image, Resolution resolution);
QByteArray encodeTiff(const vips::VImage &image, Resolution resolution);
/** Like encodeTiff(), but direct, for files small enough for 32-bit offsets; empty for others. */
QByteArray encodePlainTiff(const vips::VImage &image, Resolution resolution);

/** Grey, RGB or CMYK of 8 or 16 bits or in floating point, and small enough for 32-bit offsets. */
bool isPlainTiff(const vips::VImage &image);

/**
 * The head and tail of the file that encodePlainTiff() makes. @p image is not computed; @p tailAt is the position of
 * the tail: after head and pixels, or elsewhere if the pixels are left out at first.
 */
FileEnds plainTiffEnds(const vips::VImage &image, Resolution resolution, qint64 tailAt);
/** The same for the rows of a bitmap, which come between the two; none if they are too large. */
std::optional<FileEnds> plainTiffEnds(const QImage &rows, const QByteArray &profile, Resolution resolution);
/** The length of its head. */
constexpr qint64 plainTiffHeadBytes = 8;

QByteArray encodeGif(const vips::VImage &image);

/** How much may be lost. */
struct Compression
{
    int quality = 85; ///< 1 to 100, as close as a JPEG of that quality; ignored if lossless
    bool isLossless = false;
};

/** Without @p compression the result is visually lossless. */
QByteArray encodeJpeg2000(const vips::VImage &image, const std::optional<Compression> &compression = {});
/** Without any metadata except the profile. At most longestWebpSide pixels on either side. */
QByteArray encodeWebp(const vips::VImage &image, const Compression &compression);
constexpr int longestWebpSide = 16383;
/** Of 8 bits, with EXIF and XMP in it. */
QByteArray encodeAvif(const vips::VImage &image, int quality, const ContainerBlocks &blocks);
/** The pixels with their profile; in a container only if necessary. */
QByteArray encodeJpegXl(const vips::VImage &image, const Compression &compression);

/**
 * Grey as three equal colours, for files that have no grey. A grey profile, which would then be wrong, is converted
 * from.
 */
vips::VImage withThreeColours(const vips::VImage &image);

QByteArray encodeBmp(const vips::VImage &image, Resolution resolution);

/** Everything before the rows of a bitmap file, which are bottom-up, blue before green before red. */
QByteArray bmpHeaders(QSize pixels, int bands, Resolution resolution);
/** The length of one row in a bitmap file, a multiple of 4. */
qint64 bmpRowBytes(int width, int bands);

} // namespace platform
