#include "platform/imageio/convert/other_metadata.h"

#include "platform/file/regular_file.h"
#include "platform/foundation/byte_order.h"
#include "platform/imageio/jpeg/bare_jpeg.h"
#include "platform/imageio/jpeg/jpeg_segments.h"
#include "platform/imageio/parts/boxes.h"
#include "platform/imageio/parts/gif_blocks.h"
#include "platform/imageio/parts/webp_chunks.h"
#include "platform/imageio/png/png_chunks.h"
#include "platform/imageio/source/opened_file.h"

#include <algorithm>
#include <cmath>

namespace platform {
namespace {

constexpr qsizetype pngSignature = 8;
constexpr qsizetype pngFrame = 12;

std::optional<QByteArray> bytesOf(const ImageSource &source)
{
    const ImageSource::File *file = source.file();
    if (!file || file->isRaw())
        return std::nullopt;
    const std::unique_ptr<QIODevice> device = file->bytes.device();
    const QByteArray bytes = device ? device->readAll() : QByteArray();
    return device && readProblemOf(*device).isEmpty() && !bytes.isEmpty() ? std::optional(bytes) : std::nullopt;
}

/** One chunk of a PNG with its header. */
struct PngChunk
{
    QByteArray name;
    qsizetype at = 0;
    qsizetype size = 0;
};

QList<PngChunk> pngChunksOf(const QByteArray &png)
{
    QList<PngChunk> chunks;
    for (qsizetype at = pngSignature; at + pngFrame <= png.size();) {
        const PngChunk chunk{png.mid(at + 4, 4), at, pngFrame + qsizetype(bigEndian32At(png, at))};
        if (chunk.size > png.size() - at)
            break;
        chunks.append(chunk);
        at += chunk.size;
        if (chunk.name == "IEND")
            break;
    }
    return chunks;
}

bool isPictureOfPng(const QByteArray &name)
{
    static const QList<QByteArray> others = {"tRNS", "gAMA", "cHRM", "sRGB", "iCCP", "sBIT", "bKGD", "hIST",
                                             "pHYs", "cICP", "mDCV", "cLLI", "acTL", "fcTL", "fdAT"};
    const bool isCritical = !name.isEmpty() && uchar(name.at(0)) < 'a';
    return isCritical || others.contains(name);
}

QByteArray physicalSize(double dpi)
{
    constexpr double inchesPerMetre = 1 / 0.0254;
    const QByteArray dots = bigEndian(quint32(std::lround(dpi * inchesPerMetre)));
    QByteArray chunk;
    appendPngChunk(chunk, "pHYs", dots + dots + '\x01');
    return chunk;
}

QByteArray barePng(const QByteArray &png, std::optional<double> dpi)
{
    const QList<PngChunk> chunks = pngChunksOf(png);
    if (chunks.isEmpty() || chunks.last().name != "IEND")
        return {};
    QByteArray bare = png.left(pngSignature);
    bare.reserve(png.size());
    for (const PngChunk &chunk : chunks) {
        if (isPictureOfPng(chunk.name) && !(dpi && chunk.name == "pHYs"))
            bare.append(png.constData() + chunk.at, chunk.size);
        if (dpi && chunk.name == "IHDR")
            bare += physicalSize(*dpi);
    }
    return bare;
}

/** Sets only what the JFIF segment states; a file without one states it in EXIF. */
QByteArray bareJpeg(const QByteArray &jpeg, std::optional<double> dpi)
{
    constexpr qsizetype unitAt = 7;
    constexpr double mostDots = 65535;
    QByteArray bare = withoutMetadata(jpeg);
    const JpegSegments segments = findJpegSegments(bare);
    const qsizetype at = bare.indexOf("JFIF", 2);
    if (!segments.valid)
        return {};
    if (dpi && !segments.jfif.isEmpty() && at == 6 && *dpi < mostDots) {
        const QByteArray dots = bigEndian(quint16(std::max(1L, std::lround(*dpi))));
        bare.replace(at + unitAt, 5, '\x01' + dots + dots);
    }
    return bare;
}

QByteArray bareWebp(const QByteArray &webp)
{
    static const QList<QByteArray> kept = {"VP8X", "VP8 ", "VP8L", "ALPH", "ANIM", "ANMF", "ICCP"};
    auto chunks = webpChunksOf(webp);
    if (!chunks)
        return {};
    chunks->removeIf([](const WebpChunk &chunk) { return !kept.contains(chunk.name); });
    return webpWithMetadata(*chunks, {}, {});
}

QByteArray bareBoxes(const QByteArray &file, const QList<QByteArray> &dropped)
{
    const BoxChain chain = boxesBetween(file, 0, file.size());
    QByteArray bare;
    for (const Box &box : chain.boxes)
        if (!dropped.contains(box.name))
            bare.append(file.constData() + box.at, box.size);
    return bare;
}

bool statesItsResolution(const QByteArray &jpeg2000)
{
    for (const Box &header : boxesBetween(jpeg2000, 0, jpeg2000.size()).boxes)
        if (header.name == "jp2h")
            for (const Box &box : boxesBetween(jpeg2000, header.dataAt, header.at + header.size).boxes)
                if (box.name == "res ")
                    return true;
    return false;
}

/** The file with nothing but its pictures and their colours; empty if that cannot be done. */
QByteArray bareFile(const QByteArray &file, Content content, std::optional<double> dpi)
{
    switch (content) {
    case Content::Jpeg:
        return bareJpeg(file, dpi);
    case Content::Png:
        return barePng(file, dpi);
    case Content::Webp:
        return bareWebp(file);
    case Content::Gif: {
        const GifParts parts = gifPartsOf(file);
        return parts.valid ? gifWithMetadata(file.left(parts.end), parts, {}, {}) : QByteArray();
    }
    case Content::Jpeg2000: // what its header states would contradict EXIF
        return dpi && statesItsResolution(file) ? QByteArray()
                                                : bareBoxes(file, {"uuid", "xml ", "uinf", "jumb", "jp2i"});
    case Content::JpegXl:
        // The data that restores the original JPEG relies on unchanged boxes.
        return file.startsWith("\xff\x0a") ? file : bareBoxes(file, {"Exif", "xml ", "brob", "jumb", "jbrd"});
    default:
        return {};
    }
}

/** The resolution that the source states and its bare file does not. */
Metadata withKnownResolution(const ImageSource &source, const Metadata &metadata, const QByteArray &bare,
                             std::optional<double> dpi)
{
    const ImageSource::File &file = *source.file();
    const bool isInFile =
        (file.content == Content::Jpeg && findJpegSegments(bare).jfif.mid(7, 1) > QByteArray(1, '\0')) ||
        (file.content == Content::Png && bare.contains("pHYs"));
    if (file.content == Content::Gif)
        return metadata;
    if (dpi)
        return isInFile && metadata.resolution().isEmpty() ? metadata : metadata.withResolution(*dpi, *dpi);
    const Result<Metadata> before = source.metadata();
    const QSizeF stated = before ? before->resolution() : QSizeF();
    const bool isLost = metadata.resolution().isEmpty() && !stated.isEmpty() && !isInFile;
    return isLost ? metadata.withResolution(stated.width(), stated.height()) : metadata;
}

/** Pixels that stay on their side need the tag, whatever else is left out. JPEG XL states it beside its pixels. */
Metadata withKnownOrientation(const ImageSource &source, const Metadata &metadata)
{
    const bool isElsewhere = source.orientation() == 1 || source.file()->content == Content::JpegXl;
    return isElsewhere ? metadata : metadata.statingOrientation(source.orientation());
}

/** Whether only its maker understands a segment. */
bool isOfMaker(uchar marker, const QByteArray &payload)
{
    constexpr uchar firstOfMakers = 0xe1;
    constexpr uchar lastOfMakers = 0xef;
    // EXIF and XMP, profile and index of pictures, signed statements, IPTC, colour type, quality
    static const QList<std::pair<uchar, QByteArray>> known = {
        {0xe1, "Exif"}, {0xe1, "http://ns.adobe.com/"}, {0xe2, "ICC_PROFILE"}, {0xe2, "MPF"},  {0xe2, "urn:iso:"},
        {0xeb, "JP"},   {0xed, "Photoshop 3.0"},        {0xee, "Adobe"},       {0xec, "Ducky"}};
    return marker >= firstOfMakers && marker <= lastOfMakers &&
           std::none_of(known.begin(), known.end(), [&](const std::pair<uchar, QByteArray> &each) {
               return each.first == marker && payload.startsWith(each.second);
           });
}

PartsBeside partsOfJpeg(const QByteArray &jpeg)
{
    PartsBeside parts;
    const JpegSegments segments = findJpegSegments(jpeg);
    for (const JpegSegments::Range &range : segments.bound)
        if (jpeg.mid(range.start + 4, 3) == "MPF")
            parts |= PartBeside::FurtherPictures;
    for (qsizetype at = 2; at + 4 <= jpeg.size() && uchar(jpeg.at(at)) == 0xff && uchar(jpeg.at(at + 1)) != 0xda;) {
        constexpr qsizetype longestName = 32;
        const auto marker = uchar(jpeg.at(at + 1));
        const QByteArray payload = jpeg.mid(at + 4, longestName);
        if (marker == 0xeb && payload.startsWith("JP"))
            parts |= PartBeside::Credentials;
        if (marker == 0xe1 && payload.startsWith("http://ns.adobe.com/xmp/ext"))
            parts |= PartBeside::ExtendedXmp;
        if (isOfMaker(marker, payload))
            parts |= PartBeside::OfMakers;
        at += 2 + qFromBigEndian<quint16>(jpeg.constData() + at + 2);
    }
    if (const qsizetype end = endOfJpeg(jpeg); end > 0 && end < jpeg.size())
        parts |= PartBeside::BehindTheEnd;
    return parts;
}

PartsBeside partsOfPng(const QByteArray &png)
{
    PartsBeside parts;
    const QList<PngChunk> chunks = pngChunksOf(png);
    for (const PngChunk &chunk : chunks)
        if (chunk.name == "caBX")
            parts |= PartBeside::Credentials;
    if (!chunks.isEmpty() && chunks.last().name == "IEND" && chunks.last().at + chunks.last().size < png.size())
        parts |= PartBeside::BehindTheEnd;
    return parts;
}

PartsBeside partsOfWebp(const QByteArray &webp)
{
    PartsBeside parts;
    const auto chunks = webpChunksOf(webp);
    for (const WebpChunk &chunk : chunks.value_or(QList<WebpChunk>()))
        if (chunk.name == "C2PA")
            parts |= PartBeside::Credentials;
    if (chunks && webp.size() > 8 + qsizetype(qFromLittleEndian<quint32>(webp.constData() + 4)) + 1)
        parts |= PartBeside::BehindTheEnd;
    return parts;
}

PartsBeside partsOfBoxes(const QByteArray &file)
{
    static const QByteArray signedStatements = QByteArray::fromHex("d8fec3d61b0e483c92975828877ec481");
    PartsBeside parts;
    for (const Box &box : boxesBetween(file, 0, file.size()).boxes)
        if (box.name == "jumb" || (box.name == "uuid" && dataOf(file, box).startsWith(signedStatements)))
            parts |= PartBeside::Credentials;
    return parts;
}

PartsBeside partsIn(const QByteArray &file, Content content)
{
    switch (content) {
    case Content::Jpeg:
        return partsOfJpeg(file);
    case Content::Png:
        return partsOfPng(file);
    case Content::Webp:
        return partsOfWebp(file);
    case Content::Gif: {
        const GifParts parts = gifPartsOf(file);
        return parts.valid && parts.end < file.size() ? PartsBeside(PartBeside::BehindTheEnd) : PartsBeside();
    }
    case Content::Jpeg2000:
    case Content::JpegXl:
    case Content::Heif:
    case Content::Avif:
        return partsOfBoxes(file);
    default:
        return {};
    }
}

} // namespace

PartsBeside partsBesideOf(const ImageSource &source)
{
    const std::optional<QByteArray> file = bytesOf(source);
    if (!file)
        return {};
    PartsBeside parts = partsIn(*file, source.file()->content);
    const Result<Metadata> metadata = source.metadata();
    if (metadata && metadata->announces(Metadata::Announced::GainMap))
        parts |= PartBeside::GainMap;
    if (metadata && metadata->announces(Metadata::Announced::Motion))
        parts |= PartBeside::Motion;
    return parts;
}

std::optional<QByteArray> withOtherMetadata(const ImageSource &source, const Metadata &metadata,
                                            std::optional<double> dpi)
{
    const std::optional<QByteArray> file = bytesOf(source);
    const QByteArray bare = file ? bareFile(*file, source.file()->content, dpi) : QByteArray();
    if (bare.isEmpty())
        return std::nullopt;
    const Metadata upright = withKnownResolution(source, metadata, bare, dpi).withoutColours();
    const Metadata known = withKnownOrientation(source, upright);
    const Result<QByteArray> written = known.writtenInto(bare, Carried::Everything, source.storedSize());
    return written ? std::optional(*written) : std::nullopt;
}

} // namespace platform
