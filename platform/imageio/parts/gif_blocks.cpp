#include "platform/imageio/parts/gif_blocks.h"

#include <QtEndian>

#include <algorithm>

// "GIF89a" | width, height (2 each) | flags | background | aspect | colours, then blocks:
//
//     "!" kind | pieces       an extension; the application block of XMP has the packet as it is, followed by bytes
//                             that lead a reader that takes its letters for lengths of pieces to its end
//     "," place | colours | pieces       a picture
//     ";"                     the end
//
//     pieces: length (1) | so many bytes ... | 0

namespace platform {
namespace {

constexpr qsizetype screenBytes = 13;
constexpr char extension = 0x21;
constexpr char picture = 0x2c;
constexpr char trailer = 0x3b;
constexpr uchar commentLabel = 0xfe;
const QByteArray xmpApplication("\xff\x0bXMP DataXMP", 13);

/** The position after the empty piece that ends the others. */
qsizetype behindPieces(const QByteArray &bytes, qsizetype at)
{
    while (at < bytes.size() && bytes.at(at) != 0)
        at += 1 + uchar(bytes.at(at));
    return at + 1;
}

/** The contents of the pieces between two positions, without their lengths. */
QByteArray joinedPieces(const QByteArray &bytes, qsizetype at, qsizetype end)
{
    QByteArray joined;
    for (; at < end && bytes.at(at) != 0; at += 1 + uchar(bytes.at(at)))
        joined += bytes.mid(at + 1, uchar(bytes.at(at)));
    return joined;
}

qsizetype behindColours(const QByteArray &bytes, qsizetype flagsAt, qsizetype at)
{
    const int flags = flagsAt < bytes.size() ? uchar(bytes.at(flagsAt)) : 0;
    return (flags & 0x80) != 0 ? at + 3 * (qsizetype(2) << (flags & 7)) : at;
}

/** The block at a position; one without an end if nothing known begins there. */
GifBlock blockAt(const QByteArray &bytes, qsizetype at)
{
    constexpr qsizetype placeBytes = 10;
    GifBlock block{GifBlock::Other, at, at, 0};
    if (bytes.at(at) == extension && at + 2 < bytes.size()) {
        const bool isXmp = bytes.mid(at + 1, xmpApplication.size()) == xmpApplication;
        const bool isComment = uchar(bytes.at(at + 1)) == commentLabel;
        block.kind = isXmp ? GifBlock::Xmp : isComment ? GifBlock::Comment : GifBlock::Other;
        block.dataAt = isXmp ? at + 1 + xmpApplication.size() : at + 2;
        block.end = behindPieces(bytes, block.dataAt);
    } else if (bytes.at(at) == picture) {
        block.dataAt = behindColours(bytes, at + placeBytes - 1, at + placeBytes) + 1;
        block.end = behindPieces(bytes, block.dataAt);
    }
    return block;
}

QByteArray inPieces(const QByteArray &data)
{
    constexpr qsizetype longest = 255;
    QByteArray pieces;
    for (qsizetype at = 0; at < data.size(); at += longest) {
        const QByteArray piece = data.mid(at, longest);
        pieces.append(char(piece.size())).append(piece);
    }
    return pieces.append('\0');
}

QByteArray xmpBlock(const QByteArray &xmp)
{
    QByteArray block = extension + xmpApplication + xmp + '\x01';
    for (int byte = 0xff; byte >= 0; --byte)
        block.append(char(byte));
    return block.append('\0');
}

} // namespace

GifParts gifPartsOf(const QByteArray &bytes)
{
    GifParts parts;
    if (bytes.size() < screenBytes || !bytes.startsWith("GIF8"))
        return parts;
    parts.screen = {qFromLittleEndian<quint16>(bytes.constData() + 6),
                    qFromLittleEndian<quint16>(bytes.constData() + 8)};
    parts.headEnd = behindColours(bytes, 10, screenBytes);
    parts.end = parts.headEnd;
    while (parts.end < bytes.size()) {
        if (bytes.at(parts.end) == trailer) {
            parts.valid = true;
            ++parts.end;
            break;
        }
        const GifBlock block = blockAt(bytes, parts.end);
        if (block.end <= block.start || block.end > bytes.size())
            break;
        parts.blocks.append(block);
        parts.end = block.end;
    }
    return parts;
}

QByteArray gifXmpOf(const QByteArray &bytes, const GifBlock &block)
{
    constexpr qsizetype largest = 64 << 20;
    if (block.end - block.dataAt > largest)
        return {};
    const QByteArray whole = bytes.mid(block.dataAt, block.end - block.dataAt);
    if (!whole.startsWith('<')) // written in pieces like everything else
        return joinedPieces(bytes, block.dataAt, block.end);
    const qsizetype magic = whole.lastIndexOf(QByteArrayView("\x01\xff\xfe\xfd"));
    return magic < 0 ? QByteArray() : whole.left(magic);
}

QStringList gifCommentsOf(const QByteArray &bytes, const GifParts &parts)
{
    QStringList comments;
    for (const GifBlock &block : parts.blocks)
        if (block.kind == GifBlock::Comment)
            comments.append(QString::fromUtf8(joinedPieces(bytes, block.dataAt, block.end)));
    comments.removeAll(QString());
    return comments;
}

QByteArray gifWithMetadata(const QByteArray &bytes, const GifParts &parts, const QByteArray &xmp,
                           const QStringList &comments)
{
    QByteArray file = bytes.left(parts.headEnd);
    file.replace(0, 6, "GIF89a"); // the older form has no blocks of either kind
    for (const QString &comment : comments)
        file += QByteArray("!\xfe", 2) + inPieces(comment.toUtf8());
    if (!xmp.isEmpty())
        file += xmpBlock(xmp);
    qsizetype at = parts.headEnd;
    for (const GifBlock &block : parts.blocks) {
        if (block.kind == GifBlock::Other)
            continue;
        file += bytes.mid(at, block.start - at);
        at = block.end;
    }
    return file + bytes.mid(at);
}

} // namespace platform
