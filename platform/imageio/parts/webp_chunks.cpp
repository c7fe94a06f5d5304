#include "platform/imageio/parts/webp_chunks.h"

#include <QtEndian>

#include <algorithm>

// "RIFF" | length of all that follows (4) | "WEBP", then chunks; numbers are little-endian:
//
//     name (4) | length of the data (4) | data | a zero if the length is odd

namespace platform {
namespace {

constexpr qsizetype fileHead = 12;
constexpr qsizetype chunkHead = 8;

enum Flag : uchar { Animated = 0x02, HasXmp = 0x04, HasExif = 0x08, HasAlpha = 0x10, HasProfile = 0x20 };

QByteArray littleEndian(quint32 number, qsizetype bytes = 4)
{
    QByteArray made(4, '\0');
    qToLittleEndian(number, made.data());
    return made.left(bytes);
}

quint32 numberAt(const QByteArray &bytes, qsizetype at, qsizetype length)
{
    quint32 number = 0;
    for (qsizetype i = 0; i < length && at + i < bytes.size(); ++i)
        number |= quint32(uchar(bytes.at(at + i))) << (8 * i);
    return number;
}

/** The header of a picture's bitstream. */
struct Stream
{
    QSize size;
    bool hasAlpha = false;
};

Stream streamOf(const WebpChunk &chunk)
{
    constexpr int sideMask = 0x3fff;
    const QByteArray &data = chunk.data;
    if (chunk.name == "VP8 " && data.size() >= 10 && data.mid(3, 3) == QByteArray("\x9d\x01\x2a", 3))
        return {QSize(int(numberAt(data, 6, 2) & sideMask), int(numberAt(data, 8, 2) & sideMask))};
    if (chunk.name == "VP8L" && data.size() >= 5 && data.startsWith('\x2f')) {
        const quint32 bits = numberAt(data, 1, 4);
        return {QSize(int(bits & sideMask) + 1, int(bits >> 14 & sideMask) + 1), (bits >> 28 & 1) != 0};
    }
    return {};
}

bool isMetadata(const WebpChunk &chunk)
{
    return chunk.name == "EXIF" || chunk.name == "XMP ";
}

bool has(const QList<WebpChunk> &chunks, const char *name)
{
    return std::any_of(chunks.begin(), chunks.end(), [&](const WebpChunk &chunk) { return chunk.name == name; });
}

/** The header of the extended form, unchanged except for its metadata flags. */
QByteArray headerFor(const QList<WebpChunk> &chunks, bool hasExif, bool hasXmp)
{
    constexpr qsizetype headerBytes = 10;
    QByteArray header;
    if (!chunks.isEmpty() && chunks.first().name == "VP8X" && chunks.first().data.size() == headerBytes) {
        header = QByteArray(chunks.first().data.constData(), headerBytes);
    } else {
        const Stream stream = chunks.isEmpty() ? Stream() : streamOf(chunks.first());
        if (stream.size.isEmpty())
            return {};
        const int flags = (stream.hasAlpha ? HasAlpha : 0) | (has(chunks, "ICCP") ? HasProfile : 0);
        header = littleEndian(quint32(flags)) + littleEndian(quint32(stream.size.width() - 1), 3) +
                 littleEndian(quint32(stream.size.height() - 1), 3);
    }
    const int others = uchar(header.at(0)) & ~(HasExif | HasXmp);
    header[0] = char(others | (hasExif ? HasExif : 0) | (hasXmp ? HasXmp : 0));
    return header;
}

void append(QByteArray &file, const QByteArray &name, const QByteArray &data)
{
    file.append(name).append(littleEndian(quint32(data.size()))).append(data);
    if (data.size() % 2 != 0)
        file.append('\0');
}

} // namespace

std::optional<QList<WebpChunk>> webpChunksOf(const QByteArray &file)
{
    constexpr int mostChunks = 65536;
    if (file.size() < fileHead || !file.startsWith("RIFF") || file.mid(8, 4) != "WEBP")
        return std::nullopt;
    const qsizetype end = std::min(file.size(), chunkHead + qsizetype(numberAt(file, 4, 4)));
    QList<WebpChunk> chunks;
    for (qsizetype at = fileHead; at + chunkHead <= end && chunks.size() < mostChunks;) {
        const auto size = qsizetype(numberAt(file, at + 4, 4));
        if (size > end - at - chunkHead)
            return std::nullopt;
        chunks.append({file.mid(at, 4), QByteArray::fromRawData(file.constData() + at + chunkHead, size)});
        at += chunkHead + size + size % 2;
    }
    return chunks.isEmpty() ? std::nullopt : std::optional(chunks);
}

QSize webpSizeOf(const QList<WebpChunk> &chunks)
{
    if (chunks.isEmpty())
        return {};
    const WebpChunk &first = chunks.first();
    if (first.name == "VP8X" && first.data.size() >= 10)
        return {int(numberAt(first.data, 4, 3)) + 1, int(numberAt(first.data, 7, 3)) + 1};
    return streamOf(first).size;
}

QByteArray webpWithMetadata(const QList<WebpChunk> &chunks, const QByteArray &exif, const QByteArray &xmp)
{
    constexpr qsizetype longest = 0xfffffff6;
    QByteArray file = QByteArray("RIFF\0\0\0\0WEBP", fileHead);
    qsizetype bytes = exif.size() + xmp.size() + 4096;
    for (const WebpChunk &chunk : chunks)
        bytes += chunk.data.size() + chunkHead + 1;
    file.reserve(bytes);
    const bool wasExtended = has(chunks, "VP8X");
    if (wasExtended || !exif.isEmpty() || !xmp.isEmpty()) {
        const QByteArray header = headerFor(chunks, !exif.isEmpty(), !xmp.isEmpty());
        if (header.isEmpty())
            return {};
        append(file, "VP8X", header);
    }
    for (const WebpChunk &chunk : chunks)
        if (chunk.name != "VP8X" && !isMetadata(chunk))
            append(file, chunk.name, chunk.data);
    if (!exif.isEmpty())
        append(file, "EXIF", exif);
    if (!xmp.isEmpty())
        append(file, "XMP ", xmp);
    if (file.size() > longest)
        return {};
    return file.replace(4, 4, littleEndian(quint32(file.size() - chunkHead)));
}

} // namespace platform
