#include "platform/imageio/resolution.h"

#include "platform/imageio/opened_file.h"

#include <QtEndian>

namespace platform {
namespace {

constexpr double metresPerInch = 0.0254;
constexpr double millimetresPerInch = 25.4;

/** The pHYs chunk of a PNG, where it names the metre as its unit. */
Resolution ofPng(QIODevice &file)
{
    constexpr int signatureBytes = 8;
    constexpr int chunkFrame = 12;
    qint64 position = signatureBytes;
    for (;;) {
        const QByteArray chunk = file.seek(position) ? file.read(8 + 9) : QByteArray();
        const QByteArray name = chunk.mid(4, 4);
        if (chunk.size() < 17 || name == "IDAT")
            return {};
        if (name == "pHYs") {
            const bool isPerMetre = chunk[16] == 1;
            if (!isPerMetre)
                return {};
            return {qFromBigEndian<quint32>(chunk.constData() + 8) * metresPerInch,
                    qFromBigEndian<quint32>(chunk.constData() + 12) * metresPerInch};
        }
        position += chunkFrame + qint64(qFromBigEndian<quint32>(chunk.constData()));
    }
}

Resolution ofMetadata(const PictureBytes &bytes, Content content)
{
    const QVariantMap properties = metadataOf(bytes, content).toProperties();
    return {properties.value(QStringLiteral("DPIWidth")).toDouble(),
            properties.value(QStringLiteral("DPIHeight")).toDouble()};
}

Resolution ofDecoder(const vips::VImage &image)
{
    return {image.xres() * millimetresPerInch, image.yres() * millimetresPerInch};
}

/** A number that can be meant: anything else counts as not stated. */
Resolution plausible(Resolution stated)
{
    constexpr double least = 1;
    constexpr double most = 100'000;
    const auto isPlausible = [](double dpi) { return dpi >= least && dpi <= most; };
    return isPlausible(stated.horizontal) && isPlausible(stated.vertical) ? stated : Resolution();
}

} // namespace

std::optional<JpegHeader> jpegHeaderOf(const PictureBytes &bytes, Content content)
{
    if (content != Content::Jpeg)
        return std::nullopt;
    const std::unique_ptr<QIODevice> device = bytes.device();
    return device ? readJpegHeader(*device) : std::nullopt;
}

Resolution resolutionOf(const vips::VImage &image, const PictureBytes &bytes, Content content)
{
    switch (content) {
    case Content::Png:
        if (const std::unique_ptr<QIODevice> device = bytes.device())
            return plausible(ofPng(*device));
        return {};
    case Content::Bmp:
    case Content::Photoshop:
        return plausible(ofDecoder(image));
    case Content::Pdf:
    case Content::Svg:
    case Content::Gif:
        return {};
    default:
        break;
    }
    Resolution stated = plausible(ofMetadata(bytes, content));
    if (stated.horizontal > 0)
        return stated;
    if (const std::optional<JpegHeader> header = jpegHeaderOf(bytes, content))
        return plausible({header->horizontalDpi, header->verticalDpi});
    const bool decoderKnows = content == Content::Tiff && image.get_typeof(VIPS_META_RESOLUTION_UNIT) != 0;
    return decoderKnows ? plausible(ofDecoder(image)) : Resolution();
}

} // namespace platform
