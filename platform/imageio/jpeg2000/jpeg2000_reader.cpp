#include "platform/imageio/jpeg2000/jpeg2000_reader.h"

#include "platform/imageio/jpeg2000/jp2_profile.h"
#include "platform/imageio/jpeg2000/jpeg2000_decoder.h"

#include <cmath>
#include <cstring>
#include <mutex>
#include <new>

namespace platform {
namespace {

using vips::VImage;

constexpr int byteBits = 8;

/** Decoded once for all callers that need pixels. */
struct Decoding
{
    PictureBytes source;
    Jpeg2000Header header;
    int bits = byteBits;
    std::once_flag once;
    Jpeg2000Pixels pixels;
};

void decode(Decoding &decoding)
{
    try {
        const std::unique_ptr<QIODevice> device = decoding.source.device();
        if (device)
            decoding.pixels = decodeJpeg2000(*device, decoding.header, decoding.bits, vips_concurrency_get());
        else
            decoding.pixels.problem = "it cannot be opened";
    } catch (const std::bad_alloc &) {
        decoding.pixels.problem = "there is not enough memory";
    }
}

/** The library's call for pixels; nothing may be thrown through it. */
int giveRows(VipsRegion *region, void *, void *user, void *, gboolean *)
{
    auto *decoding = static_cast<Decoding *>(user);
    std::call_once(decoding->once, [decoding] { decode(*decoding); });
    if (!decoding->pixels.problem.isEmpty()) {
        vips_error("jpeg2000", "%s", decoding->pixels.problem.constData());
        return -1;
    }
    const VipsRect &part = region->valid;
    const size_t pixelBytes = VIPS_IMAGE_SIZEOF_PEL(region->im);
    const size_t rowBytes = pixelBytes * size_t(decoding->header.size.width());
    for (int y = 0; y < part.height; ++y)
        std::memcpy(VIPS_REGION_ADDR(region, part.left, part.top + y),
                    decoding->pixels.bytes.data() + size_t(part.top + y) * rowBytes + size_t(part.left) * pixelBytes,
                    size_t(part.width) * pixelBytes);
    return 0;
}

VipsInterpretation interpretationOf(const Jpeg2000Header &header, bool isDeep)
{
    switch (header.colours) {
    case Jpeg2000Colours::Grey:
        return isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    case Jpeg2000Colours::Cmyk:
        return VIPS_INTERPRETATION_CMYK;
    default:
        return isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
    }
}

VImage imageOf(std::unique_ptr<Decoding> decoding)
{
    const Jpeg2000Header &header = decoding->header;
    const bool isDeep = decoding->bits > byteBits;
    VipsImage *image = vips_image_new();
    vips_image_init_fields(
        image, header.size.width(), header.size.height(), header.colourCount() + (header.hasAlpha ? 1 : 0),
        isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR, VIPS_CODING_NONE, interpretationOf(header, isDeep), 1, 1);
    VImage owner(image);
    Decoding *state = decoding.release();
    g_object_set_data_full(G_OBJECT(image), "quorlin-jpeg2000", state,
                           [](gpointer data) { delete static_cast<Decoding *>(data); });
    if (vips_image_pipelinev(image, VIPS_DEMAND_STYLE_THINSTRIP, nullptr) != 0 ||
        vips_image_generate(image, nullptr, giveRows, nullptr, state, nullptr) != 0)
        throw vips::VError();
    return owner;
}

/** 16-bit samples to lightness and two colour axes, and on to RGB in the depth of the file. */
VImage convertedFromLab(const VImage &samples, const Jpeg2000Header &header)
{
    const double most = std::ldexp(1, header.bits) - 1;
    std::vector<double> factor;
    std::vector<double> lowest;
    for (const LabChannel &channel : header.lab) {
        factor.push_back(channel.range / 65535);
        lowest.push_back(-channel.offset * channel.range / most);
    }
    const VImage lab = samples.extract_band(0, VImage::option()->set("n", 3))
                           .linear(factor, lowest)
                           .copy(VImage::option()->set("interpretation", VIPS_INTERPRETATION_LAB));
    const bool isDeep = header.bits > byteBits;
    const VImage rgb = lab.colourspace(isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB);
    if (!header.hasAlpha)
        return rgb;
    const VImage opacity = samples.extract_band(3);
    return rgb.bandjoin(isDeep ? opacity : (opacity >> byteBits).cast(VIPS_FORMAT_UCHAR));
}

} // namespace

VImage loadJpeg2000(const PictureBytes &source)
{
    constexpr qint64 mostBeforePixels = 4 << 20;
    const std::unique_ptr<QIODevice> device = source.openedDevice();
    auto decoding = std::make_unique<Decoding>();
    decoding->source = source;
    decoding->header = readJpeg2000Header(*device);
    if (!decoding->header.valid)
        throw vips::VError("its header is damaged");
    const Jpeg2000Header header = decoding->header;
    const bool isLab = header.colours == Jpeg2000Colours::Lab;
    decoding->bits = header.bits > byteBits || isLab ? 2 * byteBits : byteBits;
    const VImage pixels = imageOf(std::move(decoding));
    if (isLab)
        return convertedFromLab(pixels, header);
    device->seek(0);
    const QByteArray profile = jpeg2000Profile(device->read(mostBeforePixels));
    demandRead(*device);
    if (profile.isEmpty())
        return pixels;
    const VImage owner = pixels.copy();
    vips_image_set_blob_copy(owner.get_image(), VIPS_META_ICC_NAME, profile.constData(), size_t(profile.size()));
    return owner;
}

} // namespace platform
