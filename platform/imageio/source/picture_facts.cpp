#include "platform/imageio/source/picture_facts.h"

#include "platform/file/lent_file.h"
#include "platform/file/regular_file.h"
#include "platform/imageio/codecs/whole_picture.h"
#include "platform/imageio/exif/exif_tags.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/jpeg/jpeg_segments.h"
#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/opening_watch.h"
#include "platform/imageio/tiff/camera_raw.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtEndian>

#include <functional>
#include <optional>

namespace platform {
namespace {

constexpr qint64 largestBlock = 16 << 20;
constexpr int mostChunks = 4096;

/** The blocks of a file that hold metadata. */
struct MetadataParts
{
    ExifTags exif;
    QByteArray xmp;
    bool isElsewhere = false; ///< it is stored in a way that only the full metadata reader supports
};

ExifTags tagsOfBlock(QByteArray block)
{
    if (block.startsWith(QByteArrayView("Exif\0\0", 6)))
        block.remove(0, 6);
    QBuffer buffer(&block);
    buffer.open(QIODevice::ReadOnly);
    return readExifTags(buffer);
}

QByteArray blockAt(QIODevice &file, qint64 position, qint64 size)
{
    if (size > largestBlock || position + size > file.size() || !file.seek(position))
        return {};
    return file.read(size);
}

/** XMP may be in any of the segments that can hold it. */
QByteArray xmpOfJpeg(const QByteArray &head, const JpegSegments &segments)
{
    constexpr QByteArrayView name("http://ns.adobe.com/xap/1.0/\0", 29);
    constexpr qsizetype markerAndSize = 4;
    for (const JpegSegments::Range &range : segments.metadata) {
        const QByteArray data = head.mid(range.start + markerAndSize, range.size - markerAndSize);
        if (data.startsWith(name))
            return data.mid(name.size());
    }
    return {};
}

void takePngChunk(MetadataParts &parts, const QByteArray &type, const QByteArray &data)
{
    constexpr QByteArrayView xmpKeyword("XML:com.adobe.xmp\0\0", 19); // and not compressed
    if (type == "eXIf")
        parts.exif = tagsOfBlock(data);
    else if (type == "iTXt" && data.startsWith(xmpKeyword))
        parts.xmp = data.mid(data.indexOf('<'));
    else if (type != "eXIf" && data.startsWith("Raw profile type "))
        parts.isElsewhere = true;
}

MetadataParts partsOfPng(QIODevice &file)
{
    MetadataParts parts;
    constexpr qint64 frame = 12; // size, type, check sum
    qint64 position = 8;
    for (int chunk = 0; chunk < mostChunks; ++chunk) {
        const QByteArray head = blockAt(file, position, 8);
        if (head.size() < 8)
            break;
        const qint64 size = qFromBigEndian<quint32>(head.constData());
        const QByteArray type = head.mid(4);
        if (type == "eXIf" || type == "iTXt" || type == "tEXt" || type == "zTXt")
            takePngChunk(parts, type, blockAt(file, position + 8, size));
        position += frame + size;
    }
    return parts;
}

MetadataParts partsOfWebp(QIODevice &file)
{
    MetadataParts parts;
    qint64 position = 12;
    for (int chunk = 0; chunk < mostChunks; ++chunk) {
        const QByteArray head = blockAt(file, position, 8);
        if (head.size() < 8)
            break;
        const qint64 size = qFromLittleEndian<quint32>(head.constData() + 4);
        if (head.startsWith("EXIF"))
            parts.exif = tagsOfBlock(blockAt(file, position + 8, size));
        else if (head.startsWith("XMP "))
            parts.xmp = blockAt(file, position + 8, size);
        position += 8 + size + size % 2;
    }
    return parts;
}

MetadataParts partsOf(QIODevice &file, Content content)
{
    switch (content) {
    case Content::Png:
        return partsOfPng(file);
    case Content::Webp:
        return partsOfWebp(file);
    case Content::Tiff: {
        MetadataParts parts;
        file.seek(0);
        constexpr char bigTiffMark = 43;
        const QByteArray head = file.peek(4);
        parts.isElsewhere = head.size() == 4 && (head[2] == bigTiffMark || head[3] == bigTiffMark);
        parts.exif = readExifTags(file);
        parts.xmp = parts.exif.xmp;
        return parts;
    }
    default:
        break;
    }
    MetadataParts parts;
    parts.isElsewhere = true;
    return parts;
}

void takeXmp(PictureFacts &facts, const QVariantMap &xmp)
{
    const auto text = [&xmp](const char *key) { return xmp.value(QString::fromLatin1(key)).toString().trimmed(); };
    for (const char *key : {"photoshop:DateCreated", "exif:DateTimeOriginal"})
        if (!facts.taken.isValid())
            facts.taken = statedDate(text(key));
    if (facts.camera.isEmpty())
        facts.camera = cameraName(text("tiff:Make"), text("tiff:Model"));
    for (const char *key : {"aux:Lens", "exifEX:LensModel"})
        if (facts.lens.isEmpty())
            facts.lens = text(key);
}

void takeExif(PictureFacts &facts, const ExifTags &tags)
{
    for (const QString &date : {tags.original, tags.digitized, tags.changed})
        if (!facts.taken.isValid())
            facts.taken = statedDate(date);
    facts.camera = cameraName(tags.make, tags.model);
    facts.lens = tags.lens;
}

void takeParts(PictureFacts &facts, const MetadataParts &parts)
{
    takeExif(facts, parts.exif);
    const bool isAllKnown = facts.taken.isValid() && !facts.camera.isEmpty() && !facts.lens.isEmpty();
    if (!isAllKnown && !parts.xmp.isEmpty())
        takeXmp(facts, Metadata::fromBlocks({}, parts.xmp).toProperties().value(QStringLiteral("{XMP}")).toMap());
}

void takeProperties(PictureFacts &facts, const QVariantMap &properties)
{
    const QVariantMap exif = properties.value(QStringLiteral("{Exif}")).toMap();
    const QVariantMap tiff = properties.value(QStringLiteral("{TIFF}")).toMap();
    const auto text = [](const QVariantMap &group, const char *key) {
        return group.value(QString::fromLatin1(key)).toString().trimmed();
    };
    ExifTags tags;
    tags.original = text(exif, "DateTimeOriginal");
    tags.digitized = text(exif, "DateTimeDigitized");
    tags.changed = text(tiff, "DateTime");
    tags.make = text(tiff, "Make");
    tags.model = text(tiff, "Model");
    tags.lens = text(exif, "LensModel");
    takeExif(facts, tags);
    takeXmp(facts, properties.value(QStringLiteral("{XMP}")).toMap());
}

/**
 * A JPEG has everything before its first scan; opening it for its pixels would take ten times as long. None for an odd
 * one.
 */
std::optional<PictureFacts> factsOfJpeg(QIODevice &file)
{
    const qint64 scan = startOfJpegScan(file);
    if (scan < 0 || scan > largestBlock || !isWhole(file, Content::Jpeg) || !file.seek(0))
        return {};
    const QByteArray head = file.read(scan);
    const JpegSegments segments = findJpegSegments(head);
    if (!segments.valid || segments.size.isEmpty())
        return {};
    PictureFacts facts;
    facts.typeIdentifier = typeIdentifierOf(Content::Jpeg);
    const MetadataParts parts{tagsOfBlock(segments.exif), xmpOfJpeg(head, segments)};
    constexpr int firstOnItsSide = 5;
    facts.pixels = parts.exif.orientation >= firstOnItsSide ? segments.size.transposed() : segments.size;
    takeParts(facts, parts);
    return facts;
}

bool isNamedTiff(const QString &path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    return ending == QLatin1String("tif") || ending == QLatin1String("tiff");
}

/** The raw files of most cameras are TIFF files by another name, whose picture no decoder here can read. */
PictureFacts factsOfRawFile(QIODevice &file)
{
    PictureFacts facts;
    takeExif(facts, readExifTags(file));
    return facts.camera.isEmpty() ? PictureFacts() : facts;
}

using Open = std::function<Result<ImageSource>()>;

PictureFacts factsOf(QIODevice &file, const QString &path, const Open &open)
{
    const QByteArray head = file.peek(contentHeadBytes);
    const Content content = contentOf(head);
    if (content == Content::Unknown && !isCameraRaw(head)) // some makers have a special mark for raw files
        return {};
    if (const auto known = content == Content::Jpeg ? factsOfJpeg(file) : std::nullopt)
        return *known;
    const auto source = open();
    if (!source)
        return content == Content::Tiff && !isNamedTiff(path) ? factsOfRawFile(file) : PictureFacts();
    PictureFacts facts;
    facts.pixels = source->uprightSize();
    facts.typeIdentifier = source->typeIdentifier();
    const MetadataParts parts = partsOf(file, content);
    const Result<Metadata> all = parts.isElsewhere ? source->metadata() : Metadata();
    if (!all)
        return {};
    if (parts.isElsewhere)
        takeProperties(facts, all->toProperties());
    else
        takeParts(facts, parts);
    return facts;
}

/** A picture that could not be read completely does not count as undated: it would be sorted into the wrong place. */
PictureFacts soundFacts(QIODevice &file, const QString &path, const Open &open)
{
    const PictureFacts facts = factsOf(file, path, open);
    return readProblemOf(file).isEmpty() ? facts : PictureFacts();
}

} // namespace

PictureFacts pictureFacts(const QString &path)
{
    tellOpening(path);
    NamedFile file(path);
    if (!openToRead(file))
        return {};
    return soundFacts(file, path, [&path] { return ImageSource::open(path); });
}

PictureFacts pictureFacts(const std::shared_ptr<const LentFile> &file)
{
    LentReader reader(file);
    return soundFacts(reader, file->name(), [&file] { return ImageSource::fromLent(file); });
}

QDateTime statedDate(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^\\s*(\\d{4})[-:/.] ?(\\d{1,2})[-:/.] ?(\\d{1,2})(?:(?:T| +)(\\d{1,2}): ?(\\d{1,2})(?:: "
                       "?(\\d{1,2}))?|\\s*$|[^\\d])"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return {};
    const QDate date(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt());
    if (!date.isValid() || date.year() == 0)
        return {};
    const QTime time(match.captured(4).toInt(), match.captured(5).toInt(), match.captured(6).toInt());
    return {date, time.isValid() ? time : QTime(0, 0)};
}

QString cameraName(const QString &make, const QString &model)
{
    static const QRegularExpression firm(
        QStringLiteral(
            "[ ,]+(corporation|corp|company|co|inc|ltd|ag|gmbh|camera|imaging|optical|techwin|electronics)\\b.*$"),
        QRegularExpression::CaseInsensitiveOption);
    const QString name = model.simplified();
    QString maker = make.simplified();
    maker.remove(firm);
    const auto words = maker.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words)
        if (name.startsWith(word, Qt::CaseInsensitive))
            return name;
    return (maker + QLatin1Char(' ') + name).trimmed();
}

} // namespace platform
