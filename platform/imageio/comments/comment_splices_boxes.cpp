// PNG, JPEG 2000 and WebP: chains of parts, each with its length and its name, some of which contain an EXIF block:
//
//     PNG        0x89 "PNG" ... (8) | length (4) | name (4) | data | sum (4) ...    "eXIf", or a text "Raw profile type exif"
//     JPEG 2000  length (4), all of it | name (4) | data ...    "uuid", whose data begin with the 16 bytes of EXIF's identifier
//     WebP       "RIFF" | length (4) | "WEBP" | name (4) | length (4) | data, padded to even ...    "EXIF"
//
// Numbers are big-endian, except in WebP, where they are little-endian.

#include "platform/foundation/byte_order.h"
#include "platform/imageio/comments/comment_splices.h"
#include "platform/imageio/exif/tiff_comment.h"
#include "platform/imageio/png/png_chunks.h"
#include "platform/imageio/png/png_exif_text.h"

#include <QtEndian>

#include <algorithm>

namespace platform {
namespace {

constexpr int mostParts = 65536;

/** One part of a file with its header. */
struct Part
{
    QByteArray name;
    qint64 at = 0;
    qint64 size = 0;   ///< all of it
    qint64 dataAt = 0; ///< of its contents
    qint64 dataSize = 0;
    bool isValid = false;
};

QByteArray dataOf(QFile &file, const Part &part)
{
    return part.dataSize <= largestExifBlock ? bytesOf(file, part.dataAt, part.dataSize) : QByteArray();
}

template<typename Next> QList<Part> parts(qint64 start, qint64 end, Next next)
{
    QList<Part> all;
    for (qint64 at = start; at < end && all.size() < mostParts;) {
        const Part part = next(at);
        if (!part.isValid || part.size <= 0)
            break;
        all.append(part);
        at += part.size;
    }
    return all;
}

const Part *firstNamed(const QList<Part> &all, const QByteArray &name)
{
    const auto found = std::find_if(all.begin(), all.end(), [&](const Part &part) { return part.name == name; });
    return found == all.end() ? nullptr : &*found;
}

QByteArray littleEndian32(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

Part pngPart(QFile &file, qint64 at)
{
    constexpr qint64 frame = 12;
    const QByteArray head = bytesOf(file, at, 8);
    if (head.isEmpty())
        return {};
    const qint64 size = qFromBigEndian<quint32>(head.constData());
    return {head.mid(4), at, size + frame, at + 8, size, true};
}

/** The chunk with the EXIF block, and the block: eXIf, or a text that represents it. */
struct PngExif
{
    Part chunk;
    QByteArray block;
};

PngExif pngExif(QFile &file, const QList<Part> &chunks)
{
    if (const Part *chunk = firstNamed(chunks, "eXIf")) {
        const QByteArray block = dataOf(file, *chunk);
        const bool isNamed = block.startsWith(QByteArrayView("Exif\0\0", 6)); // as in a JPEG, by mistake
        return {*chunk, isNamed ? block.mid(6) : block};
    }
    for (const Part &chunk : chunks) {
        const bool isText = chunk.name == "tEXt" || chunk.name == "zTXt";
        const QByteArray block = isText ? exifOfPngText(chunk.name, dataOf(file, chunk)) : QByteArray();
        if (!block.isEmpty())
            return {chunk, block};
    }
    return {};
}

Part box(QFile &file, qint64 at)
{
    const QByteArray head = bytesOf(file, at, 8);
    if (head.isEmpty())
        return {};
    const quint32 claimed = qFromBigEndian<quint32>(head.constData());
    qint64 frame = 8;
    qint64 size = claimed == 0 ? file.size() - at : qint64(claimed);
    if (claimed == 1) {
        const QByteArray large = bytesOf(file, at + 8, 8);
        frame = 16;
        size = large.isEmpty() ? 0 : qint64(qFromBigEndian<quint64>(large.constData()));
    }
    if (size < frame || size > file.size() - at)
        return {};
    return {head.mid(4), at, size, at + frame, size - frame, true};
}

Part riffChunk(QFile &file, qint64 at)
{
    const QByteArray head = bytesOf(file, at, 8);
    if (head.isEmpty())
        return {};
    const qint64 size = qFromLittleEndian<quint32>(head.constData() + 4);
    return {head.left(4), at, 8 + size + size % 2, at + 8, size, size <= file.size() - at - 8};
}

QByteArray riffBytes(const QByteArray &name, const QByteArray &data)
{
    return name + littleEndian32(quint32(data.size())) + data + QByteArray(data.size() % 2, '\0');
}

/** The header of the extended form for a file that has only a picture; empty if its size is unknown. */
QByteArray webpHeader(QFile &file, const Part &picture)
{
    const QByteArray head = bytesOf(file, picture.dataAt, 10);
    quint32 width = 0;
    quint32 height = 0;
    bool hasAlpha = false;
    if (picture.name == "VP8 " && head.mid(3, 3) == QByteArray("\x9d\x01\x2a", 3)) {
        width = qFromLittleEndian<quint16>(head.constData() + 6) & 0x3fff;
        height = qFromLittleEndian<quint16>(head.constData() + 8) & 0x3fff;
    } else if (picture.name == "VP8L" && head.startsWith('\x2f')) {
        const quint32 bits = qFromLittleEndian<quint32>(head.constData() + 1);
        width = (bits & 0x3fff) + 1;
        height = (bits >> 14 & 0x3fff) + 1;
        hasAlpha = (bits >> 28 & 1) != 0;
    }
    if (width == 0 || height == 0)
        return {};
    QByteArray data(4, '\0');
    data[0] = hasAlpha ? 0x10 : 0;
    return riffBytes("VP8X", data + littleEndian32(width - 1).left(3) + littleEndian32(height - 1).left(3));
}

CommentSplices withRiffSize(QFile &file, QList<Splice> splices)
{
    constexpr qint64 mostBytes = 0xfffffffe;
    const QByteArray stated = bytesOf(file, 4, 4);
    if (stated.isEmpty())
        return damagedFile();
    qint64 size = qint64(qFromLittleEndian<quint32>(stated.constData()));
    for (const Splice &splice : splices)
        size += splice.inserted.size() - splice.removed;
    if (size > mostBytes)
        return commentTooLong();
    splices.prepend({4, 4, littleEndian32(quint32(size))});
    return splices;
}

} // namespace

CommentSplices pngCommentSplices(QFile &file, const QString &comment)
{
    const QList<Part> chunks = parts(8, file.size(), [&](qint64 at) { return pngPart(file, at); });
    if (chunks.isEmpty() || chunks.first().name != "IHDR")
        return damagedFile();
    const PngExif old = pngExif(file, chunks);
    const qint64 at = old.chunk.isValid ? old.chunk.at : chunks.first().size + 8;
    if (old.chunk.size > file.size() - at)
        return damagedFile();
    const QByteArray block = exifBlockWithUserComment(old.block, comment);
    if (block.isEmpty())
        return damagedFile();
    QByteArray chunk;
    appendPngChunk(chunk, "eXIf", block);
    return QList<Splice>{{at, old.chunk.size, chunk}};
}

CommentSplices jpeg2000CommentSplices(QFile &file, const QString &comment)
{
    static const QByteArray exifIdentifier = "JpgTiffExif->JP2";
    const QList<Part> boxes = parts(0, file.size(), [&](qint64 at) { return box(file, at); });
    const Part *pixels = firstNamed(boxes, "jp2c");
    if (!pixels) // a bare codestream has no place for it
        return failure(ErrorCode::Unsupported, QStringLiteral("this type of file cannot hold a comment"));
    const auto old = std::find_if(boxes.begin(), boxes.end(), [&](const Part &part) {
        return part.name == "uuid" && bytesOf(file, part.dataAt, exifIdentifier.size()) == exifIdentifier;
    });
    const bool isThere = old != boxes.end();
    const QByteArray before = isThere ? dataOf(file, *old).mid(exifIdentifier.size()) : QByteArray();
    const QByteArray block = exifBlockWithUserComment(before, comment);
    if (block.isEmpty())
        return damagedFile();
    const QByteArray data = exifIdentifier + block;
    const Splice splice{isThere ? old->at : pixels->at, isThere ? old->size : 0,
                        bigEndian(quint32(data.size() + 8)) + "uuid" + data};
    const bool movesPixels = splice.removed != splice.inserted.size() && splice.at < pixels->at;
    if (movesPixels && firstNamed(boxes, "ftbl")) // it has a table of file offsets
        return failure(ErrorCode::Unsupported, QStringLiteral("this type of file cannot hold a comment"));
    return QList<Splice>{splice};
}

CommentSplices webpCommentSplices(QFile &file, const QString &comment)
{
    const QByteArray head = bytesOf(file, 0, 12);
    const qint64 end =
        head.isEmpty() ? 0 : std::min<qint64>(file.size(), 8 + qFromLittleEndian<quint32>(head.constData() + 4));
    const QList<Part> chunks = parts(12, end, [&](qint64 at) { return riffChunk(file, at); });
    if (chunks.isEmpty())
        return damagedFile();
    QList<Splice> splices;
    if (chunks.first().name == "VP8X") {
        const QByteArray flags = bytesOf(file, chunks.first().dataAt, 1);
        constexpr char hasExif = 0x08;
        if (flags.isEmpty())
            return damagedFile();
        splices.append({chunks.first().dataAt, 1, QByteArray(1, char(flags.at(0) | hasExif))});
    } else {
        QByteArray header = webpHeader(file, chunks.first());
        if (header.isEmpty())
            return damagedFile();
        header[8] = char(header.at(8) | 0x08);
        splices.append({12, 0, header});
    }
    const Part *old = firstNamed(chunks, "EXIF");
    const Part *xmp = firstNamed(chunks, "XMP ");
    QByteArray block = old ? dataOf(file, *old) : QByteArray();
    const QByteArray name("Exif\0\0", 6);
    const bool isNamed = block.startsWith(name);
    block = exifBlockWithUserComment(isNamed ? block.mid(name.size()) : block, comment);
    if (block.isEmpty())
        return damagedFile();
    const qint64 at = old ? old->at : xmp ? xmp->at : chunks.last().at + chunks.last().size;
    const qint64 removed = old ? std::min(old->size, file.size() - old->at) : 0;
    splices.append({std::min(at, file.size()), removed, riffBytes("EXIF", isNamed ? name + block : block)});
    return withRiffSize(file, splices);
}

} // namespace platform
