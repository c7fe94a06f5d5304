#include "platform/imageio/xmp/xmp_bounds.h"

#include "platform/imageio/png/png_exif_text.h"

#include <QXmlStreamReader>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace platform {
namespace {

constexpr qsizetype surelyFew = 16384; // no packet of this size can have as many
constexpr QByteArrayView nameSpace("http://www.w3.org/1999/02/22-rdf-syntax-ns#");
constexpr QByteArrayView pngSignature("\x89PNG\r\n\x1a\n");

/** So many sibling properties take a third of a second. */
constexpr qsizetype mostTogether = 4000;

/** Whether one tag has so many attributes that even the XML parser, which compares each with each, takes long. */
bool hasCrowdedTag(const QByteArray &packet)
{
    qsizetype count = 0;
    for (const char letter : packet) {
        count = letter == '<' ? 0 : count + (letter == '=');
        if (count > mostTogether)
            return true;
    }
    return false;
}

/** Counts siblings: properties of the picture, and those within each item of a list. */
class PropertyCount
{
public:
    bool isBeyond() const { return m_outside > mostTogether || m_inItem > mostTogether || m_all > mostAltogether; }

    void enter(const QXmlStreamReader &reader)
    {
        const bool isItem = reader.name() == QLatin1String("li");
        m_inItem = isItem && m_items == 0 ? 0 : m_inItem;
        (m_items > 0 ? m_inItem : m_outside) += (isItem ? 0 : 1) + reader.attributes().size();
        m_all += 1 + reader.attributes().size();
        m_items += isItem;
    }
    void leave(const QXmlStreamReader &reader) { m_items -= reader.name() == QLatin1String("li"); }

private:
    static constexpr qsizetype mostAltogether = 100'000;

    qsizetype m_outside = 0;
    qsizetype m_inItem = 0;
    qsizetype m_all = 0;
    int m_items = 0; ///< that are open
};

/** After the tag that closes the one at @p at; the end of the file if there is none. */
qsizetype endOfPacket(QByteArrayView file, qsizetype at)
{
    constexpr QByteArrayView tail("RDF>");
    constexpr qsizetype longestPrefix = 64;
    for (qsizetype found = file.indexOf(tail, at); found >= 0; found = file.indexOf(tail, found + tail.size())) {
        const QByteArrayView before = file.first(found).last(std::min(found - at, longestPrefix));
        const qsizetype tag = before.lastIndexOf('<');
        if (tag >= 0 && tag + 1 < before.size() && before.at(tag + 1) == '/')
            return found + tail.size();
    }
    return file.size();
}

/** A PNG may contain its packet compressed, or in the hexadecimal digits of older programs. */
bool holdsDigestibleTexts(const QByteArray &png)
{
    constexpr qsizetype frame = 12;
    for (qsizetype at = pngSignature.size(); at + frame <= png.size();) {
        const auto size = qsizetype(qFromBigEndian<quint32>(png.constData() + at));
        if (size > png.size() - at - frame)
            break;
        const QByteArray chunk = QByteArray::fromRawData(png.constData() + at + 8, size);
        const std::optional<QByteArray> packet = xmpOfPngText(png.mid(at + 4, 4), chunk);
        if (packet && !isDigestibleXmp(*packet))
            return false;
        at += frame + size;
    }
    return true;
}

} // namespace

bool isDigestibleXmp(const QByteArray &packet)
{
    if (packet.size() <= surelyFew)
        return true;
    if (hasCrowdedTag(packet))
        return false;
    QXmlStreamReader reader(packet);
    PropertyCount count;
    while (!reader.atEnd() && !count.isBeyond()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::StartElement)
            count.enter(reader);
        else if (token == QXmlStreamReader::EndElement)
            count.leave(reader);
    }
    return !count.isBeyond();
}

bool holdsDigestibleXmp(const QByteArray &file)
{
    const QByteArrayView all(file);
    for (qsizetype done = 0; all.size() - done > surelyFew;) {
        const QByteArrayView rest = all.sliced(done);
        const qsizetype hit = rest.indexOf(nameSpace);
        if (hit < 0)
            break;
        const qsizetype start = std::max<qsizetype>(0, rest.first(hit).lastIndexOf('<'));
        const qsizetype end = endOfPacket(rest, hit);
        if (!isDigestibleXmp(QByteArray::fromRawData(rest.data() + start, end - start)))
            return false;
        done += end;
    }
    return !file.startsWith(pngSignature) || holdsDigestibleTexts(file);
}

} // namespace platform
