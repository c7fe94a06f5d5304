#include "platform/imageio/jpeg2000/jpeg2000_decoder.h"

#include <QIODevice>

#include <openjpeg.h>

#include <algorithm>
#include <limits>
#include <memory>

namespace platform {
namespace {

constexpr int deepest = 16;

struct CodecDeleter
{
    void operator()(opj_codec_t *codec) const { opj_destroy_codec(codec); }
};
struct StreamDeleter
{
    void operator()(opj_stream_t *stream) const { opj_stream_destroy(stream); }
};
struct ImageDeleter
{
    void operator()(opj_image_t *image) const { opj_image_destroy(image); }
};
using Codec = std::unique_ptr<opj_codec_t, CodecDeleter>;
using Stream = std::unique_ptr<opj_stream_t, StreamDeleter>;
using Image = std::unique_ptr<opj_image_t, ImageDeleter>;

OPJ_SIZE_T readBytes(void *buffer, OPJ_SIZE_T count, void *device)
{
    const qint64 read = static_cast<QIODevice *>(device)->read(static_cast<char *>(buffer), qint64(count));
    return read > 0 ? OPJ_SIZE_T(read) : OPJ_SIZE_T(-1);
}

OPJ_BOOL seekTo(OPJ_OFF_T position, void *device)
{
    auto *file = static_cast<QIODevice *>(device);
    return position >= 0 && position <= file->size() && file->seek(position) ? OPJ_TRUE : OPJ_FALSE;
}

OPJ_OFF_T skipBytes(OPJ_OFF_T count, void *device)
{
    return seekTo(static_cast<QIODevice *>(device)->pos() + count, device) ? count : -1;
}

void keepFirst(const char *message, void *text)
{
    auto *problem = static_cast<QByteArray *>(text);
    if (problem->isEmpty())
        *problem = QByteArray(message).trimmed();
}

Stream streamOf(QIODevice &file)
{
    Stream stream(opj_stream_default_create(OPJ_TRUE));
    if (!stream)
        return stream;
    opj_stream_set_user_data(stream.get(), &file, nullptr);
    opj_stream_set_user_data_length(stream.get(), OPJ_UINT64(file.size()));
    opj_stream_set_read_function(stream.get(), readBytes);
    opj_stream_set_seek_function(stream.get(), seekTo);
    opj_stream_set_skip_function(stream.get(), skipBytes);
    return stream;
}

/** All components after the palette, each in its own size; null with a text in @p problem. */
Image decodedComponents(QIODevice &file, bool hasBoxes, int threads, QByteArray &problem)
{
    const Codec codec(opj_create_decompress(hasBoxes ? OPJ_CODEC_JP2 : OPJ_CODEC_J2K));
    const Stream stream = file.seek(0) ? streamOf(file) : Stream();
    opj_dparameters_t parameters;
    opj_set_default_decoder_parameters(&parameters);
    if (!codec || !stream || !opj_setup_decoder(codec.get(), &parameters))
        return {};
    opj_set_error_handler(codec.get(), keepFirst, &problem);
    opj_decoder_set_strict_mode(codec.get(), OPJ_TRUE);
    if (threads > 1)
        opj_codec_set_threads(codec.get(), threads);
    opj_image_t *raw = nullptr;
    const bool isHeaderRead = opj_read_header(stream.get(), codec.get(), &raw);
    Image image(raw);
    if (!isHeaderRead || !opj_decode(codec.get(), stream.get(), image.get()) ||
        !opj_end_decompress(codec.get(), stream.get()))
        return {};
    return problem.isEmpty() ? std::move(image) : Image();
}

bool isOpacity(const opj_image_comp_t &component)
{
    return component.alpha == 1 || component.alpha == 2;
}

/** Which components make up the pixels: the colours in order, then opacity. */
std::vector<const opj_image_comp_t *> channelsOf(const opj_image_t &image, const Jpeg2000Header &header)
{
    std::vector<const opj_image_comp_t *> channels;
    const opj_image_comp_t *opacity = nullptr;
    for (OPJ_UINT32 index = 0; index < image.numcomps; ++index) {
        const opj_image_comp_t &component = image.comps[index];
        if (component.data == nullptr || component.w == 0 || component.h == 0)
            return {};
        const bool isColour = !isOpacity(component) && int(channels.size()) < header.colourCount();
        if (isColour)
            channels.push_back(&component);
        else if (!opacity && (isOpacity(component) || header.isAlphaUnnamed))
            opacity = &component;
    }
    if (int(channels.size()) < header.colourCount() || header.hasAlpha != (opacity != nullptr))
        return {};
    if (opacity)
        channels.push_back(opacity);
    return channels;
}

/** Puts one component into every pixel, scaled to the size of the picture and the full range of its samples. */
template<typename Sample>
void takeComponent(const opj_image_comp_t &component, const Jpeg2000Header &header, Sample *target, int step)
{
    const int precision = int(std::min<OPJ_UINT32>(component.prec, 31));
    const qint64 most = (qint64(1) << precision) - 1;
    const qint64 shift = component.sgnd ? qint64(1) << (precision - 1) : 0;
    static constexpr qint64 full = std::numeric_limits<Sample>::max();
    const int width = header.size.width();
    const int height = header.size.height();
    for (qint64 y = 0; y < height; ++y) {
        const OPJ_INT32 *row = component.data + y * component.h / height * component.w;
        Sample *to = target + y * width * step;
        for (qint64 x = 0; x < width; ++x, to += step) {
            const qint64 at = int(component.w) == width ? x : x * component.w / width;
            const qint64 sample = std::clamp<qint64>(row[at] + shift, 0, most);
            *to = Sample(most == full ? sample : (sample * full * 2 + most) / (most * 2));
        }
    }
}

/** Brightness and two colour differences to red, green and blue, as in JPEG. */
template<typename Sample> void convertYcc(Sample *pixel, qint64 count, int step)
{
    static constexpr double full = std::numeric_limits<Sample>::max();
    constexpr double middle = (full + 1) / 2;
    const auto rounded = [](double value) { return Sample(std::clamp(value + 0.5, 0.0, full)); };
    for (qint64 index = 0; index < count; ++index, pixel += step) {
        const double luma = pixel[0];
        const double blue = pixel[1] - middle;
        const double red = pixel[2] - middle;
        pixel[0] = rounded(luma + 1.402 * red);
        pixel[1] = rounded(luma - 0.344136 * blue - 0.714136 * red);
        pixel[2] = rounded(luma + 1.772 * blue);
    }
}

/** Reverts the premultiplication of colours by their opacity. */
template<typename Sample> void divideByOpacity(Sample *pixel, qint64 count, int step)
{
    static constexpr qint64 full = std::numeric_limits<Sample>::max();
    for (qint64 index = 0; index < count; ++index, pixel += step) {
        const qint64 opacity = pixel[step - 1];
        for (int channel = 0; opacity > 0 && channel < step - 1; ++channel)
            pixel[channel] = Sample(std::min(full, (pixel[channel] * full + opacity / 2) / opacity));
    }
}

template<typename Sample>
std::vector<uchar> interleaved(const std::vector<const opj_image_comp_t *> &channels, const Jpeg2000Header &header)
{
    const qint64 count = qint64(header.size.width()) * header.size.height();
    const int step = int(channels.size());
    std::vector<uchar> bytes(size_t(count) * size_t(step) * sizeof(Sample));
    auto *samples = reinterpret_cast<Sample *>(bytes.data());
    for (int channel = 0; channel < step; ++channel)
        takeComponent(*channels[size_t(channel)], header, samples + channel, step);
    if (header.colours == Jpeg2000Colours::Ycc)
        convertYcc(samples, count, step);
    if (channels.back()->alpha == 2)
        divideByOpacity(samples, count, step);
    return bytes;
}

} // namespace

Jpeg2000Pixels decodeJpeg2000(QIODevice &file, const Jpeg2000Header &header, int bits, int threads)
{
    Jpeg2000Pixels pixels;
    const bool hasBoxes = header.codestreamAt > 0;
    const Image image = decodedComponents(file, hasBoxes, threads, pixels.problem);
    if (!image) {
        if (pixels.problem.isEmpty())
            pixels.problem = "the decoder gave up";
        return pixels;
    }
    const std::vector<const opj_image_comp_t *> channels = channelsOf(*image, header);
    if (channels.empty())
        pixels.problem = "its channels contradict its header";
    else
        pixels.bytes =
            bits > deepest / 2 ? interleaved<quint16>(channels, header) : interleaved<quint8>(channels, header);
    return pixels;
}

} // namespace platform
