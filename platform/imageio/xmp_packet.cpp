#include "platform/imageio/xmp_packet.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

namespace platform {
namespace {

bool isWellFormed(const QByteArray &packet)
{
    QXmlStreamReader reader(packet);
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

/** Sets a number that stands as an attribute or as an element of its own. */
void setNumber(QString &packet, const QString &name, int value)
{
    static const QString attribute = QStringLiteral("(\\b%1\\s*=\\s*[\"'])\\s*\\d+\\s*([\"'])");
    static const QString element = QStringLiteral("(<%1>)\\s*\\d+\\s*(</%1>)");
    for (const QString &form : {attribute, element})
        packet.replace(QRegularExpression(form.arg(name)), QStringLiteral("\\1%1\\2").arg(value));
}

/** So many properties side by side take a third of a second. */
constexpr qsizetype mostTogether = 4000;

/** Whether one tag has so many attributes that even the reader of XML, which compares each with each, takes long. */
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

/** Counts what stands side by side: properties of the picture, and those within each item of a list. */
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

} // namespace

bool isDigestibleXmp(const QByteArray &packet)
{
    constexpr qsizetype small = 16384;
    if (packet.size() <= small)
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

QByteArray xmpForNewPixels(const QByteArray &packet, QSize pixels)
{
    const bool concerned = packet.contains("tiff:ImageWidth") || packet.contains("tiff:ImageLength") ||
                           packet.contains("PixelXDimension") || packet.contains("PixelYDimension") ||
                           packet.contains(":Thumbnails>");
    if (!concerned)
        return packet;
    QString text = QString::fromUtf8(packet);
    setNumber(text, QStringLiteral("tiff:ImageWidth"), pixels.width());
    setNumber(text, QStringLiteral("tiff:ImageLength"), pixels.height());
    setNumber(text, QStringLiteral("exif:PixelXDimension"), pixels.width());
    setNumber(text, QStringLiteral("exif:PixelYDimension"), pixels.height());
    static const QRegularExpression thumbnails(QStringLiteral("<(xmp|xap):Thumbnails>.*?</\\1:Thumbnails>"),
                                               QRegularExpression::DotMatchesEverythingOption);
    text.remove(thumbnails);
    const QByteArray changed = text.toUtf8();
    return isWellFormed(changed) ? changed : packet;
}

} // namespace platform
