#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/parts/webp_chunks.h"

namespace platform {

using vips::VImage;

VImage withThreeColours(const VImage &image)
{
    constexpr int rgb = 3;
    if (image.bands() >= rgb)
        return image;
    const VImage coloured = image.get_typeof(VIPS_META_ICC_NAME) != 0 ? convertedToSrgb(image) : image;
    if (coloured.bands() >= rgb)
        return coloured;
    const VImage grey = coloured.extract_band(0);
    std::vector<VImage> bands = {grey, grey, grey};
    if (coloured.bands() == 2)
        bands.push_back(coloured.extract_band(1));
    return VImage::bandjoin(bands).copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
}

QByteArray encodeWebp(const VImage &image, const Compression &compression)
{
    constexpr int effort = 4;
    // The next level for lossless files takes three times as long for a seventh less.
    constexpr int effortWithoutLoss = 1;
    const QByteArray file = takenFrom(withThreeColours(image).webpsave_buffer(
        VImage::option()
            ->set("Q", compression.quality)
            ->set("lossless", compression.isLossless)
            ->set("effort", compression.isLossless ? effortWithoutLoss : effort)));
    // The library has inserted an EXIF block, which is removed.
    const auto chunks = webpChunksOf(file);
    return chunks ? webpWithMetadata(*chunks, {}, {}) : file;
}

} // namespace platform
