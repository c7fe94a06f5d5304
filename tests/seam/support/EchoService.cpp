#include "tests/seam/support/EchoService.h"

#include "platform/controls/controls.h"
#include "platform/foundation/raised.h"

#include <stdexcept>

int EchoService::livingCount = 0;

namespace {

/** A value with its type, so that 3, "3" and 3.0 are distinguished. */
QString inWords(const QVariant &value)
{
    if (!value.isValid())
        return QStringLiteral("nothing");
    QStringList parts;
    if (value.typeId() == QMetaType::QVariantList) {
        for (const QVariant &item : value.toList())
            parts.append(inWords(item));
        return u'[' + parts.join(QStringLiteral(", ")) + u']';
    }
    if (value.typeId() == QMetaType::QVariantMap) {
        const QVariantMap map = value.toMap();
        for (auto entry = map.begin(); entry != map.end(); ++entry)
            parts.append(entry.key() + QStringLiteral(": ") + inWords(entry.value()));
        return u'{' + parts.join(QStringLiteral(", ")) + u'}';
    }
    if (value.typeId() == QMetaType::QDateTime)
        return QStringLiteral("date ") + value.toDateTime().toUTC().toString(Qt::ISODateWithMs);
    return QString::fromLatin1(value.typeName()) + u' ' + value.toString();
}

QString numbers(std::initializer_list<double> values)
{
    QStringList parts;
    for (const double value : values)
        parts.append(QString::number(value));
    return parts.join(u' ');
}

} // namespace

QString EchoService::takeText(const QString &text) const
{
    return text.isNull() ? QStringLiteral("nothing") : u'<' + text + u'>';
}

QString EchoService::takeTruth(bool answer) const
{
    return answer ? QStringLiteral("yes") : QStringLiteral("no");
}

QString EchoService::takeFlag(platform::Flag flag) const
{
    return flag.on ? QStringLiteral("on") : QStringLiteral("off");
}

QString EchoService::takeAny(const QVariant &thing) const
{
    return inWords(thing);
}

QString EchoService::takeDictionary(const QVariantMap &dictionary) const
{
    return inWords(dictionary);
}

QString EchoService::takeList(const QVariantList &list) const
{
    return inWords(list);
}

QString EchoService::takeTexts(const QStringList &names) const
{
    return u'<' + names.join(QStringLiteral("><")) + u'>';
}

QString EchoService::takeData(const QByteArray &data) const
{
    return data.isNull() ? QStringLiteral("nothing") : u'<' + QString::fromLatin1(data.toHex()) + u'>';
}

QString EchoService::takeDate(const QDateTime &date) const
{
    return date.isNull() ? QStringLiteral("nothing") : inWords(date);
}

QString EchoService::takeLocation(const QUrl &location) const
{
    return location.isEmpty() ? QStringLiteral("nothing") : location.toLocalFile();
}

QString EchoService::takeSize(const QSizeF &size) const
{
    return numbers({size.width(), size.height()});
}

QString EchoService::takePoint(const QPointF &point) const
{
    return numbers({point.x(), point.y()});
}

QString EchoService::takeRectangle(const QRectF &r) const
{
    return numbers({r.x(), r.y(), r.width(), r.height()});
}

QString EchoService::takeControl(QObject *control) const
{
    return control ? u'<' + platform::textOf(control) + u'>' : QStringLiteral("nothing");
}

QString EchoService::takePartner(EchoPartner *partner) const
{
    return partner ? partner->property("number").toString() : QStringLiteral("nothing");
}

QString EchoService::takeHandle(const platform::BitmapHandle &handle) const
{
    return handle.isNull() ? QStringLiteral("nothing") : QString::number(handle.bitmap().width());
}

QString EchoService::takePicture(const platform::Picture &picture) const
{
    return picture.isNull() ? QStringLiteral("nothing") : QString::number(picture.size().width());
}

void EchoService::emptyInPlace(QJSValue list) const
{
    if (list.isArray())
        list.setProperty(QStringLiteral("length"), 0);
}

int EchoService::takeMany(int a, int b, int c, int d, int e, int f, int g, int h, int i, int j, int k, int l) const
{
    return a + b + c + d + e + f + g + h + i + j + k + 100 * l;
}

platform::BitmapHandle EchoService::giveHandle(bool isNull) const
{
    return isNull ? platform::BitmapHandle() : platform::BitmapHandle(platform::Bitmap());
}

QString EchoService::raiseInconsistency(const QString &message) const
{
    throw platform::Raised::internalInconsistency(message);
}

QString EchoService::raiseRange(const QString &message) const
{
    throw platform::Raised::rangeError(message);
}

QString EchoService::raiseType(const QString &message) const
{
    throw platform::Raised::typeError(message);
}

QString EchoService::throwStandard(const QString &message) const
{
    throw std::runtime_error(message.toStdString());
}

QString EchoService::throwNumber() const
{
    throw 3;
}
