#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/tiff/tiff_form.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <cmath>
#include <limits>

namespace platform {
namespace {

constexpr int rowsPerStrip = 128;
/** What 32-bit offsets safely reach. */
constexpr quint64 mostBytes = quint64(std::numeric_limits<qint32>::max());

/** The only directory of a file with its longer values, which follow the pixels. Little-endian. */
class DirectoryWriter
{
public:
    /** @param at  its position in the file */
    explicit DirectoryWriter(qint64 at) : m_at(at) {}

    void add(quint16 tag, quint16 type, quint32 count, const QByteArray &value)
    {
        const bool fits = value.size() <= m_form.offsetSize();
        m_entries += m_form.entry(tag, type, count, fits ? value : m_form.offset(appendEven(m_bytes, value, m_at)));
    }
    void add(quint16 tag, quint16 value) { addShorts(tag, {value}); }
    void addShorts(quint16 tag, const QList<quint16> &values)
    {
        QByteArray bytes;
        for (const quint16 value : values)
            bytes += m_form.bytes(value, 2);
        add(tag, tiffType::shortType, quint32(values.size()), bytes);
    }
    void addLongs(quint16 tag, const QList<quint32> &values)
    {
        QByteArray bytes;
        for (const quint32 value : values)
            bytes += m_form.bytes(value, 4);
        add(tag, tiffType::longType, quint32(values.size()), bytes);
    }
    void addFraction(quint16 tag, double value)
    {
        constexpr quint32 parts = 10000;
        add(tag, tiffType::fractionType, 1,
            m_form.bytes(quint32(std::lround(value * parts)), 4) + m_form.bytes(parts, 4));
    }

    /** All bytes, the directory last, and the header that points to it. */
    FileEnds finished()
    {
        const quint64 place = appendEven(m_bytes, m_form.directory(m_entries, 0), m_at);
        return {QByteArray("II*\0", 4) + m_form.offset(place), m_bytes};
    }

private:
    static constexpr TiffForm m_form = {true, false};
    qint64 m_at;
    QByteArray m_bytes;
    QByteArray m_entries;
};

struct Strips
{
    QList<quint32> offsets;
    QList<quint32> sizes;
};

struct ColourModel
{
    quint16 photometric;
    int colours;
};

constexpr ColourModel minIsBlack = {1, 1};
constexpr ColourModel rgb = {2, 3};

/** What the directory says about the pixels. */
struct PixelKind
{
    QSize size;
    ColourModel model;
    int bands = 0;
    int componentBytes = 1;
    bool hasTransparency = false;
    bool isFloat = false;
    QByteArray profile;

