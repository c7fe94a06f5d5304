#include "platform/imageio/xmp/xmp_packet.h"

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

/** Sets a number that is an attribute or an element. */
void setNumber(QString &packet, const QString &name, int value)
{
    static const QString attribute = QStringLiteral("(\\b%1\\s*=\\s*[\"'])\\s*\\d+\\s*([\"'])");
    static const QString element = QStringLiteral("(<%1>)\\s*\\d+\\s*(</%1>)");
    for (const QString &form : {attribute, element})
        packet.replace(QRegularExpression(form.arg(name)), QStringLiteral("\\1%1\\2").arg(value));
}

} // namespace

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
