#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/encoders/quality_scale.h"

#include <QCoreApplication>

#include <libheif/heif.h>

#include <cstring>
#include <memory>

namespace platform {
namespace {

/** From this quality on colour keeps its full resolution, as in a JPEG. */
constexpr int fullColourQuality = 90;

template<auto release> struct Release
{
    template<typename Thing> void operator()(Thing *thing) const { release(thing); }
};
template<typename Thing, auto release> using Owned = std::unique_ptr<Thing, Release<release>>;

using Context = Owned<heif_context, heif_context_free>;
using Encoder = Owned<heif_encoder, heif_encoder_release>;
using Image = Owned<heif_image, heif_image_release>;
using Handle = Owned<heif_image_handle, heif_image_handle_release>;
using Nclx = Owned<heif_color_profile_nclx, heif_nclx_color_profile_free>;

void demand(const heif_error &error)
{
    if (error.code != heif_error_Ok)
        throw vips::VError(error.message ? error.message : "the encoder failed");
}

/** By name; otherwise the most recently installed library would determine time and size. */
Encoder pinnedEncoder(heif_context *context)
{
    const heif_encoder_descriptor *descriptor = nullptr;
    if (heif_context_get_encoder_descriptors(context, heif_compression_AV1, "aom", &descriptor, 1) < 1)
        throw vips::VError("the encoder is not there");
    heif_encoder *encoder = nullptr;
    demand(heif_context_get_encoder(context, descriptor, &encoder));
    return Encoder(encoder);
}

void configure(heif_encoder *encoder, int quality)
{
    // The highest speeds cost 1 % of size and save most of the time; docs/decisions/0031.
    constexpr int speed = 8;
    // One thread gives other bytes than several, and any larger number gives the same: so one is never used.
    constexpr int threads = 4;
    demand(heif_encoder_set_lossy_quality(encoder, avifQuality(quality)));
    demand(heif_encoder_set_parameter_integer(encoder, "speed", speed));
    demand(heif_encoder_set_parameter_integer(encoder, "threads", threads));
    demand(heif_encoder_set_parameter_string(encoder, "chroma", quality >= fullColourQuality ? "444" : "420"));
}

void setColours(heif_image *image, const QByteArray &profile)
{
    if (!profile.isEmpty()) {
        demand(heif_image_set_raw_color_profile(image, "prof", profile.constData(), size_t(profile.size())));
        return;
    }
    const Nclx colours(heif_nclx_color_profile_alloc());
    if (!colours)
        throw vips::VError("not enough memory");
    colours->color_primaries = heif_color_primaries_ITU_R_BT_709_5;
    colours->transfer_characteristics = heif_transfer_characteristic_IEC_61966_2_1;
    colours->matrix_coefficients = heif_matrix_coefficients_ITU_R_BT_601_6;
    colours->full_range_flag = 1;
    demand(heif_image_set_nclx_color_profile(image, colours.get()));
}

Image imageOf(const vips::VImage &pixels)
{
    constexpr int rgba = 4;
    const auto chroma = pixels.bands() == rgba ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB;
    heif_image *made = nullptr;
    demand(heif_image_create(pixels.width(), pixels.height(), heif_colorspace_RGB, chroma, &made));
    Image image(made);
    demand(heif_image_add_plane(made, heif_channel_interleaved, pixels.width(), pixels.height(), 8));
    int stride = 0;
    uint8_t *rows = heif_image_get_plane(made, heif_channel_interleaved, &stride);
    if (!rows)
        throw vips::VError("not enough memory");
    const auto *data = static_cast<const char *>(pixels.data());
    const size_t rowBytes = VIPS_IMAGE_SIZEOF_LINE(pixels.get_image());
    for (int y = 0; y < pixels.height(); ++y)
        std::memcpy(rows + size_t(stride) * size_t(y), data + rowBytes * size_t(y), rowBytes);
    setColours(made, iccProfileOf(pixels));
    return image;
}

heif_error appendTo(heif_context *, const void *data, size_t size, void *bytes)
{
    static_cast<QByteArray *>(bytes)->append(static_cast<const char *>(data), qsizetype(size));
    return {heif_error_Ok, heif_suberror_Unspecified, "Success"};
}

void addMetadata(heif_context *context, const heif_image_handle *image, const ContainerBlocks &blocks)
{
    if (!blocks.exif.isEmpty())
        demand(heif_context_add_exif_metadata(context, image, blocks.exif.constData(), int(blocks.exif.size())));
    if (!blocks.xmp.isEmpty())
        demand(heif_context_add_XMP_metadata(context, image, blocks.xmp.constData(), int(blocks.xmp.size())));
}

} // namespace

QByteArray encodeAvif(const vips::VImage &image, int quality, const ContainerBlocks &blocks)
{
    const Context context(heif_context_alloc());
    const Encoder encoder = pinnedEncoder(context.get());
    configure(encoder.get(), quality);
    const Image pixels = imageOf(inMemory(withThreeColours(image)));
    heif_image_handle *handle = nullptr;
    demand(heif_context_encode_image(context.get(), pixels.get(), encoder.get(), nullptr, &handle));
    const Handle kept(handle);
    addMetadata(context.get(), handle, blocks);
    QByteArray file;
    heif_writer writer{1, appendTo};
    demand(heif_context_write(context.get(), &writer, &file));
    return file;
}

} // namespace platform
