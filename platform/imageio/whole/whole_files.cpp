#include "platform/imageio/whole/whole_files.h"

#include "platform/imageio/bmp/bmp_header.h"
#include "platform/imageio/bytes/block_reader.h"
#include "platform/imageio/formats/content.h"

#include <QIODevice>

#include <algorithm>

namespace platform {
namespace {

/** Skips the sub-blocks from @p position on; the position after them, or -1 if they are truncated. */
qint64 behindGifBlocks(BlockReader &reader, qint64 position)
{
    for (;;) {
        const qint64 size = reader.number(position, 1);
        if (size < 0)
            return -1;
        position += 1 + size;
        if (size == 0)
            return position;
    }
}

/** Runs of colours as long as stated, up to their end mark or, without one, the last row. */
bool hasAllBmpRuns(BlockReader &reader, qint64 position, bool isHalfBytes, qint64 rows)
{
    for (qint64 ended = 0;;) {
        const qint64 first = reader.number(position, 1);
        const qint64 second = reader.number(position + 1, 1);
        if (first < 0 || second < 0)
            return first < 0 && ended >= rows;
        position += 2;
        if (first > 0)
            continue;
        if (second == 1)
            return true;
        if (second == 0)
            ++ended;
        else if (second == 2)
            position += 2;
        else
            position += ((isHalfBytes ? (second + 1) / 2 : second) + 1) / 2 * 2;
    }
}

} // namespace

/** Searches for the end mark backwards from the end of the file, since other bytes may follow it. */
bool isWholeJpeg(QIODevice &file)
{
    const qint64 first = startOfJpegScan(file);
    if (first < 0)
        return false;
    constexpr qint64 lastBytes = 1024; // mostly nothing follows
    constexpr qint64 step = 65536;
    const qint64 size = file.size();
    for (qint64 end = size; end > first;) {
        const qint64 begin = std::max(first, end - (end == size ? lastBytes : step));
        const QByteArray bytes = file.seek(begin) ? file.read(end - begin) : QByteArray();
        if (bytes.contains("\xFF\xD9"))
            return true;
        if (begin == first)
            break;
        end = begin + 1; // the mark may be split between two steps
    }
    return false;
}

bool isWholePng(QIODevice &file)
{
    constexpr int chunkFrame = 12;
    constexpr int mostOtherChunks = 100'000; // more of them than pixels: reading them all would take too long
    BlockReader reader(file);
    qint64 position = 8;
    for (int others = 0; others < mostOtherChunks;) {
        const qint64 length = reader.number(position, 4);
        if (length < 0)
            return false;
        const QByteArrayView name = reader.at(position + 4, 4);
        const bool isLast = name == QByteArrayView("IEND");
        others += name == QByteArrayView("IDAT") || name == QByteArrayView("fdAT") ? 0 : 1;
        position += chunkFrame + length;
        if (isLast)
            return position <= reader.size();
    }
    return false;
}

/** All frames, and the byte that says that there are no more. */
bool isWholeGif(QIODevice &file)
{
    BlockReader reader(file);
    const auto tableBytes = [](qint64 flags) { return flags & 0x80 ? 3LL << ((flags & 7) + 1) : 0LL; };
    qint64 position = 13 + tableBytes(std::max<qint64>(0, reader.number(10, 1)));
    int pictures = 0;
    while (position > 0) {
        const qint64 mark = reader.number(position, 1);
        if (mark == '!') {
            position = behindGifBlocks(reader, position + 2);
        } else if (mark == ',') {
            const qint64 flags = reader.number(position + 9, 1);
            position = flags < 0 ? -1 : behindGifBlocks(reader, position + 11 + tableBytes(flags));
            ++pictures;
        } else {
            // No decoder skips anything else between frames; it ends the file for all of them.
            return mark >= 0 && pictures > 0;
        }
    }
    return false;
}

bool isWholeWebp(QIODevice &file)
{
    BlockReader reader(file);
    const qint64 length = reader.number(4, 4, true);
    return length >= 0 && length + 8 <= reader.size();
}

bool isWholeBmp(QIODevice &file)
{
    const BmpHeader header = readBmpHeader(file);
    BlockReader reader(file);
    if (header.size.isEmpty() || header.bytesNeeded > reader.size() || endOfBmpProfile(file) > reader.size())
        return false;
    const qint64 compression = reader.number(30, 4, true);
    const bool isOld = reader.number(14, 4, true) == 12;
    const bool isInRuns = !isOld && (compression == 1 || compression == 2);
    return !isInRuns ||
           hasAllBmpRuns(reader, reader.number(10, 4, true), compression == 2, qint64(header.size.height()));
}

} // namespace platform
