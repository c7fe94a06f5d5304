#include "platform/imageio/facts/container_properties.h"

#include "platform/imageio/exif/user_comment.h"
#include "platform/imageio/jpeg/jpeg_segments.h"
#include "platform/imageio/png/png_exif_text.h"

#include <QIODevice>
#include <QtEndian>

namespace platform {
namespace {

constexpr qsizetype longestText = 65536;
constexpr int mostChunks = 4096;
constexpr int mostTexts = 200;

/** seek() for a position that a file may only claim to have: beyond the end Qt would log a line. */
bool goTo(QIODevice &file, qint64 position)
{
    return position <= file.size() && file.seek(position);
}

quint32 big32(const QByteArray &bytes, qsizetype at)
{
    return qFromBigEndian<quint32>(bytes.constData() + at);
}
int big16(const QByteArray &bytes, qsizetype at)
{
    return qFromBigEndian<quint16>(bytes.constData() + at);
}
int little16(const QByteArray &bytes, qsizetype at)
{
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}
int byteAt(const QByteArray &bytes, qsizetype at)
{
    return uchar(bytes.at(at));
}

/** Numbers of a PNG that are stored as hundred thousandths. */
double hundredThousandths(const QByteArray &bytes, qsizetype at)
{
    return big32(bytes, at) / 100000.0;
}

struct PngText
{
    QString keyword;
    QString text;
};

/** A chunk of type iTXt: keyword, two flags, language, translated keyword, text. */
PngText internationalText(const QByteArray &chunk)
{
    const qsizetype keywordEnd = chunk.indexOf('\0');
    const qsizetype languageEnd = keywordEnd < 0 ? -1 : chunk.indexOf('\0', keywordEnd + 3);
    const qsizetype translatedEnd = languageEnd < 0 ? -1 : chunk.indexOf('\0', languageEnd + 1);
    if (translatedEnd < 0)
        return {};
    const bool compressed = chunk.at(keywordEnd + 1) != 0;
    const QByteArray text = chunk.mid(translatedEnd + 1);
    return {QString::fromLatin1(chunk.left(keywordEnd)),
            QString::fromUtf8(compressed ? inflatedText(text, longestText) : text)};
}

PngText textOf(const QByteArray &type, const QByteArray &chunk)
{
    if (type == "iTXt")
        return internationalText(chunk);
    const qsizetype end = chunk.indexOf('\0');
    if (end < 0)
        return {};
    const QByteArray text = type == "zTXt" ? inflatedText(chunk.mid(end + 2), longestText) : chunk.mid(end + 1);
    return {QString::fromLatin1(chunk.left(end)), decodeUnmarkedText(text)};
}

void addPngChunk(QVariantMap &group, const QByteArray &type, const QByteArray &chunk)
{
    const auto insert = [&group](const char *key, const QVariant &value) {
        group.insert(QString::fromLatin1(key), value);
    };
    if (type == "IHDR" && chunk.size() >= 13) {
        insert("InterlaceType", byteAt(chunk, 12));
    } else if (type == "gAMA" && chunk.size() >= 4) {
        insert("Gamma", hundredThousandths(chunk, 0));
    } else if (type == "sRGB" && !chunk.isEmpty()) {
        insert("sRGBIntent", byteAt(chunk, 0));
    } else if (type == "cHRM" && chunk.size() >= 32) {
        QVariantList points;
        for (qsizetype at = 0; at < 32; at += 4)
            points << hundredThousandths(chunk, at);
        insert("Chromaticities", points);
    } else if (type == "pHYs" && chunk.size() >= 9 && byteAt(chunk, 8) == 1) {
        insert("XPixelsPerMeter", double(big32(chunk, 0)));
        insert("YPixelsPerMeter", double(big32(chunk, 4)));
    } else if (type == "tEXt" || type == "zTXt" || type == "iTXt") {
        const PngText text = textOf(type, chunk);
        const QString key = QString(text.keyword).remove(u' ');
        const bool carriedElsewhere =
            key.startsWith(QLatin1String("XML:")) || key.startsWith(QLatin1String("Rawprofile"));
        if (!key.isEmpty() && !text.text.isEmpty() && !carriedElsewhere && !group.contains(key) &&
            group.size() < mostTexts)
            group.insert(key, text.text);
    }
}

QVariantMap pngGroup(QIODevice &file)
{
    QVariantMap group;
    qint64 position = 8;
    for (int count = 0; count < mostChunks && goTo(file, position); ++count) {
        const QByteArray head = file.read(8);
        if (head.size() < 8)
            break;
        const qint64 length = big32(head, 0);
        const QByteArray type = head.mid(4);
        if (type == "IEND")
            break;
        if (length <= longestText && type != "IDAT") {
            const QByteArray chunk = file.read(length);
            if (chunk.size() < length)
                break;
            addPngChunk(group, type, chunk);
        }
        position += 12 + length;
    }
    return group;
}

QVariantMap jfifGroup(QIODevice &file)
{
    constexpr qint64 longestHead = 1 << 20;
    file.seek(0);
    const JpegSegments segments = findJpegSegments(file.read(longestHead));
    constexpr qsizetype wholeSegment = 12; // name, version, unit and two densities
    if (segments.jfif.size() < wholeSegment)
        return {};
    const int minor = byteAt(segments.jfif, 6); // 0x02 in "1.02" is read as 1, 0, 2
    QVariantList version = {byteAt(segments.jfif, 5), minor / 10, minor % 10};
    QVariantMap group = {{QStringLiteral("JFIFVersion"), version},
                         {QStringLiteral("DensityUnit"), byteAt(segments.jfif, 7)},
                         {QStringLiteral("XDensity"), big16(segments.jfif, 8)},
                         {QStringLiteral("YDensity"), big16(segments.jfif, 10)}};
    if (!segments.size.isEmpty())
        group.insert(QStringLiteral("IsProgressive"), segments.isProgressive);
    return group;
}

/** The blocks of a GIF before its first picture. */
class GifHead
{
public:
    explicit GifHead(QIODevice &file) : m_file(file) {}

