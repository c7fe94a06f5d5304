#include "platform/imageio/content.h"

#include "platform/imageio/bmp_header.h"

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

QByteArray bytesAt(QIODevice &file, qint64 position, qint64 count)
{
    const bool isInside = position <= file.size();
    return isInside && file.seek(position) ? file.read(count) : QByteArray();
}

/** Looks for the end mark from the end of the file on, since other bytes may follow it. */
bool jpegEndIsThere(QIODevice &file)
{
    const qint64 first = startOfJpegScan(file);
    if (first < 0)
        return false;
    constexpr qint64 lastBytes = 1024; // mostly nothing follows
    constexpr qint64 step = 65536;
    const qint64 size = file.size();
    for (qint64 end = size; end > first;) {
        const qint64 begin = std::max(first, end - (end == size ? lastBytes : step));
        const QByteArray bytes = bytesAt(file, begin, end - begin);
        if (bytes.contains("\xFF\xD9"))
            return true;
        if (begin == first)
            break;
        end = begin + 1; // the mark may lie across two steps
    }
    return false;
}

bool pngEndIsThere(QIODevice &file)
{
    constexpr int chunkFrame = 12;
    qint64 position = 8;
    for (;;) {
        const QByteArray head = bytesAt(file, position, 8);
        if (head.size() < 8)
            return false;
        position += chunkFrame + qint64(qFromBigEndian<quint32>(head.constData()));
        if (head.endsWith("IEND"))
            return position <= file.size();
    }
}

/** Steps over the sub-blocks from @p position on; the position behind them, or -1 where they are cut short. */
qint64 behindGifBlocks(QIODevice &file, qint64 position)
{
    for (;;) {
        const QByteArray size = bytesAt(file, position, 1);
        if (size.isEmpty())
            return -1;
        position += 1 + uchar(size[0]);
        if (size[0] == 0)
            return position;
    }
}

/** True if the first picture of the file is whole; what comes behind it is of no use here. */
bool gifPictureIsThere(QIODevice &file)
{
    const auto tableBytes = [](uchar flags) { return flags & 0x80 ? 3LL << ((flags & 7) + 1) : 0LL; };
    const QByteArray screen = bytesAt(file, 0, 13);
    if (screen.size() < 13)
        return false;
    qint64 position = 13 + tableBytes(uchar(screen[10]));
    while (position > 0) {
        const QByteArray head = bytesAt(file, position, 10);
        if (head.startsWith('!'))
            position = behindGifBlocks(file, position + 2);
        else if (head.startsWith(',') && head.size() == 10)
            return behindGifBlocks(file, position + 11 + tableBytes(uchar(head[9]))) > 0;
        else
            return false;
    }
    return false;
}

bool webpEndIsThere(QIODevice &file)
{
    const QByteArray head = bytesAt(file, 0, 8);
    return head.size() == 8 && qint64(qFromLittleEndian<quint32>(head.constData() + 4)) + 8 <= file.size();
}

} // namespace

qint64 startOfJpegScan(QIODevice &file)
{
    qint64 position = 2;
    for (;;) {
        const QByteArray head = bytesAt(file, position, 4);
        if (head.size() < 4)
            return -1;
        if (uchar(head[0]) != 0xFF) {
            ++position; // some writers leave bytes between the segments
            continue;
        }
        const auto marker = uchar(head[1]);
        const bool standsAlone = marker == 0xFF || marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
        if (standsAlone) {
            position += marker == 0xFF ? 1 : 2;
            continue;
        }
        const qint64 next = position + 2 + qFromBigEndian<quint16>(head.constData() + 2);
        if (marker == 0xDA)
            return next;
        position = next;
    }
}

Content contentOf(const QByteArray &head)
{
    if (head.startsWith("\xFF\xD8\xFF"))
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

bool endIsThere(QIODevice &file, Content content)
{
    switch (content) {
    case Content::Jpeg:
        return jpegEndIsThere(file);
    case Content::Png:
        return pngEndIsThere(file);
    case Content::Gif:
        return gifPictureIsThere(file);
    case Content::Webp:
        return webpEndIsThere(file);
    case Content::Bmp:
        return readBmpHeader(file).bytesNeeded <= file.size();
    default:
        return true;
    }
}

} // namespace platform
