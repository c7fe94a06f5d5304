#include "platform/foundation/byte_order.h"
#include "platform/imageio/bytes/deflate.h"
#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/png/png_chunks.h"
#include "platform/imageio/png/png_rows.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace platform {
namespace {

QByteArray headerOf(const PngShape &shape)
{
    constexpr char colourTypes[] = {0, 4, 2, 6}; // grey, grey with alpha, RGB, RGB with alpha
    QByteArray header = bigEndian(quint32(shape.size.width())) + bigEndian(quint32(shape.size.height()));
    header.append(char(shape.bits));
    header.append(colourTypes[shape.bands - 1]);
    return header.append(3, '\0'); // the only compression, the only set of filters, not interlaced
}

void appendResolution(QByteArray &png, Resolution resolution)
{
    constexpr double inchesPerMetre = 1 / 0.0254;
    constexpr double mostDots = 1e9;
    const double vertical = resolution.vertical > 0 ? resolution.vertical : resolution.horizontal;
    if (!(resolution.horizontal > 0) || resolution.horizontal > mostDots || vertical > mostDots)
        return;
    const auto perMetre = [](double dots) { return bigEndian(quint32(std::lround(dots * inchesPerMetre))); };
    appendPngChunk(png, "pHYs", perMetre(resolution.horizontal) + perMetre(vertical) + '\x01');
}

void appendProfile(QByteArray &png, const QByteArray &profile)
{
    if (!profile.isEmpty())
        appendPngChunk(png, "iCCP", QByteArray("icc\0\0", 5) + deflated(profile));
}

/** The stream from @p streamAt on becomes the chunks of pixels from @p at on: one, unless it is enormous. */
void finishPixels(QByteArray &png, qsizetype at, qsizetype streamAt)
{
    constexpr qsizetype largestChunk = 1 << 30;
    if (png.size() - streamAt <= largestChunk) {
        closePngChunk(png, "IDAT", at);
        return;
    }
    const QByteArray stream = png.sliced(streamAt);
    png.truncate(at);
    for (qsizetype done = 0; done < stream.size(); done += largestChunk)
        appendPngChunk(
            png, "IDAT",
            QByteArray::fromRawData(stream.constData() + done, std::min(largestChunk, stream.size() - done)));
}

/** The image with at most the four components that the format allows. */
vips::VImage fitted(const vips::VImage &image)
{
    constexpr int mostBands = 4;
    return image.bands() > mostBands ? image.extract_band(0, vips::VImage::option()->set("n", mostBands)) : image;
}

} // namespace

QByteArray pngFile(const PngShape &shape, QByteArray rows)
{
    constexpr qsizetype chunkHead = 8;
    QByteArray png("\x89PNG\r\n\x1a\n");
    appendPngChunk(png, "IHDR", headerOf(shape));
    appendProfile(png, shape.profile);
    appendResolution(png, shape.resolution);
    const qsizetype at = png.size();
    png.append(chunkHead, '\0');
    if (!appendDeflated(png, std::exchange(rows, {})))
        throw vips::VError("not enough memory");
    finishPixels(png, at, at + chunkHead);
    appendPngChunk(png, "IEND", {});
    png.squeeze();
    return png;
}

QByteArray encodePng(const vips::VImage &image, Resolution resolution)
{
    const vips::VImage pixels = inMemory(fitted(image));
    constexpr int bitsPerByte = 8;
    const PngShape shape = {{pixels.width(), pixels.height()},
                            pixels.bands(),
                            bitsPerByte * bytesPerComponent(pixels),
                            iccProfileOf(pixels),
                            resolution};
    return pngFile(shape, filteredRows(pixels));
}

} // namespace platform
