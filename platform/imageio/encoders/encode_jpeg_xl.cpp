#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/encoders/quality_scale.h"
#include "platform/imageio/formats/encoding_memory.h"

#include <jxl/encode.h>
#include <jxl/thread_parallel_runner.h>

#include <algorithm>
#include <memory>

namespace platform {
namespace {

using vips::VImage;

struct ReleaseEncoder
{
    void operator()(JxlEncoder *encoder) const { JxlEncoderDestroy(encoder); }
};
struct ReleaseThreads
{
    void operator()(void *threads) const { JxlThreadParallelRunnerDestroy(threads); }
};

using Encoder = std::unique_ptr<JxlEncoder, ReleaseEncoder>;
using Threads = std::unique_ptr<void, ReleaseThreads>;

void demand(JxlEncoderStatus status)
{
    if (status != JXL_ENC_SUCCESS)
        throw vips::VError("the encoder of JPEG XL failed");
}

bool hasAlpha(const VImage &image)
{
    return image.bands() % 2 == 0;
}

/** As many as the other work of this process uses; the bytes are the same for any number. */
Threads threadsFor(JxlEncoder *encoder)
{
    const int count = vips_concurrency_get();
    if (count < 2)
        return {};
    Threads threads(JxlThreadParallelRunnerCreate(nullptr, size_t(count)));
    if (threads)
        demand(JxlEncoderSetParallelRunner(encoder, JxlThreadParallelRunner, threads.get()));
    return threads;
}

void describe(JxlEncoder *encoder, const VImage &image, bool isLossless)
{
    JxlBasicInfo info;
    JxlEncoderInitBasicInfo(&info);
    info.xsize = uint32_t(image.width());
    info.ysize = uint32_t(image.height());
    info.bits_per_sample = uint32_t(8 * bytesPerComponent(image));
    info.num_color_channels = image.bands() < 3 ? 1 : 3;
    info.num_extra_channels = hasAlpha(image) ? 1 : 0;
    info.alpha_bits = hasAlpha(image) ? info.bits_per_sample : 0;
    info.uses_original_profile = isLossless ? JXL_TRUE : JXL_FALSE;
    demand(JxlEncoderSetBasicInfo(encoder, &info));
    const QByteArray profile = iccProfileOf(image);
    if (!profile.isEmpty()) {
        demand(JxlEncoderSetICCProfile(encoder, reinterpret_cast<const uint8_t *>(profile.constData()),
                                       size_t(profile.size())));
        return;
    }
    JxlColorEncoding colours;
    JxlColorEncodingSetToSRGB(&colours, info.num_color_channels == 1 ? JXL_TRUE : JXL_FALSE);
    demand(JxlEncoderSetColorEncoding(encoder, &colours));
}

/** What each frame is encoded with. */
JxlEncoderFrameSettings *settingsFor(JxlEncoder *encoder, const Compression &compression)
{
    // Above 6 the encoder takes twice the memory; below 5 its output is larger and less faithful.
    constexpr int effort = 5;
    constexpr int effortWithoutLoss = 3;
    JxlEncoderFrameSettings *settings = JxlEncoderFrameSettingsCreate(encoder, nullptr);
    if (!settings)
        throw vips::VError("not enough memory");
    demand(JxlEncoderFrameSettingsSetOption(settings, JXL_ENC_FRAME_SETTING_EFFORT,
                                            compression.isLossless ? effortWithoutLoss : effort));
    demand(compression.isLossless ? JxlEncoderSetFrameLossless(settings, JXL_TRUE)
                                  : JxlEncoderSetFrameDistance(settings, float(jpegXlDistance(compression.quality))));
    return settings;
}

/** Rows of the picture: where they begin, and how many. */
struct Band
{
    int top = 0;
    int rows = 0;
};

/** The frame replaces these rows of what the previous frames left, and saves the result for the next one. */
void placeFrame(JxlEncoderFrameSettings *settings, const VImage &image, Band band)
{
    constexpr uint32_t canvas = 1; // one of four slots for pictures that later frames can start from
    JxlFrameHeader header;
    JxlEncoderInitFrameHeader(&header);
    JxlLayerInfo &layer = header.layer_info;
    layer.have_crop = JXL_TRUE;
    layer.crop_y0 = band.top;
    layer.xsize = uint32_t(image.width());
    layer.ysize = uint32_t(band.rows);
    layer.blend_info.blendmode = JXL_BLEND_REPLACE;
    layer.blend_info.source = band.top > 0 ? canvas : 0;
    layer.save_as_reference = band.top + band.rows < image.height() ? canvas : 0;
    demand(JxlEncoderSetFrameHeader(settings, &header));
    if (hasAlpha(image))
        demand(JxlEncoderSetExtraChannelBlendInfo(settings, 0, &layer.blend_info));
}

void addRows(JxlEncoderFrameSettings *settings, const VImage &image, Band band)
{
    const JxlPixelFormat format = {
        uint32_t(image.bands()), bytesPerComponent(image) > 1 ? JXL_TYPE_UINT16 : JXL_TYPE_UINT8, JXL_NATIVE_ENDIAN, 0};
    const VImage rows = inMemory(image.extract_area(0, band.top, image.width(), band.rows));
    demand(JxlEncoderAddImageFrame(settings, &format, rows.data(),
                                   VIPS_IMAGE_SIZEOF_LINE(rows.get_image()) * size_t(band.rows)));
}

void takeOutput(JxlEncoder *encoder, QByteArray &file)
{
    constexpr qsizetype atOnce = 1 << 20;
    QByteArray part(atOnce, Qt::Uninitialized);
    JxlEncoderStatus status = JXL_ENC_NEED_MORE_OUTPUT;
    while (status == JXL_ENC_NEED_MORE_OUTPUT) {
        auto *next = reinterpret_cast<uint8_t *>(part.data());
        size_t left = atOnce;
        status = JxlEncoderProcessOutput(encoder, &next, &left);
        file.append(part.constData(), atOnce - qsizetype(left));
    }
    demand(status);
}

} // namespace

QByteArray encodeJpegXl(const VImage &image, const Compression &compression)
{
    const Encoder encoder(JxlEncoderCreate(nullptr));
    if (!encoder)
        throw vips::VError("not enough memory");
    const Threads threads = threadsFor(encoder.get());
    describe(encoder.get(), image, compression.isLossless);
    const int rows = jpegXlRowsAtOnce({image.width(), image.height()}, image.bands(), compression.isLossless);
    QByteArray file;
    for (int top = 0; top < image.height(); top += rows) {
        const Band band = {top, std::min(rows, image.height() - top)};
        JxlEncoderFrameSettings *settings = settingsFor(encoder.get(), compression);
        if (band.rows < image.height())
            placeFrame(settings, image, band);
        addRows(settings, image, band);
        if (band.top + band.rows == image.height())
            JxlEncoderCloseInput(encoder.get());
        takeOutput(encoder.get(), file);
    }
    return file;
}

} // namespace platform
