#include "platform/imageio/photoshop/photoshop_file.h"

#include "platform/graphics/pixels.h"

#include <QtEndian>

// A Photoshop file; numbers are big-endian, and lengths marked * take 8 bytes in a large file (version 2):
//
//     "8BPS", version (2), 6 zeros, channels (2), height (4), width (4), bits (2), mode (2)
//     length (4) | palette        length (4) | resources        length* | layers and further blocks
//     compression (2) | the merged picture, channel by channel
//     resource: "8BIM" | number (2) | name, its length first, in all even | length (4) | data, padded to even

namespace platform {
namespace {

constexpr int longestSide = 300'000;
constexpr qint64 mostBlockBytes = 16 << 20;

[[noreturn]] void refuse(const char *reason)
{
    throw vips::VError(reason);
}

/** Consecutive numbers of the file; stops where the file is too short. */
class Reader
{
public:
    explicit Reader(QIODevice &file) : m_file(file) {}

    QByteArray bytes(qint64 count)
    {
        const QByteArray read = m_file.read(count);
        if (read.size() != count)
            refuse("the file is cut short");
        return read;
    }
    template<typename T> T number() { return qFromBigEndian<T>(bytes(qint64(sizeof(T))).constData()); }
    /** A length, which takes 64 bits in large files. */
    qint64 length(bool isLarge)
    {
        const qint64 length = isLarge ? qint64(number<quint64>()) : qint64(number<quint32>());
        if (length < 0 || length > m_file.size() - m_file.pos())
            refuse("the file is cut short");
        return length;
    }
    qint64 position() const { return m_file.pos(); }
    void goTo(qint64 position)
    {
        if (position > m_file.size() || !m_file.seek(position))
            refuse("the file is cut short");
    }

private:
    QIODevice &m_file;
};

void readHead(PhotoshopFile &file, Reader &reader)
{
    const QByteArray mark = reader.bytes(4);
    const auto version = reader.number<quint16>();
    if (mark != "8BPS" || (version != 1 && version != 2))
        refuse("its header is damaged");
    file.isLarge = version == 2;
    reader.bytes(6);
    file.channels = reader.number<quint16>();
    const auto height = reader.number<quint32>();
    const auto width = reader.number<quint32>();
    file.bits = reader.number<quint16>();
    file.mode = PhotoshopFile::Mode(reader.number<quint16>());
    constexpr int mostChannels = 56;
    const bool isPossible = width > 0 && height > 0 && width <= longestSide && height <= longestSide &&
                            file.channels > 0 && file.channels <= mostChannels;
    if (!isPossible)
        refuse("its header is damaged");
    file.size = QSize(int(width), int(height));
}

void checkKind(const PhotoshopFile &file)
{
    const bool isBits = file.mode == PhotoshopFile::Mode::Bitmap && file.bits == 1;
    const bool isNumbers = file.mode != PhotoshopFile::Mode::Bitmap && (file.bits == 8 || file.bits == 16);
    const bool isFloat =
        file.bits == 32 && (file.mode == PhotoshopFile::Mode::Grey || file.mode == PhotoshopFile::Mode::Rgb);
    if (file.colours() == 0 || file.channels < file.colours() || (!isBits && !isNumbers && !isFloat))
        refuse("it has colours of a kind that is not known here");
}

/** Where a relevant resource is stored; null for all others. */
QByteArray *placeOf(PhotoshopFile &file, quint16 resource)
{
    switch (resource) {
    case 1028:
        return &file.iptc;
    case 1039:
        return &file.profile;
    case 1058:
        return &file.exif;
    case 1060:
        return &file.xmp;
    default:
        return nullptr;
    }
}

void readResources(PhotoshopFile &file, Reader &reader, qint64 end)
{
    constexpr qint64 smallestBlock = 12;
    while (reader.position() + smallestBlock <= end) {
        static const QList<QByteArray> marks = {"8BIM", "MeSa", "PHUT", "AgHg", "DCSR"};
        if (!marks.contains(reader.bytes(4)))
            return; // some writers leave rubbish here, which does not matter
        const auto id = reader.number<quint16>();
        const auto nameBytes = uchar(reader.bytes(1)[0]);
        reader.goTo(reader.position() + (nameBytes | 1));
        const auto size = qint64(reader.number<quint32>());
        if (size > end - reader.position())
            return;
        const qint64 next = reader.position() + size + size % 2;
        if (QByteArray *place = placeOf(file, id); place && size <= mostBlockBytes)
            *place = reader.bytes(size);
        reader.goTo(std::min(next, end));
    }
}

bool hasLongLength(const QByteArray &key, bool isLarge)
{
    static const QList<QByteArray> keys = {"LMsk", "Lr16", "Lr32", "Layr", "Mt16", "Mt32", "Mtrn",
                                           "Alph", "FMsk", "lnk2", "FEid", "FXid", "PxSD"};
    return isLarge && keys.contains(key);
}

/** Deep pictures store their layers, and with them the transparency flag, in one of the blocks at the end. */
bool blocksTellTransparency(Reader &reader, bool isLarge, qint64 end)
{
    constexpr qint64 smallestBlock = 12;
    while (reader.position() + smallestBlock <= end) {
        if (!reader.bytes(3).startsWith("8B"))
            return false;
        reader.bytes(1);
        const QByteArray key = reader.bytes(4);
        const qint64 size = reader.length(hasLongLength(key, isLarge));
        if (key == "Mtrn" || key == "Mt16" || key == "Mt32")
            return true;
        if ((key == "Lr16" || key == "Lr32" || key == "Layr") && size >= 2)
            return reader.number<qint16>() < 0;
        reader.goTo(std::min(end, reader.position() + (size + 3) / 4 * 4));
    }
    return false;
}

void readLayers(PhotoshopFile &file, Reader &reader, qint64 end)
{
    if (reader.position() >= end)
        return;
    const qint64 layers = reader.length(file.isLarge);
    const qint64 behind = reader.position() + layers;
    if (layers >= 2) {
        file.hasTransparency = reader.number<qint16>() < 0;
        return;
    }
    reader.goTo(behind);
    if (behind + 4 > end)
        return;
    const qint64 mask = reader.length(false);
    reader.goTo(std::min(end, reader.position() + mask));
    file.hasTransparency = blocksTellTransparency(reader, file.isLarge, end);
}

} // namespace

int PhotoshopFile::colours() const
{
    switch (mode) {
    case Mode::Bitmap:
    case Mode::Grey:
    case Mode::Palette:
    case Mode::Duotone:
        return 1;
    case Mode::Rgb:
    case Mode::Lab:
        return 3;
    case Mode::Cmyk:
        return 4;
    case Mode::Inks:
        return channels >= 4 ? 4 : channels >= 3 ? 3 : 1;
    }
    return 0;
}

PhotoshopFile readPhotoshopFile(QIODevice &device)
{
    PhotoshopFile file;
    Reader reader(device);
    reader.goTo(0);
    readHead(file, reader);
    checkKind(file);
    constexpr qint64 paletteBytes = 768;
    const qint64 colourBytes = reader.length(false);
    const qint64 behindColours = reader.position() + colourBytes;
    if (file.mode == PhotoshopFile::Mode::Palette) {
        if (colourBytes < paletteBytes)
            refuse("its header is damaged");
        file.palette = reader.bytes(paletteBytes);
    }
    reader.goTo(behindColours);
    const qint64 resourceBytes = reader.length(false);
    const qint64 behindResources = reader.position() + resourceBytes;
    readResources(file, reader, behindResources);
    reader.goTo(behindResources);
    const qint64 layerBytes = reader.length(file.isLarge);
    file.pixelsAt = reader.position() + layerBytes;
    readLayers(file, reader, file.pixelsAt);
    file.hasTransparency = file.hasTransparency && file.channels > file.colours();
    return file;
}

} // namespace platform
