#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/encoders/quality_scale.h"

#include <algorithm>

#include <cmath>
#include <cstring>

namespace platform {
namespace {

using vips::VImage;

constexpr double millimetresPerInch = 25.4;
constexpr double defaultDpi = 72;

VImage withResolution(const VImage &image, Resolution resolution)
{
    const double horizontal = resolution.horizontal > 0 ? resolution.horizontal : defaultDpi;
    const double vertical = resolution.vertical > 0 ? resolution.vertical : defaultDpi;
    return image.copy(
        VImage::option()->set("xres", horizontal / millimetresPerInch)->set("yres", vertical / millimetresPerInch));
}

/** A tile size that leaves no narrow strip at the end of @p side: 512 if possible. */
int jpeg2000TileSide(int side)
{
    constexpr int usual = 512;
    constexpr int narrow = 128;
    int tile = usual;
    while (side > tile && side % tile != 0 && side % tile < narrow && tile > narrow)
        tile -= 32;
    return tile;
}

} // namespace

VImage preparedFor(const Keeping &keeps, const VImage &image)
{
    if (keeps.anyForm)
        return image;
    VImage result = inForm(image);
    const bool isCmyk = result.interpretation() == VIPS_INTERPRETATION_CMYK;
    const bool hasProfile = result.get_typeof(VIPS_META_ICC_NAME) != 0;
    if ((isCmyk && !keeps.cmyk) || (hasProfile && keeps.profile != Kept::Yes))
        result = convertedToSrgb(result);
    if (!keeps.depth16)
        result = with8Bits(result);
    if (hasTransparency(result) && !keeps.alpha)
        result = result.flatten(VImage::option()->set("max_alpha", opaqueValue(result)));
    return result;
}

QByteArray encodeTiff(const VImage &image, Resolution resolution)
{
    if (const QByteArray plain = encodePlainTiff(image, resolution); !plain.isEmpty())
        return plain;
    const VImage kept = image.interpretation() == VIPS_INTERPRETATION_LAB ? inForm(image) : image;
    return takenFrom(withResolution(kept, resolution)
                         .tiffsave_buffer(VImage::option()
                                              ->set("compression", VIPS_FOREIGN_TIFF_COMPRESSION_NONE)
                                              ->set("bigtiff", true)
                                              ->set("resunit", VIPS_FOREIGN_TIFF_RESUNIT_INCH)));
}

QByteArray encodeGif(const VImage &image)
{
    // The default of 7 takes half as long again; its palette is closer to single dots, but not to their visual effect.
    constexpr int effort = 3;
    return takenFrom(image.gifsave_buffer(VImage::option()->set("effort", effort)));
}

QByteArray encodeJpeg2000(const VImage &image, const std::optional<Compression> &compression)
{
    // Above this the difference from the source is invisible.
    constexpr int visuallyLossless = 60;
    const int decibels = compression ? jpeg2000Decibels(compression->quality) : visuallyLossless;
    // The encoder models the contents of a tile: a small, flat one changes its colour.
    constexpr int leastSide = 128;
    constexpr int leastArea = 256 * 256;
    const bool isSmall =
        std::min(image.width(), image.height()) < leastSide || image.width() <= leastArea / image.height();
    const bool isLossless = isSmall || (compression && compression->isLossless);
    return takenFrom(image.jp2ksave_buffer(VImage::option()
                                               ->set("Q", decibels)
                                               ->set("lossless", isLossless)
                                               ->set("tile_width", jpeg2000TileSide(image.width()))
                                               ->set("tile_height", jpeg2000TileSide(image.height()))
                                               ->set("subsample_mode", VIPS_FOREIGN_SUBSAMPLE_OFF)));
}

} // namespace platform
