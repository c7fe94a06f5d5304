#include "platform/imageio/png/png_chunks.h"

#include "platform/imageio/bytes/deflate.h"

#include <QtEndian>

#include <algorithm>
#include <array>

// A PNG is 8 bytes of signature and then chunks up to IEND; numbers are big-endian:
//
//     length of the data (4) | name (4) | data | sum of name and data (4)

namespace platform {
namespace {

constexpr qsizetype signatureSize = 8;
constexpr qsizetype headSize = 8; // length and name
constexpr qsizetype sumSize = 4;
/** Nobody has written a text longer than this. */
constexpr qsizetype mostCarried = 16 << 20;

bool isText(const QByteArray &name)
{
    return name == "tEXt" || name == "zTXt" || name == "iTXt";
}

/** Texts with these keywords are handled as metadata already. */
bool holdsMetadata(const QByteArray &text)
{
    return text.startsWith("XML:com.adobe.xmp") || text.startsWith("Raw profile type");
}

bool isCarried(const QByteArray &name, const QByteArray &data)
{
    if (isText(name))
        return !holdsMetadata(data);
    return name == "gAMA" || name == "cHRM" || name == "sRGB";
}

} // namespace

void appendPngChunk(QByteArray &file, const char *name, const QByteArray &data)
{
    char number[sumSize];
    qToBigEndian<quint32>(quint32(data.size()), number);
    file.append(number, sumSize).append(name, 4).append(data);
    qToBigEndian<quint32>(crc32Of(data, crc32Of(QByteArray::fromRawData(name, 4))), number);
    file.append(number, sumSize);
}

void closePngChunk(QByteArray &file, const char *name, qsizetype at)
{
    char number[sumSize];
    qToBigEndian<quint32>(quint32(file.size() - at - headSize), file.data() + at);
    std::copy_n(name, sumSize, file.data() + at + sumSize);
    const QByteArray summed = QByteArray::fromRawData(file.constData() + at + sumSize, file.size() - at - sumSize);
    qToBigEndian<quint32>(crc32Of(summed), number);
    file.append(number, sumSize);
}

PngParts findPngParts(const QByteArray &bytes)
{
    PngParts parts;
    if (!bytes.startsWith("\x89PNG\r\n\x1a\n"))
        return parts;
    qsizetype at = signatureSize;
    while (at + headSize + sumSize <= bytes.size()) {
        const auto size = qsizetype(qFromBigEndian<quint32>(bytes.constData() + at));
        const qsizetype next = at + headSize + size + sumSize;
        if (next > bytes.size())
            break;
        const QByteArray name = bytes.mid(at + 4, 4);
        const QByteArray data = QByteArray::fromRawData(bytes.constData() + at + headSize, size);
        if (name == "IDAT" && parts.pixelsAt == 0)
            parts.pixelsAt = at;
        if (name == "eXIf" && parts.exif.isEmpty()) {
            parts.exif = data.startsWith(QByteArrayView("Exif\0\0", 6)) ? data.mid(6) : bytes.mid(at + headSize, size);
            parts.exifAt = at;
            parts.exifSize = next - at;
        }
        if (isCarried(name, data) && parts.carried.size() + size < mostCarried)
            parts.carried += bytes.mid(at, next - at);
        at = next;
    }
    constexpr qsizetype headerData = signatureSize + headSize;
    if (parts.pixelsAt > headerData)
        parts.pixels = QSize(qFromBigEndian<qint32>(bytes.constData() + headerData),
                             qFromBigEndian<qint32>(bytes.constData() + headerData + 4));
    parts.valid = parts.pixelsAt > 0;
    return parts;
}

namespace {

/** The chunks selected by @p isKept, by their names and data. */
template<typename Predicate> QByteArray chunksWhere(const QByteArray &chunks, Predicate isKept)
{
    QByteArray kept;
    for (qsizetype at = 0; at + headSize + sumSize <= chunks.size();) {
        const auto size = qsizetype(qFromBigEndian<quint32>(chunks.constData() + at));
        const QByteArray chunk = chunks.mid(at, headSize + size + sumSize);
        if (isKept(chunk.mid(4, 4), chunk.mid(headSize)))
            kept += chunk;
        at += chunk.size();
    }
    return kept;
}

} // namespace

QByteArray pngChunksWithTexts(const QByteArray &chunks, const QList<QByteArray> &keywords)
{
    return chunksWhere(chunks, [&](const QByteArray &name, const QByteArray &data) {
        return !isText(name) || keywords.contains(data.left(std::max<qsizetype>(0, data.indexOf('\0'))));
    });
}

QByteArray pngTextsOf(const QByteArray &chunks)
{
    return chunksWhere(chunks, [](const QByteArray &name, const QByteArray &) { return isText(name); });
}

} // namespace platform
