#include "platform/imageio/formats/formats.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace platform {
namespace {

constexpr QLatin1String latin1(const char *text)
{
    return QLatin1String(text);
}

bool isIsoMedia(const QByteArray &head, const QList<QByteArray> &brands)
{
    if (head.size() < 16 || head.mid(4, 4) != "ftyp")
        return false;
    const auto boxSize = qFromBigEndian<quint32>(head.constData());
    const qsizetype end = std::min<qsizetype>(boxSize, head.size());
    for (qsizetype at = 8; at + 4 <= end; at += 4)
        if (at != 12 && brands.contains(head.mid(at, 4)))
            return true;
    return false;
}

bool isSvg(const QByteArray &head)
{
    QByteArray text = head;
    if (text.startsWith("\xEF\xBB\xBF"))
        text.remove(0, 3);
    text = text.trimmed();
    return text.startsWith('<') && text.contains("<svg");
}

bool isTiff(const QByteArray &head)
{
    static const QList<QByteArray> marks = {QByteArray("II*\0", 4), QByteArray("MM\0*", 4), QByteArray("II+\0", 4),
                                            QByteArray("MM\0+", 4)};
    return marks.contains(head.left(4));
}

bool isMetadataOrTables(uchar marker, const QByteArray &segment)
{
    constexpr qsizetype headBytes = 4;
    const QByteArray payload = segment.mid(headBytes);
    switch (marker) {
    case 0xe0:
        return payload.startsWith("JFIF");
    case 0xe1:
        return payload.startsWith("Exif") || payload.startsWith("http");
    case 0xee:
        return payload.startsWith("Adobe");
    case 0xdb: // a table of 64 numbers of 8 or 16 bits begins with its own number
        return payload.size() > 64 && uchar(payload[0]) <= 0x13;
    default:
        return false;
    }
}

/** Two bytes at the start are not enough if other bytes precede the first segment. */
bool isJpeg(const QByteArray &head)
{
    if (!head.startsWith("\xFF\xD8"))
        return false;
    for (qsizetype at = head.indexOf('\xFF', 2); at >= 0 && at + 1 < head.size(); at = head.indexOf('\xFF', at + 1)) {
        const auto marker = uchar(head[at + 1]);
        if (at == 2)
            return true;
        if (marker != 0 && marker != 0xff)
            return isMetadataOrTables(marker, head.mid(at));
    }
    return false;
}

bool isPng(const QByteArray &head)
{
    return head.startsWith("\x89PNG\r\n\x1A\n");
}

bool isGif(const QByteArray &head)
{
    return head.startsWith("GIF87a") || head.startsWith("GIF89a");
}

bool isBmp(const QByteArray &head)
{
    return head.startsWith("BM");
}

bool isWebp(const QByteArray &head)
{
    return head.startsWith("RIFF") && head.mid(8, 4) == "WEBP";
}

bool isAvif(const QByteArray &head)
{
    return isIsoMedia(head, {"avif", "avis"});
}

bool isHeif(const QByteArray &head)
{
    return isIsoMedia(head, {"heic", "heix", "hevc", "heim", "heis", "mif1", "msf1"});
}

bool isJpeg2000(const QByteArray &head)
{
    return head.startsWith(QByteArray("\0\0\0\x0CjP  ", 8)) || head.startsWith("\xFF\x4F\xFF\x51");
}

bool isJpegXl(const QByteArray &head)
{
    return head.startsWith("\xFF\x0A") || head.startsWith(QByteArray("\0\0\0\x0CJXL \x0D\x0A\x87\x0A", 12));
}

bool isPhotoshop(const QByteArray &head)
{
    return head.startsWith("8BPS");
}

bool isPdf(const QByteArray &head)
{
    constexpr qsizetype furthest = 1024;
    return head.left(furthest).contains("%PDF-");
}

constexpr std::array<Format, 14> table = {{
    {.content = Content::Jpeg,
     .identifier = latin1("public.jpeg"),
     .extensions = latin1("jpg jpeg jpe"),
     .begins = isJpeg,
     .written = FileFormat::Jpeg,
     .keeps = {.profile = Kept::Yes,
               .cmyk = true,
               .resolution = true,
               .exif = true,
               .iptc = true,
               .xmp = true,
               .quality = true}},
    {.content = Content::Png,
     .identifier = latin1("public.png"),
     .extensions = latin1("png"),
     .begins = isPng,
     .written = FileFormat::Png,
     .keeps = {.profile = Kept::Yes,
               .alpha = true,
               .depth16 = true,
               .resolution = true,
               .exif = true,
               .iptc = true,
               .xmp = true}},
    {.content = Content::Tiff,
     .identifier = latin1("public.tiff"),
     .extensions = latin1("tiff tif"),
     .begins = isTiff,
     .written = FileFormat::Tiff,
     .keeps = {.profile = Kept::Yes,
               .alpha = true,
               .depth16 = true,
               .cmyk = true,
               .anyForm = true,
               .resolution = true,
               .exif = true,
               .iptc = true,
               .xmp = true}},
    {.content = Content::Gif,
     .identifier = latin1("com.compuserve.gif"),
     .extensions = latin1("gif"),
     .begins = isGif,
     .written = FileFormat::Gif,
     .keeps = {.alpha = true}},
    {.content = Content::Bmp,
     .identifier = latin1("public.bmp"),
     .extensions = latin1("bmp"),
     .begins = isBmp,
     .written = FileFormat::Bmp,
     .keeps = {.resolution = true}},
    {.content = Content::Webp,
     .identifier = latin1("org.webmproject.webp"),
     .extensions = latin1("webp"),
     .begins = isWebp,
     .written = FileFormat::Webp,
     .isWrittenOnRequest = true,
     .keeps = {.profile = Kept::Yes, .alpha = true, .exif = true, .xmp = true, .quality = true}},
    {.content = Content::Avif,
     .identifier = latin1("public.avif"),
     .extensions = latin1("avif"),
     .begins = isAvif,
     .written = FileFormat::Avif,
     .isWrittenOnRequest = true,
     .keeps = {.profile = Kept::Yes, .alpha = true, .exif = true, .xmp = true, .quality = true}},
    {.content = Content::Heif, .identifier = latin1("public.heic"), .extensions = latin1("heic"), .begins = isHeif},
    {.content = Content::Heif, .identifier = latin1("public.heif"), .extensions = latin1("heif")},
    {.content = Content::Jpeg2000,
     .identifier = latin1("public.jp2"),
     .extensions = latin1("jp2"),
     .begins = isJpeg2000,
     .written = FileFormat::Jpeg2000,
     .keeps = {.profile = Kept::IfItFits, .alpha = true, .depth16 = true}},
    {.content = Content::JpegXl,
     .identifier = latin1("public.jpeg-xl"),
     .extensions = latin1("jxl"),
     .begins = isJpegXl,
     .written = FileFormat::JpegXl,
     .isWrittenOnRequest = true,
     .keeps = {.profile = Kept::Yes, .alpha = true, .depth16 = true, .exif = true, .xmp = true, .quality = true}},
    {.content = Content::Photoshop,
     .identifier = latin1("com.adobe.photoshop-image"),
     .extensions = latin1("psd"),
     .begins = isPhotoshop},
    {.content = Content::Pdf,
     .identifier = latin1("com.adobe.pdf"),
     .extensions = latin1("pdf"),
     .begins = isPdf,
     .keeps = {.profile = Kept::Yes, .alpha = true, .depth16 = true, .cmyk = true}},
    {.content = Content::Svg, .identifier = latin1("public.svg-image"), .extensions = latin1("svg"), .begins = isSvg},
}};

constexpr std::array<RawType, 20> raws = {{
    {QLatin1String("dng"), true},  {QLatin1String("cr2"), true},  {QLatin1String("cr3"), false},
    {QLatin1String("crw"), false}, {QLatin1String("nef"), true},  {QLatin1String("nrw"), false},
    {QLatin1String("arw"), true},  {QLatin1String("srf"), false}, {QLatin1String("sr2"), false},
    {QLatin1String("raf"), true},  {QLatin1String("orf"), true},  {QLatin1String("rw2"), true},
    {QLatin1String("pef"), true},  {QLatin1String("srw"), true},  {QLatin1String("raw"), false},
    {QLatin1String("3fr"), false}, {QLatin1String("erf"), false}, {QLatin1String("kdc"), false},
    {QLatin1String("mrw"), false}, {QLatin1String("x3f"), false},
}};

} // namespace

std::span<const Format> formats()
{
    return table;
}

const Format *formatOf(Content content)
{
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const Format &format) { return format.content == content; });
    return found == table.end() ? nullptr : &*found;
}

const Format &formatOf(FileFormat format)
{
    return *std::find_if(table.begin(), table.end(), [&](const Format &row) { return row.written == format; });
}

const Format *formatNamed(const QString &typeIdentifier)
{
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&](const Format &format) { return typeIdentifier == format.identifier; });
    return found == table.end() ? nullptr : &*found;
}

std::optional<FileFormat> fileFormatForType(const QString &typeIdentifier)
{
    const Format *format = formatNamed(typeIdentifier);
    return format && !format->isWrittenOnRequest ? format->written : std::nullopt;
}

std::optional<FileFormat> writableFormatForType(const QString &typeIdentifier)
{
    const Format *format = formatNamed(typeIdentifier);
    return format ? format->written : std::nullopt;
}

std::span<const RawType> rawTypes()
{
    return raws;
}

} // namespace platform