    quint32 rowBytes() const { return quint32(size.width()) * quint32(bands * componentBytes); }
};

Strips stripsOf(const PixelKind &kind, quint32 start)
{
    Strips strips;
    for (int y = 0; y < kind.size.height(); y += rowsPerStrip) {
        strips.offsets.append(start + kind.rowBytes() * quint32(y));
        strips.sizes.append(kind.rowBytes() * quint32(std::min(rowsPerStrip, kind.size.height() - y)));
    }
    return strips;
}

ColourModel modelOf(const vips::VImage &image)
{
    constexpr ColourModel separated = {5, 4};
    constexpr ColourModel lab = {8, 3};
    switch (image.interpretation()) {
    case VIPS_INTERPRETATION_CMYK:
        return separated;
    case VIPS_INTERPRETATION_LAB:
        return lab;
    case VIPS_INTERPRETATION_B_W:
    case VIPS_INTERPRETATION_GREY16:
        return minIsBlack;
    default:
        return rgb;
    }
}

PixelKind kindOf(const vips::VImage &image)
{
    const ColourModel model = modelOf(image);
    const bool hasTransparency = image.bands() - model.colours > otherBands(image);
    return {{image.width(), image.height()},
            model,
            image.bands(),
            bytesPerComponent(image),
            hasTransparency,
            image.format() == VIPS_FORMAT_FLOAT,
            iccProfileOf(image)};
}

FileEnds endsOf(const PixelKind &kind, Resolution resolution, qint64 tailAt)
{
    constexpr double defaultDpi = 72;
    const Strips strips = stripsOf(kind, plainTiffHeadBytes);
    const double across = resolution.horizontal > 0 ? resolution.horizontal : defaultDpi;
    DirectoryWriter directory(tailAt); // tags in ascending order, as the format requires
    directory.addLongs(tiffTag::width, {quint32(kind.size.width())});
    directory.addLongs(tiffTag::height, {quint32(kind.size.height())});
    directory.addShorts(tiffTag::bits, QList<quint16>(kind.bands, quint16(kind.componentBytes * 8)));
    directory.add(tiffTag::compression, 1); // not compressed
    directory.add(tiffTag::photometric, kind.model.photometric);
    directory.addLongs(tiffTag::stripOffsets, strips.offsets);
    directory.add(tiffTag::orientation, 1);
    directory.add(tiffTag::samplesPerPixel, quint16(kind.bands));
    directory.addLongs(tiffTag::rowsPerStrip, {quint32(rowsPerStrip)});
    directory.addLongs(tiffTag::stripSizes, strips.sizes);
    directory.addFraction(tiffTag::resolutionAcross, across);
    directory.addFraction(tiffTag::resolutionDown, resolution.vertical > 0 ? resolution.vertical : across);
    directory.add(tiffTag::planarConfiguration, 1); // interleaved components
    directory.add(tiffTag::resolutionUnit, 2);      // inches
    QList<quint16> others(kind.bands - kind.model.colours, 0);
    if (!others.isEmpty()) {
        others.first() = kind.hasTransparency ? 2 : 0; // 2: transparency, not premultiplied
        directory.addShorts(tiffTag::extraSamples, others);
    }
    if (kind.isFloat)
        directory.addShorts(tiffTag::sampleFormat, QList<quint16>(kind.bands, 3));
    if (!kind.profile.isEmpty())
        directory.add(tiffTag::profile, tiffType::undefinedType, quint32(kind.profile.size()), kind.profile);
    return directory.finished();
}

/** Lab in the format's representation: integers, the two colours signed; @p image is in floating point. */
vips::VImage storedLab(const vips::VImage &image)
{
    const bool isDeep = isDeepLab(image);
    const VipsBandFormat format = isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR;
    const VipsBandFormat withSign = isDeep ? VIPS_FORMAT_SHORT : VIPS_FORMAT_CHAR;
    constexpr double lightest = 100;
    const double most = isDeep ? 65535 : 255;
    const auto stored = [&](int band, double scale, VipsBandFormat as) {
        return image.extract_band(band)
            .linear(scale, 0.0)
            .rint()
            .cast(as)
            .copy(vips::VImage::option()->set("format", format));
    };
    vips::VImage result = stored(0, most / lightest, format);
    for (int band = 1; band < image.bands(); ++band)
        result =
            result.bandjoin(band < 3 ? stored(band, isDeep ? 256 : 1, withSign) : stored(band, most / 255, format));
    return result.copy(vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_LAB));
}

} // namespace

bool isPlainTiff(const vips::VImage &image)
{
    const bool isHeld = image.format() == VIPS_FORMAT_UCHAR || image.format() == VIPS_FORMAT_USHORT ||
                        image.format() == VIPS_FORMAT_FLOAT;
    const VipsInterpretation space = image.interpretation();
    const bool isKnown = space == VIPS_INTERPRETATION_sRGB || space == VIPS_INTERPRETATION_RGB16 ||
                         space == VIPS_INTERPRETATION_scRGB || space == VIPS_INTERPRETATION_B_W ||
                         space == VIPS_INTERPRETATION_GREY16 || space == VIPS_INTERPRETATION_CMYK;
    return isHeld && isKnown && VIPS_IMAGE_SIZEOF_IMAGE(image.get_image()) < mostBytes;
}

FileEnds plainTiffEnds(const vips::VImage &image, Resolution resolution, qint64 tailAt)
{
    return endsOf(kindOf(image), resolution, tailAt);
}

std::optional<FileEnds> plainTiffEnds(const QImage &rows, const QByteArray &profile, Resolution resolution)
{
    const int bands = rows.depth() / 8;
    const ColourModel model = bands == 1 ? minIsBlack : rgb;
    const PixelKind kind = {rows.size(), model, bands, 1, bands > model.colours, false, profile};
    const qint64 size = qint64(kind.rowBytes()) * rows.height();
    if (quint64(size) >= mostBytes)
        return std::nullopt;
    return endsOf(kind, resolution, plainTiffHeadBytes + size);
}

QByteArray encodePlainTiff(const vips::VImage &image, Resolution resolution)
{
    const bool isLab = image.interpretation() == VIPS_INTERPRETATION_LAB && image.format() == VIPS_FORMAT_FLOAT;
    if (!isLab && !isPlainTiff(image))
        return {};
    const vips::VImage pixels = inMemory(isLab ? storedLab(image) : image);
    if (VIPS_IMAGE_SIZEOF_IMAGE(pixels.get_image()) > mostBytes)
        return {};
    const auto size = qsizetype(VIPS_IMAGE_SIZEOF_IMAGE(pixels.get_image()));
    const FileEnds ends = plainTiffEnds(pixels, resolution, plainTiffHeadBytes + size);
    QByteArray file;
    file.reserve(ends.head.size() + size + ends.tail.size());
    file.append(ends.head);
    file.append(static_cast<const char *>(pixels.data()), size); // this machine's byte order is the file's
    return file.append(ends.tail);
}

} // namespace platform
