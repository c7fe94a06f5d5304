#include "platform/imageio/whole/whole_containers.h"

#include "platform/imageio/bytes/block_reader.h"
#include "platform/imageio/jpeg2000/jpeg2000_header.h"

#include <QList>

#include <algorithm>
#include <optional>
#include <vector>

namespace platform {
namespace {

constexpr int mostBoxes = 100'000;
constexpr qint64 mostTiles = 65535;

struct Box
{
    qint64 dataAt = 0;
    qint64 end = 0;
};

/** The box at @p position among bytes up to @p end; none if its own header is truncated or invalid. */
std::optional<Box> boxAt(BlockReader &reader, qint64 position, qint64 end)
{
    const qint64 stated = reader.number(position, 4);
    if (stated < 0 || position + 8 > end)
        return std::nullopt;
    if (stated == 0)
        return Box{position + 8, end};
    const qint64 size = stated == 1 ? reader.number(position + 8, 8) : stated;
    const qint64 head = stated == 1 ? 16 : 8;
    constexpr qint64 largest = qint64(1) << 60;
    return size < head || size > largest ? std::nullopt : std::optional(Box{position + head, position + size});
}

bool isNamed(BlockReader &reader, qint64 position, const char *name)
{
    return reader.at(position + 4, 4) == QByteArrayView(name, 4);
}

/** Zeros or other bytes after the boxes of a picture are not a box, nor a truncated one. */
bool areBoxesInside(BlockReader &reader)
{
    qint64 position = 0;
    for (int count = 0; count < mostBoxes && position < reader.size(); ++count) {
        const std::optional<Box> box = boxAt(reader, position, reader.size());
        if (!box)
            return count >= 3;
        if (box->end > reader.size())
            return false;
        position = box->end;
    }
    return true;
}

/** Skips the segments of the main header; the position of the first tile part, or -1. */
qint64 firstTilePart(BlockReader &reader, qint64 position)
{
    constexpr qint64 startOfTilePart = 0xff90;
    constexpr int mostSegments = 100'000;
    position += 2;
    for (int count = 0; count < mostSegments; ++count) {
        const qint64 marker = reader.number(position, 2);
        if (marker == startOfTilePart)
            return position;
        const qint64 length = reader.number(position + 2, 2);
        if (marker < 0xff00 || length < 2)
            return -1;
        position += 2 + length;
    }
    return -1;
}

qint64 tileCount(BlockReader &reader, qint64 codestream)
{
    const auto number = [&](qint64 at) { return reader.number(codestream + at, 4); };
    const auto tiles = [&](qint64 endAt) {
        const qint64 step = number(endAt + 16);
        const qint64 count = step < 1 ? 0 : (number(endAt) - number(endAt + 24) + step - 1) / step;
        return std::clamp<qint64>(count, 0, mostTiles + 1);
    };
    return tiles(8) * tiles(12);
}

bool areTilePartsInside(BlockReader &reader, const Jpeg2000Header &header)
{
    const qint64 tiles = tileCount(reader, header.codestreamAt);
    if (tiles < 1 || tiles > mostTiles)
        return false;
    std::vector<bool> isThere(size_t(tiles), false);
    qint64 position = firstTilePart(reader, header.codestreamAt);
    while (position > 0 && reader.number(position, 2) == 0xff90) {
        const qint64 tile = reader.number(position + 4, 2);
        const qint64 length = reader.number(position + 6, 4);
        if (tile < 0 || tile >= tiles || (length != 0 && length < 14))
            return false;
        isThere[size_t(tile)] = true;
        position = length == 0 ? header.codestreamEnd - 2 : position + length;
    }
    return position > 0 && reader.number(position, 2) == 0xffd9 && position + 2 <= header.codestreamEnd &&
           std::find(isThere.begin(), isThere.end(), false) == isThere.end();
}

/** The fields before a Photoshop file's sections. */
struct PhotoshopHead
{
    bool isLarge = false;
    qint64 channels = 0;
    qint64 height = 0;
    qint64 rowBytes = 0;
};

bool arePhotoshopRowsInside(BlockReader &reader, qint64 position, const PhotoshopHead &head)
{
    constexpr qint64 plain = 0;
    constexpr qint64 inRuns = 1;
    const qint64 rows = head.channels * head.height;
    const qint64 compression = reader.number(position, 2);
    position += 2;
    if (compression == plain)
        return position + rows * head.rowBytes <= reader.size();
    if (compression != inRuns)
        return compression > inRuns && position < reader.size();
    const int countSize = head.isLarge ? 4 : 2;
    qint64 end = position + rows * countSize;
    for (qint64 row = 0; row < rows && end <= reader.size(); ++row) {
        const qint64 length = reader.number(position + row * countSize, countSize);
        if (length < 0)
            return false;
        end += length;
    }
    return end <= reader.size();
}

/** The bytes of one item of a HEIF file, which may be in several parts. */
class ItemPlaces
{
public:
    ItemPlaces(BlockReader &reader, qint64 position) : m_reader(reader), m_position(position) {}