    QVariantMap group()
    {
        m_file.seek(0);
        const QByteArray screen = m_file.read(13);
        if (screen.size() < 13)
            return {};
        const int flags = byteAt(screen, 10);
        const bool hasColors = (flags & 0x80) != 0;
        m_group.insert(QStringLiteral("HasGlobalColorMap"), hasColors);
        if (!goTo(m_file, hasColors ? 13 + 3 * (qint64(2) << (flags & 7)) : 13))
            return m_group;
        for (int count = 0; count < mostChunks && readBlock(); ++count) {
        }
        return m_group;
    }

private:
    /** False at the first picture, and at anything that is not an extension. */
    bool readBlock()
    {
        constexpr char extension = 0x21;
        const QByteArray head = m_file.read(2);
        if (head.size() < 2 || head.at(0) != extension)
            return false;
        const QByteArray first = subBlock();
        QByteArray block = subBlock();
        take(byteAt(head, 1), first, block);
        for (int count = 0; count < mostChunks && !block.isEmpty(); ++count)
            block = subBlock();
        return block.isEmpty();
    }

    QByteArray subBlock()
    {
        const QByteArray length = m_file.read(1);
        return length.isEmpty() ? QByteArray() : m_file.read(byteAt(length, 0));
    }

    void take(int label, const QByteArray &first, const QByteArray &second)
    {
        constexpr int graphicControl = 0xf9;
        constexpr int application = 0xff;
        const QString delay = QStringLiteral("DelayTime");
        if (label == graphicControl && first.size() >= 4 && !m_group.contains(delay))
            m_group.insert(delay, little16(first, 1) / 100.0);
        const bool loops = first.startsWith("NETSCAPE2.0") || first.startsWith("ANIMEXTS1.0");
        if (label == application && loops && second.size() >= 3 && second.at(0) == 1)
            m_group.insert(QStringLiteral("LoopCount"), little16(second, 1));
    }

    QIODevice &m_file;
    QVariantMap m_group;
};

QVariantMap named(const char *name, const QVariantMap &group)
{
    return group.isEmpty() ? QVariantMap() : QVariantMap{{QString::fromLatin1(name), group}};
}

} // namespace

QVariantMap containerProperties(QIODevice &file)
{
    if (!file.seek(0))
        return {};
    const QByteArray signature = file.read(8);
    if (signature == "\x89PNG\r\n\x1a\n")
        return named("{PNG}", pngGroup(file));
    if (signature.startsWith("\xff\xd8\xff"))
        return named("{JFIF}", jfifGroup(file));
    if (signature.startsWith("GIF8"))
        return named("{GIF}", GifHead(file).group());
    return {};
}

} // namespace platform
