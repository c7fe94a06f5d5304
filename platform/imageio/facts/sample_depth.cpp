#include "platform/imageio/facts/sample_depth.h"

#include "platform/imageio/bmp/bmp_pixels.h"
#include "platform/imageio/jpeg2000/jpeg2000_header.h"
#include "platform/imageio/photoshop/photoshop_file.h"
#include "platform/imageio/tiff/tiff_samples.h"

namespace platform {
namespace {

constexpr int unknown = 0;

int ofPng(QIODevice &file)
{
    constexpr qint64 depthAt = 24; // in the first chunk, which every PNG begins with
    const QByteArray depth = file.seek(depthAt) ? file.read(1) : QByteArray();
    return depth.isEmpty() ? unknown : uchar(depth[0]);
}

int ofTiff(QIODevice &file)
{
    const TiffSamples samples = readTiffSamples(file, 0);
    return samples.isKnown ? samples.bits : unknown;
}

/** As the file states it; the decoders of other types report it. */
int statedDepth(QIODevice &file, Content content)
{
    switch (content) {
    case Content::Png:
        return ofPng(file);
    case Content::Tiff:
        return ofTiff(file);
    case Content::Bmp:
        return bmpDepth(file);
    case Content::Jpeg2000:
        return readJpeg2000Header(file).bits;
    case Content::Photoshop:
        return readPhotoshopFile(file).bits;
    default:
        return unknown;
    }
}

} // namespace

int sampleDepth(const PictureBytes &source, Content content, const vips::VImage &image)
{
    constexpr const char *heifField = "heif-bitdepth";
    constexpr int bitsPerByte = 8;
    const std::unique_ptr<QIODevice> device = source.openedDevice();
    const int stated = statedDepth(*device, content);
    demandRead(*device);
    if (stated > unknown)
        return stated;
    return image.get_typeof(heifField) != 0 ? image.get_int(heifField) : bytesPerComponent(image) * bitsPerByte;
}

} // namespace platform