    bool areInside()
    {
        const qint64 version = take(1);
        take(3);
        const qint64 sizes = take(2);
        const auto nibble = [sizes](int shift) { return int(sizes >> shift & 15); };
        const bool hasMethods = version == 1 || version == 2;
        const qint64 items = take(version == 2 ? 4 : 2);
        constexpr qint64 mostItems = 1'000'000;
        for (qint64 item = 0; m_isSound && item < std::min(items, mostItems); ++item) {
            take(version == 2 ? 4 : 2);
            const bool isByPlace = !hasMethods || (take(2) & 15) == 0;
            take(2); // of which file; any other than this one is not used
            const qint64 base = take(nibble(4));
            const qint64 parts = take(2);
            for (qint64 part = 0; m_isSound && part < parts; ++part) {
                take(hasMethods ? nibble(0) : 0);
                const qint64 offset = base + take(nibble(12));
                const qint64 length = take(nibble(8));
                m_isSound = m_isSound && (!isByPlace || offset + length <= m_reader.size());
            }
        }
        return m_isSound;
    }

private:
    qint64 take(int bytes)
    {
        if (bytes == 0)
            return 0;
        constexpr qint64 largest = qint64(1) << 60;
        const qint64 value = m_reader.number(m_position, bytes);
        m_position += bytes;
        m_isSound = m_isSound && value >= 0 && value < largest;
        return m_isSound ? value : 0;
    }

    BlockReader &m_reader;
    qint64 m_position;
    bool m_isSound = true;
};

/** Where the list of the items' positions begins after its header; -1 if there is none. */
qint64 itemPlacesAt(BlockReader &reader)
{
    qint64 position = 0;
    for (int count = 0; count < mostBoxes && position < reader.size(); ++count) {
        const std::optional<Box> box = boxAt(reader, position, reader.size());
        if (!box)
            return -1;
        const bool isMeta = isNamed(reader, position, "meta");
        if (isNamed(reader, position, "iloc"))
            return box->dataAt;
        position = isMeta ? box->dataAt + 4 : box->end;
    }
    return -1;
}

} // namespace

bool isWholeJpeg2000(QIODevice &file)
{
    const Jpeg2000Header header = readJpeg2000Header(file);
    BlockReader reader(file);
    if (!header.valid || header.codestreamEnd > reader.size())
        return false;
    return (header.codestreamAt == 0 || areBoxesInside(reader)) && areTilePartsInside(reader, header);
}

bool isWholePhotoshop(QIODevice &file)
{
    BlockReader reader(file);
    PhotoshopHead head;
    head.isLarge = reader.number(4, 2) == 2;
    head.channels = reader.number(12, 2);
    head.height = reader.number(14, 4);
    head.rowBytes = (reader.number(18, 4) * reader.number(22, 2) + 7) / 8;
    constexpr qint64 mostChannels = 56;
    constexpr qint64 longestSide = 300'000;
    if (head.channels > mostChannels || head.height > longestSide || head.rowBytes > longestSide * 4)
        return false;
    constexpr qint64 firstSection = 26;
    qint64 position = firstSection;
    for (int section = 0; section < 3; ++section) { // colours, resources, layers
        const int lengthSize = head.isLarge && section == 2 ? 8 : 4;
        const qint64 length = reader.number(position, lengthSize);
        if (length < 0 || length > reader.size() - position - lengthSize)
            return false;
        position += lengthSize + length;
    }
    return arePhotoshopRowsInside(reader, position, head);
}

bool isWholeIsoMedia(QIODevice &file)
{
    BlockReader reader(file);
    if (!areBoxesInside(reader))
        return false;
    const qint64 places = itemPlacesAt(reader);
    return places < 0 || ItemPlaces(reader, places).areInside();
}

} // namespace platform
