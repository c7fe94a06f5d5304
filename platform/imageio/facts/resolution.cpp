#include "platform/imageio/facts/resolution.h"

#include "platform/imageio/bmp/bmp_header.h"
#include "platform/imageio/codecs/codecs.h"
#include "platform/imageio/facts/metadata_of_file.h"

#include <QtEndian>

#include <cmath>

namespace platform {
namespace {

constexpr double millimetresPerInch = 25.4;

/** The pHYs chunk of a PNG, if its unit is the metre. */
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
            return {dotsPerInch(qFromBigEndian<quint32>(chunk.constData() + 8)),
                    dotsPerInch(qFromBigEndian<quint32>(chunk.constData() + 12))};
        }
        position += chunkFrame + qint64(qFromBigEndian<quint32>(chunk.constData()));
    }
}

Resolution ofBitmapFile(QIODevice &file)
{
    const BmpHeader header = readBmpHeader(file);
    return {dotsPerInch(header.horizontalPerMetre), dotsPerInch(header.verticalPerMetre)};
}

/** The resolution among a Photoshop file's resources, always per inch whatever its display unit. */
Resolution ofPhotoshop(QIODevice &file)
{
    constexpr int headerBytes = 26;
    constexpr quint16 resolutionId = 1005;
    constexpr double onePerInch = 65536; // fixed point
    // A whole number that rounding has changed in the last bit is read as intended.
    const auto meant = [](quint32 value) {
        const double perInch = value / onePerInch;
        return std::abs(perInch - std::round(perInch)) <= 1 / onePerInch ? std::round(perInch) : perInch;
    };
    const auto number = [&file] {
        const QByteArray bytes = file.read(4);
        return bytes.size() == 4 ? qint64(qFromBigEndian<quint32>(bytes.constData())) : -1;
    };
    if (!file.seek(headerBytes))
        return {};
    const qint64 colorBytes = number();
    if (colorBytes < 0 || !file.seek(file.pos() + colorBytes))
        return {};
    const qint64 resourceBytes = number();
    const qint64 end = file.pos() + resourceBytes;
    while (file.pos() < end) {
        const QByteArray head = file.read(7); // mark, number, length of a name that is padded to an even length
        if (head.size() < 7 || !head.startsWith("8BIM") || !file.seek(file.pos() + (uchar(head[6]) | 1)))
            return {};
        const qint64 length = number();
        if (length < 0)
            return {};
        if (qFromBigEndian<quint16>(head.constData() + 4) == resolutionId) {
            const QByteArray values = file.read(16);
            return values.size() < 16 ? Resolution()
                                      : Resolution{meant(qFromBigEndian<quint32>(values.constData())),
                                                   meant(qFromBigEndian<quint32>(values.constData() + 8))};
        }
        if (!file.seek(file.pos() + length + length % 2))
            return {};
    }
    return {};
}

Resolution ofMetadata(const PictureBytes &bytes, Content content)
{
    const QVariantMap properties = metadataOf(bytes, content).toProperties();
    return {properties.value(QStringLiteral("DPIWidth")).toDouble(),
            properties.value(QStringLiteral("DPIHeight")).toDouble()};
}

Resolution ofContainer(const PictureBytes &bytes, Content content)
{
    const std::unique_ptr<QIODevice> device = bytes.openedDevice();
    const auto of = content == Content::Png ? ofPng : content == Content::Bmp ? ofBitmapFile : ofPhotoshop;
    const Resolution stated = of(*device);
    demandRead(*device);
    return stated;
}

/** What the decoder finds in files whose metadata cannot be read otherwise. */
Resolution ofTiffDecoder(const PictureBytes &bytes)
{
    try {
        const vips::VImage image = openImage(bytes, Content::Tiff);
        if (image.get_typeof(VIPS_META_RESOLUTION_UNIT) != 0)
            return {image.xres() * millimetresPerInch, image.yres() * millimetresPerInch};
    } catch (const vips::VError &error) {
        takeVipsError(error);
    }
    return {};
}

/** A plausible number: anything else counts as not stated. */
Resolution plausible(Resolution stated)
{
    constexpr double least = 1;
    constexpr double most = 100'000;
    const auto isPlausible = [](double dpi) { return dpi >= least && dpi <= most; };
    return isPlausible(stated.horizontal) && isPlausible(stated.vertical) ? stated : Resolution();
}

} // namespace

std::optional<JpegHeader> jpegHeaderOf(const PictureBytes &bytes, Content content, JpegProfile profile)
{
    if (content != Content::Jpeg)
        return std::nullopt;
    const std::unique_ptr<QIODevice> device = bytes.openedDevice();
    std::optional<JpegHeader> header = readJpegHeader(*device, profile);
    demandRead(*device);
    return header;
}

Resolution resolutionOf(const PictureBytes &bytes, Content content)
{
    switch (content) {
    case Content::Png:
    case Content::Bmp:
    case Content::Photoshop:
        if (const Resolution own = plausible(ofContainer(bytes, content)); own.horizontal > 0)
            return own;
        return plausible(ofMetadata(bytes, content));
    case Content::Pdf:
    case Content::Svg:
        return {};
    case Content::Gif: {
        const QSizeF stated = metadataOf(bytes, content).resolutionInXmp();
        return plausible({stated.width(), stated.height()});
    }
    default:
        break;
    }
    const Resolution stated = plausible(ofMetadata(bytes, content));
    if (stated.horizontal > 0)
        return stated;
    if (const std::optional<JpegHeader> header = jpegHeaderOf(bytes, content))
        return plausible({header->horizontalDpi, header->verticalDpi});
    return content == Content::Tiff ? plausible(ofTiffDecoder(bytes)) : Resolution();
}

Resolution uprightResolution(Resolution stored, int orientation)
{
    constexpr int firstOnItsSide = 5;
    return orientation >= firstOnItsSide ? Resolution{stored.vertical, stored.horizontal} : stored;
}

} // namespace platform
