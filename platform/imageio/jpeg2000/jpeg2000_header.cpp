#include "platform/imageio/jpeg2000/jpeg2000_header.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <cmath>

// A JPEG 2000 file; numbers are big-endian. Boxes, or nothing but the codestream:
//
//     box: length (4; 1 where 8 bytes behind the name tell it, 0 where it reaches to the end) | name (4) | data
//     "jP  " | "ftyp" | "jp2h": boxes | ... | "jp2c": the codestream
//     in "jp2h": "ihdr" height (4), width (4), channels (2), bits less 1 (1) ...
//                "colr" method (1), 0 (1), 0 (1) | number of a standard space (4), or a profile
//                "pclr" entries (2), columns (1), bits of each | entries        "cmap" component (2), kind (1), column (1) ...
//                "cdef" number (2) | channel (2), what it is (2), of which colour (2) ...
//     codestream: 0xFF4F | 0xFF51 length (2), 2 bytes | right (4), bottom (4), left (4), top (4) | the tiles' sizes (16) |
//                 components (2) | bits less 1 with the sign in the highest (1), steps across (1), steps down (1) ...

namespace platform {
namespace {

constexpr qint64 boxHead = 8;
constexpr qint64 longBoxHead = 16;
constexpr qint64 largestHeaderBox = 16 << 20;
constexpr int mostBoxes = 1000;

quint32 big32(const QByteArray &bytes, qsizetype at)
{
    return at + 4 <= bytes.size() ? qFromBigEndian<quint32>(bytes.constData() + at) : 0;
}

quint16 big16(const QByteArray &bytes, qsizetype at)
{
    return at + 2 <= bytes.size() ? qFromBigEndian<quint16>(bytes.constData() + at) : quint16(0);
}

int byteAt(const QByteArray &bytes, qsizetype at)
{
    return at < bytes.size() ? uchar(bytes.at(at)) : 0;
}

struct Box
{
    QByteArray name;
    qint64 dataAt = 0;
    qint64 end = 0;
    bool isThere() const { return !name.isEmpty(); }
};

/** The box at @p position; a length of 0 extends to @p end. */
Box boxAt(QIODevice &file, qint64 position, qint64 end)
{
    const QByteArray head = position < end && file.seek(position) ? file.read(longBoxHead) : QByteArray();
    if (head.size() < boxHead)
        return {};
    const quint32 stated = big32(head, 0);
    if (stated == 0)
        return {head.mid(4, 4), position + boxHead, end};
    if (stated == 1) {
        const quint64 size = head.size() < longBoxHead ? 0 : qFromBigEndian<quint64>(head.constData() + boxHead);
        const bool isSane = size >= quint64(longBoxHead) && size < (quint64(1) << 62);
        return isSane ? Box{head.mid(4, 4), position + longBoxHead, position + qint64(size)} : Box();
    }
    return stated < boxHead ? Box() : Box{head.mid(4, 4), position + boxHead, position + qint64(stated)};
}

/** The contents of the header boxes. */
struct HeaderBoxes
{
    QByteArray colour;
    QByteArray palette;
    QByteArray mapping;
    QByteArray channels;
};

HeaderBoxes headerBoxes(const QByteArray &header)
{
    HeaderBoxes boxes;
    qsizetype at = 0;
    for (int count = 0; count < mostBoxes && at + boxHead <= header.size(); ++count) {
        const qsizetype size = big32(header, at) == 0 ? header.size() - at : qsizetype(big32(header, at));
        if (size < boxHead || at + size > header.size())
            break;
        const QByteArray name = header.mid(at + 4, 4);
        const QByteArray data = header.mid(at + boxHead, size - boxHead);
        if (name == "colr" && boxes.colour.isEmpty())
            boxes.colour = data;
        else if (name == "pclr")
            boxes.palette = data;
        else if (name == "cmap")
            boxes.mapping = data;
        else if (name == "cdef")
            boxes.channels = data;
        at += size;
    }
    return boxes;
}

int bitsOf(int stated)
{
    return (stated & 0x7f) + 1; // the highest bit means that samples are signed
}

/** A palette applies to a component only if a mapping says which: decoders ignore one without. */
void takePalette(Jpeg2000Header &header, const HeaderBoxes &boxes)
{
    constexpr qsizetype mappingEntry = 4;
    constexpr qsizetype firstDepth = 3;
    if (boxes.palette.isEmpty() || boxes.mapping.isEmpty())
        return;
    const int columns = byteAt(boxes.palette, 2);
    header.channelCount = int(boxes.mapping.size() / mappingEntry);
    for (int column = 0; column < columns; ++column)
        header.bits = std::max(header.bits, bitsOf(byteAt(boxes.palette, firstDepth + column)));
}

void takeChannels(Jpeg2000Header &header, const QByteArray &box)
{
    constexpr qsizetype entry = 6;
    for (int index = 0; index < big16(box, 0); ++index) {
        const int type = big16(box, 2 + entry * index + 2);
        header.hasAlpha = header.hasAlpha || type == 1 || type == 2;
    }
}

/** The meaning if the colour box names a space without details. */
std::array<LabChannel, 3> usualLab(int bits)
{
    return {{{100, 0}, {170, std::ldexp(1, bits - 1)}, {200, std::ldexp(1, bits - 2) + std::ldexp(1, bits - 3)}}};
}

void takeEnumeratedColours(Jpeg2000Header &header, const QByteArray &box)
{
    constexpr qsizetype labParameters = 7;
    switch (big32(box, 3)) {
    case 12:
        header.colours = Jpeg2000Colours::Cmyk;
        break;
    case 14:
        header.colours = Jpeg2000Colours::Lab;
        header.lab = usualLab(header.bits);
        if (box.size() >= labParameters + 24)
            for (qsizetype channel = 0; channel < 3; ++channel)
                header.lab[size_t(channel)] = {double(big32(box, labParameters + 8 * channel)),
                                               double(big32(box, labParameters + 8 * channel + 4))};
        break;
    case 16:
        header.colours = Jpeg2000Colours::Rgb;
        break;
    case 17:
        header.colours = Jpeg2000Colours::Grey;
        break;
    case 18:
    case 24:
        header.colours = Jpeg2000Colours::Ycc;
        break;
    default:
        break;
    }
}

void takeColours(Jpeg2000Header &header, const QByteArray &box)
{
    constexpr int byNumber = 1;
    constexpr qsizetype profileAt = 3;
    const int withoutAlpha = header.channelCount - (header.hasAlpha ? 1 : 0);
    header.colours = withoutAlpha < 3 ? Jpeg2000Colours::Grey : Jpeg2000Colours::Rgb;
    if (byteAt(box, 0) == byNumber)
        takeEnumeratedColours(header, box);
    else if (box.mid(profileAt + 16, 4) == "CMYK")
        header.colours = Jpeg2000Colours::Cmyk;
    else if (box.mid(profileAt + 16, 4) == "GRAY")
        header.colours = Jpeg2000Colours::Grey;
    if (header.colourCount() > withoutAlpha) // a space with more colours than there are channels
        header.colours = withoutAlpha < 3 ? Jpeg2000Colours::Grey : Jpeg2000Colours::Rgb;
}

/**
 * Writers that do not name channels mean the one after the colours to be transparency, and all readers interpret it so.
 */
void takeUnnamedAlpha(Jpeg2000Header &header, const QByteArray &channels)
{
    header.isAlphaUnnamed = channels.isEmpty() && header.channelCount == header.colourCount() + 1;
    header.hasAlpha = header.hasAlpha || header.isAlphaUnnamed;
}

/** The first segments of the codestream: its start and the sizes. */
bool takeSizes(Jpeg2000Header &header, QIODevice &file)
{
    constexpr qsizetype fixedBytes = 42;
    constexpr int mostComponents = 16384;
    constexpr quint32 longestSide = 10'000'000;
    const QByteArray start = file.seek(header.codestreamAt) ? file.read(fixedBytes + 3 * mostComponents) : QByteArray();
    const int components = big16(start, 40);
    if (!start.startsWith("\xFF\x4F\xFF\x51") || components < 1 || start.size() < fixedBytes + 3 * components)
        return false;
    const auto side = [&start](qsizetype endAt, int step) {
        const qint64 end = big32(start, endAt);
        const qint64 begin = big32(start, endAt + 8);
        return (end + step - 1) / step - (begin + step - 1) / step;
    };
    qint64 width = 0;
    qint64 height = 0;
    for (qsizetype component = 0; component < components; ++component) {
        const qsizetype at = fixedBytes + 3 * component;
        header.bits = std::max(header.bits, bitsOf(byteAt(start, at)));
        width = std::max(width, side(8, std::max(1, byteAt(start, at + 1))));
        height = std::max(height, side(12, std::max(1, byteAt(start, at + 2))));
    }
    header.channelCount = components;
    if (width < 1 || height < 1 || width > longestSide || height > longestSide)
        return false;
    header.size = QSize(int(width), int(height));
    return true;
}

} // namespace

int Jpeg2000Header::colourCount() const
{
    switch (colours) {
    case Jpeg2000Colours::Grey:
        return 1;
    case Jpeg2000Colours::Cmyk:
        return 4;
    default:
        return 3;
    }
}

Jpeg2000Header readJpeg2000Header(QIODevice &file)
{
    Jpeg2000Header header;
    header.codestreamEnd = file.size();
    HeaderBoxes boxes;
    const bool hasBoxes = file.seek(0) && !file.peek(4).startsWith("\xFF\x4F\xFF\x51");
    qint64 position = 0;
    for (int count = 0; hasBoxes && count < mostBoxes; ++count) {
        const Box box = boxAt(file, position, file.size());
        if (!box.isThere())
            return {};
        if (box.name == "jp2h" && box.end - box.dataAt <= largestHeaderBox && file.seek(box.dataAt))
            boxes = headerBoxes(file.read(box.end - box.dataAt));
        position = box.end;
        if (box.name != "jp2c")
            continue;
        header.codestreamAt = box.dataAt;
        header.codestreamEnd = box.end;
        break;
    }
    if ((hasBoxes && header.codestreamAt == 0) || !takeSizes(header, file))
        return {};
    takePalette(header, boxes);
    takeChannels(header, boxes.channels);
    takeColours(header, boxes.colour);
    takeUnnamedAlpha(header, boxes.channels);
    header.valid = true;
    return header;
}

} // namespace platform
