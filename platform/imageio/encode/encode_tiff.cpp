#include "platform/imageio/encode/encoders.h"

#include <QtEndian>

#include <cmath>
#include <limits>

namespace platform {
namespace {

enum class Type : quint16 { Short = 3, Long = 4, Fraction = 5, Undefined = 7 };

constexpr int rowsPerStrip = 128;
/** What offsets of 32 bits surely reach. */
constexpr quint64 mostBytes = quint64(std::numeric_limits<qint32>::max());

template<typename T> void append(QByteArray &bytes, T number)
{
    char text[sizeof number];
    qToLittleEndian<T>(number, text);
    bytes.append(text, sizeof number);
}

/** The one directory of a file with its longer values, which stand behind the pixels. Low bytes come first. */
class Directory
{
public:
    /** @param at  where in the file it all begins */
    explicit Directory(qint64 at) : m_at(at) {}

    void add(quint16 tag, Type type, quint32 count, QByteArray value)
    {
        append(m_entries, tag);
        append(m_entries, quint16(type));
        append(m_entries, count);
        constexpr int fieldSize = 4;
        if (value.size() > fieldSize) {
            const quint32 place = evenPlace();
            m_bytes.append(value);
            value.clear();
            append(value, place);
        }
        m_entries.append(value.leftJustified(fieldSize, '\0'));
        ++m_count;
    }
    void add(quint16 tag, quint16 value) { addShorts(tag, {value}); }
    void addShorts(quint16 tag, const QList<quint16> &values)
    {
        QByteArray bytes;
        for (const quint16 value : values)
            append(bytes, value);
        add(tag, Type::Short, quint32(values.size()), bytes);
    }
    void addLongs(quint16 tag, const QList<quint32> &values)
    {
        QByteArray bytes;
        for (const quint32 value : values)
            append(bytes, value);
        add(tag, Type::Long, quint32(values.size()), bytes);
    }
    void addFraction(quint16 tag, double value)
    {
        constexpr quint32 parts = 10000;
        QByteArray bytes;
        append(bytes, quint32(std::lround(value * parts)));
        append(bytes, parts);
        add(tag, Type::Fraction, 1, bytes);
    }

    /** All bytes, the directory at their end, and the header that tells its place. */
    FileEnds finished()
    {
        QByteArray head("II*\0", 4);
        append(head, evenPlace());
        append(m_bytes, m_count);
        m_bytes.append(m_entries);
        append(m_bytes, quint32(0));
        return {head, m_bytes};
    }

private:
    quint32 evenPlace()
    {
        if ((m_at + m_bytes.size()) % 2 != 0)
            m_bytes.append('\0');
        return quint32(m_at + m_bytes.size());
    }

    qint64 m_at;
    QByteArray m_bytes;
    QByteArray m_entries;
    quint16 m_count = 0;
};

struct Strips
{
    QList<quint32> offsets;
    QList<quint32> sizes;
};

Strips stripsOf(const vips::VImage &image, quint32 start)
{
    Strips strips;
    const auto rowBytes = quint32(VIPS_IMAGE_SIZEOF_LINE(image.get_image()));
    for (int y = 0; y < image.height(); y += rowsPerStrip) {
        strips.offsets.append(start + rowBytes * quint32(y));
        strips.sizes.append(rowBytes * quint32(std::min(rowsPerStrip, image.height() - y)));
    }
    return strips;
}

void addProfile(Directory &directory, const vips::VImage &image)
{
    const QByteArray profile = iccProfileOf(image);
    if (!profile.isEmpty())
        directory.add(0x8773, Type::Undefined, quint32(profile.size()), profile);
}

struct ColourModel
{
    quint16 photometric;
    int colours;
};

ColourModel modelOf(const vips::VImage &image)
{
    constexpr ColourModel minIsBlack = {1, 1};
    constexpr ColourModel rgb = {2, 3};
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

/** Lab as the format has it: whole numbers, the two colours with a sign; @p image is in floating point. */
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
    constexpr double defaultDpi = 72;
    const ColourModel model = modelOf(image);
    const Strips strips = stripsOf(image, plainTiffHeadBytes);
    const double across = resolution.horizontal > 0 ? resolution.horizontal : defaultDpi;
    Directory directory(tailAt); // the tags in the order of their numbers, as the format wants them
    directory.addLongs(0x0100, {quint32(image.width())});
    directory.addLongs(0x0101, {quint32(image.height())});
    directory.addShorts(0x0102, QList<quint16>(image.bands(), quint16(bytesPerComponent(image) * 8)));
    directory.add(0x0103, 1); // not compressed
    directory.add(0x0106, model.photometric);
    directory.addLongs(0x0111, strips.offsets);
    directory.add(0x0112, 1);
    directory.add(0x0115, quint16(image.bands()));
    directory.addLongs(0x0116, {quint32(rowsPerStrip)});
    directory.addLongs(0x0117, strips.sizes);
    directory.addFraction(0x011a, across);
    directory.addFraction(0x011b, resolution.vertical > 0 ? resolution.vertical : across);
    directory.add(0x011c, 1); // components side by side
    directory.add(0x0128, 2); // inches
    QList<quint16> others(image.bands() - model.colours, 0);
    if (!others.isEmpty()) {
        others.first() = others.size() > otherBands(image) ? 2 : 0; // 2: transparency, not multiplied
        directory.addShorts(0x0152, others);
    }
    if (image.format() == VIPS_FORMAT_FLOAT)
        directory.addShorts(0x0153, QList<quint16>(image.bands(), 3));
    addProfile(directory, image);
    return directory.finished();
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
