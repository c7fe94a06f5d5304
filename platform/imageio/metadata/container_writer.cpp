#include "platform/imageio/metadata/container_writer.h"

#include "platform/foundation/byte_order.h"
#include "platform/imageio/parts/boxes.h"

#include <QRegularExpression>

#include <algorithm>

namespace platform {
namespace {

const QByteArray exifIdentifier("JpgTiffExif->JP2");
const QByteArray xmpIdentifier = QByteArray::fromHex("be7acfcb97a942e89c71999491e3afac");
const QByteArray iptcIdentifier = QByteArray::fromHex("33c7a4d2b81d4723a0baf1a3e097ad38");

const Box *firstNamed(const QList<Box> &boxes, const QList<QByteArray> &names)
{
    const auto found =
        std::find_if(boxes.begin(), boxes.end(), [&](const Box &box) { return names.contains(box.name); });
    return found == boxes.end() ? nullptr : &*found;
}

/** The file without the boxes selected by @p isDropped, and with @p added before the box @p before. */
template<typename Predicate>
QByteArray rebuilt(const QByteArray &file, const QList<Box> &boxes, Predicate isDropped, const Box &before,
                   const QByteArray &added)
{
    QByteArray result;
    result.reserve(file.size() + added.size());
    for (const Box &box : boxes) {
        if (box.at == before.at)
            result += added;
        if (!isDropped(box))
            result.append(file.constData() + box.at, box.size);
    }
    return result;
}

bool isMetadataOfJpeg2000(const QByteArray &file, const Box &box)
{
    const QByteArray data = dataOf(file, box);
    return box.name == "uuid" &&
           (data.startsWith(exifIdentifier) || data.startsWith(xmpIdentifier) || data.startsWith(iptcIdentifier));
}

QByteArray identified(const QByteArray &identifier, const QByteArray &block)
{
    return block.isEmpty() ? QByteArray() : boxOf("uuid", identifier + block);
}

bool isJpegXlContainer(const QByteArray &file)
{
    return file.startsWith(QByteArray("\0\0\0\x0cJXL \x0d\x0a\x87\x0a", 12));
}

bool isMetadataOfJpegXl(const QByteArray &file, const Box &box)
{
    const QByteArray packed = box.name == "brob" ? dataOf(file, box).left(4) : QByteArray();
    return box.name == "Exif" || box.name == "xml " || packed == "Exif" || packed == "xml ";
}

QByteArray jpegXlBoxes(const ContainerBlocks &blocks)
{
    const QByteArray noOffset(4, '\0');
    QByteArray boxes;
    if (!blocks.exif.isEmpty())
        boxes += boxOf("Exif", noOffset + blocks.exif);
    if (!blocks.xmp.isEmpty())
        boxes += boxOf("xml ", blocks.xmp);
    return boxes;
}

/** The contents of the end of a PDF file. */
struct PdfEnd
{
    qint64 tableAt = -1;
    qint64 objects = 0;
    QByteArray root; ///< the dictionary of the catalogue, without its brackets
    qint64 rootNumber = 0;
};

PdfEnd pdfEndOf(const QByteArray &file)
{
    constexpr qsizetype furthest = 4096;
    static const QRegularExpression end(
        QStringLiteral("trailer\\s*<<\\s*/Size (\\d+) /Root (\\d+) 0 R\\s*>>\\s*startxref\\s+(\\d+)\\s+%%EOF\\s*$"));
    const QRegularExpressionMatch match = end.match(QString::fromLatin1(file.right(furthest)));
    if (!match.hasMatch())
        return {};
    PdfEnd found{match.captured(3).toLongLong(), match.captured(1).toLongLong(), {}, match.captured(2).toLongLong()};
    const QByteArray head = '\n' + QByteArray::number(found.rootNumber) + " 0 obj\n<< ";
    const qsizetype at = file.lastIndexOf(head);
    const qsizetype close = at < 0 ? -1 : file.indexOf(" >>\nendobj", at);
    if (close < 0)
        return {};
    found.root = file.mid(at + head.size(), close - at - head.size());
    return found.root.startsWith("/Type /Catalog") ? found : PdfEnd();
}

QByteArray tableEntry(qsizetype offset)
{
    return QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
}

} // namespace

QByteArray jpeg2000WithBlocks(const QByteArray &file, const ContainerBlocks &blocks)
{
    const BoxChain chain = boxesBetween(file, 0, file.size());
    const Box *pixels = firstNamed(chain.boxes, {"jp2c"});
    if (!pixels || chain.end != file.size() || firstNamed(chain.boxes, {"ftbl"}))
        return {};
    const QByteArray added = identified(exifIdentifier, blocks.exif) + identified(xmpIdentifier, blocks.xmp) +
                             identified(iptcIdentifier, blocks.iptc);
    return rebuilt(
        file, chain.boxes, [&](const Box &box) { return isMetadataOfJpeg2000(file, box); }, *pixels, added);
}

QSize jpeg2000SizeOf(const QByteArray &file)
{
    const BoxChain chain = boxesBetween(file, 0, file.size());
    const Box *header = firstNamed(chain.boxes, {"jp2h"});
    const BoxChain inside = header ? boxesBetween(file, header->dataAt, header->at + header->size) : BoxChain();
    const Box *image = firstNamed(inside.boxes, {"ihdr"});
    if (!image || image->dataSize() < 8)
        return {};
    return {int(bigEndian32At(file, image->dataAt + 4)), int(bigEndian32At(file, image->dataAt))};
}

QByteArray jpegXlWithBlocks(const QByteArray &file, const ContainerBlocks &blocks)
{
    const QByteArray added = jpegXlBoxes(blocks);
    if (!isJpegXlContainer(file)) {
        static const QByteArray signature = boxOf("JXL ", "\x0d\x0a\x87\x0a");
        static const QByteArray type = boxOf("ftyp", QByteArray("jxl \0\0\0\0jxl ", 12));
        return added.isEmpty() ? file : signature + type + added + boxOf("jxlc", file);
    }
    const BoxChain chain = boxesBetween(file, 0, file.size());
    const Box *pixels = firstNamed(chain.boxes, {"jxlc", "jxlp"});
    if (!pixels || chain.end != file.size())
        return {};
    return rebuilt(
        file, chain.boxes, [&](const Box &box) { return isMetadataOfJpegXl(file, box); }, *pixels, added);
}

ContainerBlocks jpegXlBlocks(const QByteArray &file)
{
    ContainerBlocks blocks;
    if (!isJpegXlContainer(file))
        return blocks;
    constexpr qsizetype largest = 64 << 20;
    for (const Box &box : boxesBetween(file, 0, file.size()).boxes) {
        if (box.dataSize() > largest)
            continue;
        const QByteArray data = file.mid(box.dataAt, box.dataSize());
        if (box.name == "Exif" && blocks.exif.isEmpty() && data.size() > 4)
            blocks.exif = data.mid(4 + qsizetype(bigEndian32At(data, 0)));
        if (box.name == "xml " && blocks.xmp.isEmpty() && data.contains("adobe:ns:meta"))
            blocks.xmp = data;
    }
    return blocks;
}

QByteArray pdfWithXmp(const QByteArray &file, const QByteArray &xmp)
{
    const PdfEnd end = pdfEndOf(file);
    if (end.tableAt < 0 || end.tableAt >= file.size())
        return {};
    // An incremental update, with another catalogue of the same number.
    const QByteArray stream = QByteArray::number(end.objects);
    const QByteArray catalogue = QByteArray::number(end.rootNumber);
    QByteArray result = file;
    const qsizetype catalogueAt = result.size();
    result += catalogue + " 0 obj\n<< " + end.root + " /Metadata " + stream + " 0 R >>\nendobj\n";
    const qsizetype streamAt = result.size();
    result += stream + " 0 obj\n<< /Type /Metadata /Subtype /XML /Length " + QByteArray::number(xmp.size()) +
              " >>\nstream\n" + xmp + "\nendstream\nendobj\n";
    const qsizetype table = result.size();
    result += "xref\n" + catalogue + " 1\n" + tableEntry(catalogueAt) + stream + " 1\n" + tableEntry(streamAt);
    return result + "trailer\n<< /Size " + QByteArray::number(end.objects + 1) + " /Root " + catalogue + " 0 R /Prev " +
           QByteArray::number(end.tableAt) + " >>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n";
}

} // namespace platform
