#include "platform/imageio/formats/memory_need.h"

#include "platform/imageio/formats/encoding_memory.h"

#include <algorithm>
#include <cmath>

namespace platform {
namespace {

/** Bytes per pixel: a fixed part, and a part per byte of a pixel. Measured with bench/memory. */
struct Cost
{
    double aPixel = 0;
    double aByte = 0;
};

/** What a decoder holds besides the pixels that it delivers. */
Cost costOfDecoding(Content content, int bands)
{
    switch (content) {
    case Content::Tiff: // one strip may contain all rows
        return {.aByte = 1};
    case Content::Webp:
        return {.aPixel = 8, .aByte = 2};
    case Content::Gif:
        return {.aPixel = 5.5};
    case Content::Heif:
    case Content::Avif:
        return {.aPixel = 6, .aByte = 1};
    case Content::Jpeg2000: // every sample as a four-byte number, and all pixels once more
        return {.aPixel = 4.0 * bands, .aByte = 1.25};
    case Content::JpegXl: // in floating point, partly twice
        return {.aPixel = 16.0 * bands};
    case Content::Photoshop:
        return {.aByte = 0.5};
    case Content::Pdf:
    case Content::Svg:
        return {.aPixel = 4};
    case Content::Jpeg:
    case Content::Png:
    case Content::Bmp:
    case Content::Unknown:
        break;
    }
    return {};
}

/** What encoding a pixel of a frame needs. */
double costOfJpegXl(int bands, Loss loss)
{
    const bool hasAlpha = bands % 2 == 0;
    if (loss == Loss::None)
        return std::max(45.0, 25.0 * bands);
    return hasAlpha ? 72.0 : 48.0;
}

/** What an encoder and its output need besides the pixels passed to it. */
Cost costOfWriting(FileFormat format, Loss loss)
{
    switch (format) {
    case FileFormat::Png: // the filtered rows, their compressed form in the worst case, and the file
        return {.aByte = 2.75};
    case FileFormat::Tiff: // the file without metadata and with it
        return {.aByte = 2.25};
    case FileFormat::Bmp:
        return {.aPixel = 6};
    case FileFormat::Jpeg:
        return {.aPixel = 3, .aByte = 0.25};
    case FileFormat::Jpeg2000:
        return {.aPixel = 2, .aByte = 1.2};
    case FileFormat::Webp:
        return {.aPixel = loss == Loss::None ? 33.0 : 14.0};
    case FileFormat::Avif: // with colours at full resolution; otherwise two thirds of it
        return {.aPixel = 35};
    case FileFormat::JpegXl: // the file while it grows; the encoder needs more, see needOfWriting()
        return {.aByte = loss == Loss::None ? 2.25 : 0.5};
    case FileFormat::Gif: // a copy with transparency and an index for each pixel, twice
        return {.aPixel = 15};
    }
    return {};
}

qint64 bytesFor(Cost cost, QSize size, int pixelBytes)
{
    const double pixels = double(size.width()) * size.height();
    return qint64(std::ceil(pixels * (cost.aPixel + cost.aByte * pixelBytes)));
}

qint64 bytesFor(Cost cost, const vips::VImage &image)
{
    return bytesFor(cost, {image.width(), image.height()}, image.bands() * bytesPerComponent(image));
}

qint64 needOfWriting(FileFormat format, QSize size, int bands, int bytesPerSample, Loss loss)
{
    const qint64 need = bytesFor(costOfWriting(format, loss), size, bands * bytesPerSample);
    if (format != FileFormat::JpegXl)
        return need;
    const int rows = jpegXlRowsAtOnce(size, bands, loss == Loss::None);
    return need + bytesFor({.aPixel = costOfJpegXl(bands, loss)}, {size.width(), rows}, 0);
}

} // namespace

qint64 memoryNeed(const DecodingFacts &facts, const Outcome &outcome)
{
    const int pixelBytes = facts.bands * facts.componentBytes;
    Cost decoding = costOfDecoding(facts.content, facts.bands);
    if (facts.comesInPasses && facts.content == Content::Jpeg)
        decoding.aByte += 2; // the coefficients of all colours
    else if (facts.comesInPasses)
        decoding.aByte += 1;
    // A drawing also has a surface for each of its layers.
    const qint64 ofDecoding = std::max(bytesFor(decoding, facts.decoded, pixelBytes), qint64(facts.drawingBytes));
    const qint64 ofWriting =
        outcome.written ? needOfWriting(*outcome.written, outcome.made, facts.bands, facts.componentBytes, Loss::Some)
                        : 0;
    const qint64 pixels = bytesFor({.aByte = outcome.isTurned ? 2.0 : 1.0}, outcome.made, pixelBytes);
    // Memory freed by the decoder is fragmented, and not all of it can be reused.
    return facts.fileBytes + pixels + std::max(ofDecoding, ofWriting) + std::min(ofDecoding, ofWriting) / 2;
}

qint64 addressesOfThreads(Content content)
{
    constexpr qint64 forEight = 768LL << 20;
    return content == Content::Heif || content == Content::Avif ? forEight : 0;
}

qint64 memoryNeedOfWriting(FileFormat format, const vips::VImage &image, Loss loss)
{
    return needOfWriting(format, {image.width(), image.height()}, image.bands(), bytesPerComponent(image), loss);
}

qint64 memoryOfEncoding(FileFormat format, QSize pixels, int bands, int bytesPerSample, bool isLossless)
{
    return needOfWriting(format, pixels, bands, bytesPerSample, isLossless ? Loss::None : Loss::Some);
}

int jpegXlRowsAtOnce(QSize pixels, int bands, bool isLossless)
{
    // A separate frame costs lossless files nothing. In others filters do not cross frames, so there it is the last
    // resort.
    constexpr double mostWithoutLoss = 512e6;
    constexpr double mostOtherwise = 1500e6;
    constexpr int step = 64;
    const double aRow = costOfJpegXl(bands, isLossless ? Loss::None : Loss::Some) * std::max(1, pixels.width());
    const double most = isLossless ? mostWithoutLoss : mostOtherwise;
    const int frames = int(std::ceil(aRow * pixels.height() / most));
    if (frames < 2)
        return pixels.height();
    const int rows = (pixels.height() + frames - 1) / frames;
    return (rows + step - 1) / step * step;
}

qint64 memoryNeedOfPage(const vips::VImage &image)
{
    return bytesFor({.aByte = 4}, image);
}

} // namespace platform
