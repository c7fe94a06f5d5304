#include "platform/imageio/xmp_bounds.h"

#include "platform/imageio/png_exif_text.h"

#include <QXmlStreamReader>
#include <QtEndian>

#include <algorithm>

namespace platform {
namespace {

constexpr qsizetype mostBeside = 5000;     // properties in one place, of which each is compared with each
constexpr qsizetype mostInAll = 300'000;   // entries of lists too
constexpr qsizetype surelyFew = 30 * 1024; // no packet of this size can hold as many
constexpr QByteArrayView nameSpace("http://www.w3.org/1999/02/22-rdf-syntax-ns#");

/** From the start of the element around @p hit to the end of the packet, or of the file. */
QByteArrayView packetAround(const QByteArray &file, qsizetype hit)
{
    const qsizetype start = std::max<qsizetype>(0, file.lastIndexOf('<', hit));
    const qsizetype end = file.indexOf("RDF>", hit);
    return QByteArrayView(file).sliced(start, (end < 0 ? file.size() : end + 4) - start);
}

/** A PNG may hold its packet compressed, and in the hexadecimal digits of older programs. */
bool isEndlessPngText(const QByteArray &type, const QByteArray &data)
{
    constexpr qsizetype mostText = 4 << 20;
    constexpr qsizetype textFlags = 5; // two flags and three ends of texts
    const QByteArray keyword = data.left(data.indexOf('\0'));
    if (keyword.toLower() == "raw profile type xmp")
        return data.size() > surelyFew;
    if (type != "iTXt" || keyword != "XML:com.adobe.xmp" || data.size() <= keyword.size() + textFlags)
        return false;
    const bool isCompressed = data.at(keyword.size() + 1) != 0;
    const qsizetype language = data.indexOf('\0', keyword.size() + 3);
    const qsizetype text = language < 0 ? -1 : data.indexOf('\0', language + 1);
    if (!isCompressed || text < 0)
        return false;
    const QByteArray packet = inflatedText(data.mid(text + 1), mostText);
    return packet.isEmpty() || isEndlessXmp(packet);
}

/** Gives the chunks of a PNG that hold such a packet a name that nobody reads. */
void renameEndlessTexts(QByteArray &file)
{
    constexpr qsizetype signature = 8;
    constexpr qsizetype frame = 12;
    for (qsizetype at = signature; at + frame <= file.size();) {
        const auto size = qsizetype(qFromBigEndian<quint32>(file.constData() + at));
        if (size > file.size() - at - frame)
            return;
        const auto type = QByteArrayView(file).sliced(at + 4, 4);
        const bool isText = type == QByteArrayView("iTXt") || type == QByteArrayView("zTXt");
        if (isText && isEndlessPngText(type.toByteArray(), QByteArray::fromRawData(file.constData() + at + 8, size)))
            file.replace(at + 4, 4, "quRx");
        at += frame + size;
    }
}

} // namespace

bool isEndlessXmp(const QByteArray &packet)
{
    if (packet.size() <= surelyFew)
        return false;
    QXmlStreamReader reader(packet);
    QList<qsizetype> beside = {0};
    qsizetype inAll = 0;
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        if (token == QXmlStreamReader::EndElement && beside.size() > 1)
            beside.removeLast();
        if (token != QXmlStreamReader::StartElement)
            continue;
        const qsizetype attributes = reader.attributes().size();
        const bool isEntry = reader.qualifiedName().endsWith(QLatin1String(":li"));
        beside.last() += isEntry ? 0 : 1;
        inAll += 1 + attributes;
        if (beside.last() > mostBeside || attributes > mostBeside || inAll > mostInAll)
            return true;
        beside.append(attributes);
    }
    return false;
}

QByteArray withoutEndlessXmp(const QByteArray &file)
{
    QByteArray readable = file;
    for (qsizetype hit = file.indexOf(nameSpace); hit >= 0; hit = file.indexOf(nameSpace, hit + nameSpace.size())) {
        if (file.size() - hit <= surelyFew)
            break;
        const QByteArrayView packet = packetAround(file, hit);
        if (isEndlessXmp(QByteArray::fromRawData(packet.data(), packet.size())))
            readable.replace(packet.data() - file.constData(), packet.size(), QByteArray(packet.size(), ' '));
    }
    if (file.startsWith("\x89PNG"))
        renameEndlessTexts(readable);
    return readable;
}

} // namespace platform
