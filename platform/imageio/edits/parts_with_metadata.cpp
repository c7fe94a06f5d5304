// Where each kind of file that is a chain of parts stores its metadata:
//
//     JPEG       segments "Exif", "http://ns.adobe.com/xap/1.0/" and "Photoshop 3.0" before the first scan
//     PNG        chunks "eXIf", "iTXt" with the keyword XML:com.adobe.xmp, and the texts that older programs make of blocks
//     WebP       chunks "EXIF" and "XMP ", announced in the header
//     JPEG 2000  boxes "uuid" with 16 bytes that say what it is
//     Photoshop  resources 1028, 1058 and 1060, between the colours and the layers

#include "platform/foundation/byte_order.h"
#include "platform/imageio/bytes/deflate.h"
#include "platform/imageio/edits/block_editor.h"
#include "platform/imageio/edits/iptc_edit.h"
#include "platform/imageio/jpeg/jpeg_segments.h"
#include "platform/imageio/parts/boxes.h"
#include "platform/imageio/png/png_chunks.h"
#include "platform/imageio/png/png_exif_text.h"

#include <QCoreApplication>
#include <QtEndian>

#include <algorithm>

namespace platform {
namespace {

const QByteArray exifName("Exif\0\0", 6);
const QByteArray xmpName("http://ns.adobe.com/xap/1.0/\0", 29);
const QByteArray photoshopName("Photoshop 3.0\0", 14);

/** In order of position; insertions at the same position keep their order. */
Splices inOrder(QList<Splice> splices, qint64 fileSize)
{
    std::stable_sort(splices.begin(), splices.end(), [](const Splice &a, const Splice &b) {
        return a.at != b.at ? a.at < b.at : (a.removed == 0) > (b.removed == 0);
    });
    QList<Splice> joined;
    for (const Splice &each : std::as_const(splices)) {
        if (!joined.isEmpty() && joined.last().at == each.at && joined.last().removed == 0) {
            joined.last().removed = each.removed;
            joined.last().inserted += each.inserted;
        } else if (!joined.isEmpty() && each.at < joined.last().at + joined.last().removed) {
            return damagedMetadata();
        } else {
            joined.append(each);
        }
    }
    if (!joined.isEmpty() && joined.last().at + joined.last().removed > fileSize)
        return damagedMetadata();
    return joined;
}

// JPEG

constexpr qsizetype largestPayload = 0xffff - 2;

/** The block in as many segments as it needs, each preceded by the name. */
QByteArray segmentsOf(uchar marker, const QByteArray &name, const QByteArray &block)
{
    QByteArray all;
    const qsizetype room = largestPayload - name.size();
    for (qsizetype at = 0; at < block.size(); at += room) {
        const QByteArray part = name + block.mid(at, room);
        all += QByteArray("\xff", 1) + char(marker) + bigEndian(quint16(part.size() + 2)) + part;
    }
    return all;
}

struct JpegBlock
{
    QList<JpegSegments::Range> ranges;
    QByteArray data;
};

JpegBlock jpegBlock(const QByteArray &bytes, const QList<JpegSegments::Range> &segments, const QByteArray &name)
{
    constexpr qsizetype head = 4; // marker and length
    JpegBlock block;
    for (const JpegSegments::Range &range : segments) {
        const QByteArray payload = QByteArray::fromRawData(bytes.constData() + range.start + head, range.size - head);
        if (!payload.startsWith(name))
            continue;
        block.ranges.append(range);
        block.data += payload.mid(name.size());
        if (name == xmpName)
            break; // the first one counts
    }
    return block;
}

void putJpegBlock(QList<Splice> &splices, const JpegBlock &block, const QByteArray &segments, qsizetype otherwiseAt)
{
    if (block.ranges.isEmpty() && !segments.isEmpty())
        splices.append({otherwiseAt, 0, segments});
    for (qsizetype i = 0; i < block.ranges.size(); ++i)
        splices.append({block.ranges[i].start, block.ranges[i].size, i == 0 ? segments : QByteArray()});
}

Splices jpegSplices(const QByteArray &bytes, BlockEditor &editor)
{
    const JpegSegments segments = findJpegSegments(bytes);
    if (!segments.valid)
        return damagedMetadata();
    const JpegBlock oldExif{segments.exifRanges, segments.exif};
    const JpegBlock oldXmp = jpegBlock(bytes, segments.metadata, xmpName);
    const JpegBlock oldResources = jpegBlock(bytes, segments.metadata, photoshopName);
    const QByteArray exif = editor.exif(oldExif.data);
    const QByteArray xmp = editor.xmp(oldXmp.data);
    const QByteArray resources = editor.resources(oldResources.data);
    if (editor.isDamaged())
        return damagedMetadata();
    if (xmp.size() > largestPayload - xmpName.size())
        return tooMuchMetadata();
    // Not all readers know that EXIF may continue in a second segment.
    if (oldExif.ranges.size() < 2 && exif.size() > largestPayload - exifName.size())
        return tooMuchMetadata();
    QList<Splice> splices;
    const qsizetype behindExif =
        oldExif.ranges.isEmpty() ? segments.insertAt : oldExif.ranges.last().start + oldExif.ranges.last().size;
    if (exif != oldExif.data)
        putJpegBlock(splices, oldExif, segmentsOf(0xe1, exifName, exif), segments.insertAt);
    if (xmp != oldXmp.data)
        putJpegBlock(splices, oldXmp, segmentsOf(0xe1, xmpName, xmp), behindExif);
    if (resources != oldResources.data)
        putJpegBlock(splices, oldResources, segmentsOf(0xed, photoshopName, resources), behindExif);
    return inOrder(splices, bytes.size());
}

// PNG, WebP, JPEG 2000: parts with a name

struct Part
{
    QByteArray name;
    qsizetype at = 0;
    qsizetype size = 0; ///< all of it
    QByteArray data;
};

QList<Part> pngChunks(const QByteArray &bytes)
{
    constexpr qsizetype frame = 12;
    constexpr int mostChunks = 65536;
    QList<Part> chunks;
    for (qsizetype at = 8; at + frame <= bytes.size() && chunks.size() < mostChunks;) {
        const auto size = qsizetype(bigEndian32At(bytes, at));
        if (size > bytes.size() - at - frame)
            break;
        chunks.append(
            {bytes.mid(at + 4, 4), at, size + frame, QByteArray::fromRawData(bytes.constData() + at + 8, size)});
        at += size + frame;
    }
    return chunks;
}

QByteArray pngChunk(const char *name, const QByteArray &data)
{
    QByteArray chunk;
    if (!data.isEmpty())
        appendPngChunk(chunk, name, data);
    return chunk;
}

/** The chunk that contains a block, and the block. */
struct Held
{
    const Part *part = nullptr;
    QByteArray block;
};

Held pngExif(const QList<Part> &chunks)
{
    for (const Part &chunk : chunks)
        if (chunk.name == "eXIf") // some have the name of the segment first, as in a JPEG
            return {&chunk, chunk.data.startsWith(exifName) ? chunk.data.mid(6) : chunk.data};
    for (const Part &chunk : chunks)
        if (chunk.name == "tEXt" || chunk.name == "zTXt")
            if (const QByteArray block = exifOfPngText(chunk.name, chunk.data); !block.isEmpty())
                return {&chunk, block};
    return {};
}

Held pngXmp(const QList<Part> &chunks)
{
    for (const Part &chunk : chunks)
        if (const auto packet = xmpOfPngText(chunk.name, chunk.data))
            return {&chunk, packet->mid(std::max<qsizetype>(0, packet->indexOf('<')))};
    return {};
}

const QByteArray iptcKeyword("Raw profile type iptc\0", 22);

/** IPTC as older programs write it into a text: a name, a count of bytes, and digits. */
Held pngIptc(const QList<Part> &chunks)
{
    constexpr qsizetype longest = 1 << 20;
    for (const Part &chunk : chunks) {
        if ((chunk.name != "tEXt" && chunk.name != "zTXt") || !chunk.data.startsWith(iptcKeyword))
            continue;
        const QByteArray text = chunk.name == "zTXt" ? inflatedText(chunk.data.mid(iptcKeyword.size() + 1), longest)
                                                     : chunk.data.mid(iptcKeyword.size());
        const QList<QByteArray> lines = text.trimmed().split('\n');
        if (lines.size() >= 3)
            return {&chunk, QByteArray::fromHex(lines.mid(2).join())};
    }
    return {};
}

QByteArray pngIptcText(const QByteArray &block)
{
    constexpr qsizetype lineBytes = 36;
    QByteArray text = "\niptc\n" + QByteArray::number(block.size()).rightJustified(8, ' ') + '\n';
    for (qsizetype at = 0; at < block.size(); at += lineBytes)
        text += block.mid(at, lineBytes).toHex() + '\n';
    return iptcKeyword + QByteArray(1, '\0') + deflated(text);
}

void putPart(QList<Splice> &splices, const Part *old, const QByteArray &now, qsizetype otherwiseAt)
{
    if (old)
        splices.append({old->at, old->size, now});
    else if (!now.isEmpty())
        splices.append({otherwiseAt, 0, now});
}

QByteArray editedIptcBlock(BlockEditor &editor, const QByteArray &block)
{
    if (!block.startsWith("8BIM"))
        return editor.iptc(block, IptcWhere::OnlyIfThere);
    return editor.resources(block);
}

Splices pngSplices(const QByteArray &bytes, BlockEditor &editor)
{
    const QList<Part> chunks = pngChunks(bytes);
    if (chunks.isEmpty() || chunks.first().name != "IHDR")
        return damagedMetadata();
    const Held oldExif = pngExif(chunks);
    const Held oldXmp = pngXmp(chunks);
    const Held oldIptc = pngIptc(chunks);
    const QByteArray exif = editor.exif(oldExif.block);
    const QByteArray xmp = editor.xmp(oldXmp.block);
    const QByteArray iptc = oldIptc.part ? editedIptcBlock(editor, oldIptc.block) : QByteArray();
    if (editor.isDamaged())
        return damagedMetadata();
    const qsizetype behindHead = chunks.first().at + chunks.first().size;
    QList<Splice> splices;
    if (exif != oldExif.block)
        putPart(splices, oldExif.part, pngChunk("eXIf", exif), behindHead);
    if (xmp != oldXmp.block)
        putPart(splices, oldXmp.part, pngChunk("iTXt", QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22) + xmp),
                behindHead);
    if (iptc != oldIptc.block)
        putPart(splices, oldIptc.part, iptc.isEmpty() ? QByteArray() : pngChunk("zTXt", pngIptcText(iptc)), behindHead);
    return inOrder(splices, bytes.size());
}

// JPEG 2000

const QByteArray exifIdentifier("JpgTiffExif->JP2");
const QByteArray xmpIdentifier = QByteArray::fromHex("be7acfcb97a942e89c71999491e3afac");
const QByteArray iptcIdentifier = QByteArray::fromHex("33c7a4d2b81d4723a0baf1a3e097ad38");

struct HeldBox
{
    const Box *box = nullptr;
    QByteArray block;
};

HeldBox boxOfKind(const QByteArray &bytes, const QList<Box> &boxes, const QByteArray &identifier)
{
    for (const Box &box : boxes)
        if (box.name == "uuid" && dataOf(bytes, box).startsWith(identifier))
            return {&box, dataOf(bytes, box).mid(identifier.size())};
    return {};
}

Splices jpeg2000Splices(const QByteArray &bytes, BlockEditor &editor)
{
    const QList<Box> boxes = boxesBetween(bytes, 0, bytes.size()).boxes;
    const auto has = [&](const char *name) {
        return std::find_if(boxes.begin(), boxes.end(), [&](const Box &box) { return box.name == name; });
    };
    const auto pixels = has("jp2c");
    if (pixels == boxes.end()) // a bare codestream has no place for it
        return failure(ErrorCode::Unsupported,
                       QCoreApplication::translate("platform", "this type of file cannot hold metadata of its own"));
    const HeldBox oldExif = boxOfKind(bytes, boxes, exifIdentifier);
    const HeldBox oldXmp = boxOfKind(bytes, boxes, xmpIdentifier);
    const HeldBox oldIptc = boxOfKind(bytes, boxes, iptcIdentifier);
    const bool isNamed = oldExif.block.startsWith(exifName);
    const QByteArray exif = editor.exif(isNamed ? oldExif.block.mid(exifName.size()) : oldExif.block);
    const QByteArray xmp = editor.xmp(oldXmp.block);
    const QByteArray iptc = oldIptc.box ? editor.iptc(oldIptc.block, IptcWhere::OnlyIfThere) : QByteArray();
    if (editor.isDamaged())
        return damagedMetadata();
    QList<Splice> splices;
    const auto put = [&](const HeldBox &old, const QByteArray &identifier, const QByteArray &block) {
        const QByteArray box = block.isEmpty() ? QByteArray() : boxOf("uuid", identifier + block);
        if (old.box)
            splices.append({old.box->at, old.box->size, box});
        else if (!box.isEmpty())
            splices.append({pixels->at, 0, box});
    };
    if (exif != oldExif.block && exif != editor.stated().exif)
        put(oldExif, exifIdentifier, exif);
    if (xmp != oldXmp.block)
        put(oldXmp, xmpIdentifier, xmp);
    if (iptc != oldIptc.block)
        put(oldIptc, iptcIdentifier, iptc);
    const auto moves = std::any_of(splices.begin(), splices.end(), [&](const Splice &splice) {
        return splice.at <= pixels->at && splice.removed != splice.inserted.size();
    });
    if (moves && has("ftbl") != boxes.end()) // it has a table of file offsets
        return failure(ErrorCode::Unsupported,
                       QCoreApplication::translate("platform", "this type of file cannot hold metadata of its own"));
    return inOrder(splices, bytes.size());
}

// WebP

QByteArray littleEndian32(quint32 number)
{
    QByteArray bytes(4, '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

QList<Part> webpChunks(const QByteArray &bytes)
{
    constexpr qsizetype head = 8;
    constexpr int mostChunks = 65536;
    QList<Part> chunks;
    if (bytes.size() < 12)
        return chunks;
    const qsizetype end = std::min(bytes.size(), head + qsizetype(qFromLittleEndian<quint32>(bytes.constData() + 4)));
    for (qsizetype at = 12; at + head <= end && chunks.size() < mostChunks;) {
        const auto size = qsizetype(qFromLittleEndian<quint32>(bytes.constData() + at + 4));
        if (size > end - at - head)
            return {};
        const qsizetype all = std::min(bytes.size() - at, head + size + size % 2);
        chunks.append({bytes.mid(at, 4), at, all, QByteArray::fromRawData(bytes.constData() + at + head, size)});
        at += head + size + size % 2;
    }
    return chunks;
}

QByteArray riffChunk(const QByteArray &name, const QByteArray &data)
{
    if (data.isEmpty())
        return {};
    return name + littleEndian32(quint32(data.size())) + data + QByteArray(data.size() % 2, '\0');
}

/** The header of the extended form for a file that has only a picture; empty if its size is unknown. */
QByteArray webpHeader(const Part &picture)
{
    constexpr quint32 sideMask = 0x3fff;
    const QByteArray &data = picture.data;
    quint32 width = 0;
    quint32 height = 0;
    bool hasAlpha = false;
    if (picture.name == "VP8 " && data.size() >= 10 && data.mid(3, 3) == QByteArray("\x9d\x01\x2a", 3)) {
        width = qFromLittleEndian<quint16>(data.constData() + 6) & sideMask;
        height = qFromLittleEndian<quint16>(data.constData() + 8) & sideMask;
    } else if (picture.name == "VP8L" && data.size() >= 5 && data.startsWith('\x2f')) {
        const quint32 bits = qFromLittleEndian<quint32>(data.constData() + 1);
        width = (bits & sideMask) + 1;
        height = (bits >> 14 & sideMask) + 1;
        hasAlpha = (bits >> 28 & 1) != 0;
    }
    if (width == 0 || height == 0)
        return {};
    QByteArray header(4, '\0');
    header[0] = hasAlpha ? 0x10 : 0;
    return riffChunk("VP8X", header + littleEndian32(width - 1).left(3) + littleEndian32(height - 1).left(3));
}

const Part *firstNamed(const QList<Part> &parts, const char *name)
{
    const auto found = std::find_if(parts.begin(), parts.end(), [&](const Part &part) { return part.name == name; });
    return found == parts.end() ? nullptr : &*found;
}

/** Sets the flags of the present blocks, and the new length of the file. */
Splices withWebpHeads(const QByteArray &bytes, const QList<Part> &chunks, QList<Splice> splices, bool hasExif,
                      bool hasXmp)
{
    constexpr qint64 mostBytes = 0xfffffffe;
    constexpr qsizetype flagsAt = 8;
    const uchar announced = uchar((hasExif ? 0x08 : 0) | (hasXmp ? 0x04 : 0));
    if (chunks.first().name == "VP8X" && !chunks.first().data.isEmpty()) {
        const uchar others = uchar(chunks.first().data.at(0)) & uchar(~0x0c);
        splices.append({chunks.first().at + flagsAt, 1, QByteArray(1, char(others | announced))});
    } else {
        QByteArray header = webpHeader(chunks.first());
        if (header.isEmpty())
            return damagedMetadata();
        header[flagsAt] = char(uchar(header.at(flagsAt)) | announced);
        splices.append({12, 0, header});
    }
    qint64 size = qint64(qFromLittleEndian<quint32>(bytes.constData() + 4));
    for (const Splice &splice : std::as_const(splices))
        size += splice.inserted.size() - splice.removed;
    if (size > mostBytes)
        return tooMuchMetadata();
    splices.append({4, 4, littleEndian32(quint32(size))});
    return inOrder(splices, bytes.size());
}

Splices webpSplices(const QByteArray &bytes, BlockEditor &editor)
{
    const QList<Part> chunks = webpChunks(bytes);
    if (chunks.isEmpty())
        return damagedMetadata();
    const Part *oldExif = firstNamed(chunks, "EXIF");
    const Part *oldXmp = firstNamed(chunks, "XMP ");
    const QByteArray exifData = oldExif ? oldExif->data : QByteArray();
    const bool isNamed = exifData.startsWith(exifName);
    const QByteArray exif = editor.exif(isNamed ? exifData.mid(exifName.size()) : exifData);
    const QByteArray xmp = editor.xmp(oldXmp ? oldXmp->data : QByteArray());
    if (editor.isDamaged())
        return damagedMetadata();
    const qsizetype end = chunks.last().at + chunks.last().size;
    QList<Splice> splices;
    if (exif != editor.stated().exif)
        putPart(splices, oldExif, riffChunk("EXIF", isNamed ? exifName + exif : exif), oldXmp ? oldXmp->at : end);
    if (xmp != editor.stated().xmp)
        putPart(splices, oldXmp, riffChunk("XMP ", xmp), end);
    if (splices.isEmpty())
        return splices;
    return withWebpHeads(bytes, chunks, splices, !exif.isEmpty(), !xmp.isEmpty());
}

// Photoshop

Splices photoshopSplices(const QByteArray &bytes, BlockEditor &editor)
{
    constexpr qsizetype head = 26;
    const qsizetype lengthAt = head + 4 + qsizetype(bigEndian32At(bytes, head));
    const auto size = qsizetype(bigEndian32At(bytes, lengthAt));
    if (lengthAt + 4 > bytes.size() || size > bytes.size() - lengthAt - 4)
        return damagedMetadata();
    const QByteArray old = bytes.mid(lengthAt + 4, size);
    const QByteArray oldExif = resourceOf(old, resource::exif).value_or(QByteArray());
    const QByteArray oldXmp = resourceOf(old, resource::xmp).value_or(QByteArray());
    const QByteArray exif = editor.exif(oldExif);
    const QByteArray xmp = editor.xmp(oldXmp);
    QByteArray now = editor.resources(old);
    if (editor.isDamaged())
        return damagedMetadata();
    if (exif != oldExif)
        now = withResource(now, resource::exif, exif);
    if (xmp != oldXmp)
        now = withResource(now, resource::xmp, xmp);
    if (now == old)
        return QList<Splice>();
    return inOrder({{lengthAt, 4 + size, bigEndian(quint32(now.size())) + now}}, bytes.size());
}

} // namespace

Splices splicesOfParts(Content content, const QByteArray &bytes, BlockEditor &editor)
{
    switch (content) {
    case Content::Jpeg:
        return jpegSplices(bytes, editor);
    case Content::Png:
        return pngSplices(bytes, editor);
    case Content::Webp:
        return webpSplices(bytes, editor);
    case Content::Jpeg2000:
        return jpeg2000Splices(bytes, editor);
    case Content::Photoshop:
        return photoshopSplices(bytes, editor);
    default:
        return QList<Splice>();
    }
}

} // namespace platform
