#include "platform/imageio/formats/content.h"

#include "platform/imageio/bytes/block_reader.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>

namespace platform {
namespace {

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

/** The two bytes of the beginning are not enough where other bytes lie between them and the first segment. */
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

} // namespace

qint64 startOfJpegScan(QIODevice &file)
{
    constexpr qint64 mostBetweenSegments = 65536;
    BlockReader reader(file);
    qint64 position = 2;
    qint64 strayBytes = 0;
    while (strayBytes <= mostBetweenSegments) {
        const QByteArrayView head = reader.at(position, 4);
        if (head.size() < 4)
            return -1;
        const auto marker = uchar(head[1]);
        const bool isNone = uchar(head[0]) != 0xFF || marker == 0xFF || marker == 0;
        if (isNone) { // some writers leave bytes between the segments
            ++position;
            ++strayBytes;
            continue;
        }
        const bool standsAlone = marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
        const qint64 next = position + 2 + (standsAlone ? 0 : qFromBigEndian<quint16>(head.data() + 2));
        if (marker == 0xDA)
            return next;
        position = next;
        strayBytes += standsAlone ? 2 : 0;
    }
    return -1;
}

Content contentOf(const QByteArray &head)
{
    if (isJpeg(head))
        return Content::Jpeg;
    if (head.startsWith("\x89PNG\r\n\x1A\n"))
        return Content::Png;
    if (isTiff(head))
        return Content::Tiff;
    if (head.startsWith("GIF87a") || head.startsWith("GIF89a"))
        return Content::Gif;
    if (head.startsWith("BM"))
        return Content::Bmp;
    if (head.startsWith("RIFF") && head.mid(8, 4) == "WEBP")
        return Content::Webp;
    if (isIsoMedia(head, {"avif", "avis"}))
        return Content::Avif;
    if (isIsoMedia(head, {"heic", "heix", "hevc", "heim", "heis", "mif1", "msf1"}))
        return Content::Heif;
    if (head.startsWith(QByteArray("\0\0\0\x0CjP  ", 8)) || head.startsWith("\xFF\x4F\xFF\x51"))
        return Content::Jpeg2000;
    if (head.startsWith("8BPS"))
        return Content::Photoshop;
    if (head.left(1024).contains("%PDF-"))
        return Content::Pdf;
    return isSvg(head) ? Content::Svg : Content::Unknown;
}

QString typeIdentifierOf(Content content)
{
    switch (content) {
    case Content::Jpeg:
        return QStringLiteral("public.jpeg");
    case Content::Png:
        return QStringLiteral("public.png");
    case Content::Tiff:
        return QStringLiteral("public.tiff");
    case Content::Gif:
        return QStringLiteral("com.compuserve.gif");
    case Content::Bmp:
        return QStringLiteral("public.bmp");
    case Content::Webp:
        return QStringLiteral("org.webmproject.webp");
    case Content::Heif:
        return QStringLiteral("public.heic");
    case Content::Avif:
        return QStringLiteral("public.avif");
    case Content::Jpeg2000:
        return QStringLiteral("public.jp2");
    case Content::Photoshop:
        return QStringLiteral("com.adobe.photoshop-image");
    case Content::Pdf:
        return QStringLiteral("com.adobe.pdf");
    case Content::Svg:
        return QStringLiteral("public.svg-image");
    case Content::Unknown:
        break;
    }
    return {};
}

} // namespace platform
