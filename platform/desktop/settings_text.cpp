#include "platform/desktop/settings_text.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <cmath>
#include <limits>
#include <optional>

namespace platform {
namespace {

const QString textMark = QStringLiteral("@text:");
const QString numberMark = QStringLiteral("@number:");
const QString booleanMark = QStringLiteral("@boolean:");
const QString dataMark = QStringLiteral("@data:");
const QString dateMark = QStringLiteral("@date:");
const QString listMark = QStringLiteral("@list:");
const QString dictionaryMark = QStringLiteral("@dictionary:");
const QString nothingMark = QStringLiteral("@nothing:");
const QString yes = QStringLiteral("yes");
const QString no = QStringLiteral("no");

std::optional<QString> encoded(const QVariant &value);

/** Like encoded(), for values inside a list; what has no form becomes nothing. */
QString encodedInside(const QVariant &value)
{
    return encoded(value).value_or(nothingMark);
}

QString encodedList(const QVariantList &list)
{
    QJsonArray array;
    for (const QVariant &item : list)
        array.append(encodedInside(item));
    return listMark + QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

QString encodedDictionary(const QVariantMap &map)
{
    QJsonObject object;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        object.insert(entry.key(), encodedInside(entry.value()));
    return dictionaryMark + QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

std::optional<QString> encoded(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return nothingMark;
    case QMetaType::QString:
        return value.toString().startsWith(u'@') ? textMark + value.toString() : value.toString();
    case QMetaType::Bool:
        return booleanMark + (value.toBool() ? yes : no);
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return numberMark + value.toString();
    case QMetaType::Float:
    case QMetaType::Double:
        return numberMark + QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    case QMetaType::QByteArray:
        return dataMark + QString::fromLatin1(value.toByteArray().toBase64());
    case QMetaType::QDateTime:
        return dateMark + value.toDateTime().toUTC().toString(Qt::ISODateWithMs);
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return encodedList(value.toList());
    case QMetaType::QVariantMap:
        return encodedDictionary(value.toMap());
    default:
        return std::nullopt;
    }
}

QVariant numberFrom(const QString &text)
{
    const double number = text.toDouble();
    const bool fits = std::trunc(number) == number && number >= std::numeric_limits<int>::min() &&
                      number <= std::numeric_limits<int>::max();
    return fits ? QVariant(int(number)) : QVariant(number);
}

QVariant decoded(const QString &text);

QVariant listFrom(const QString &json)
{
    QVariantList list;
    const QJsonArray array = QJsonDocument::fromJson(json.toUtf8()).array();
    for (const auto &item : array)
        list.append(decoded(item.toString()));
    return list;
}

QVariant dictionaryFrom(const QString &json)
{
    QVariantMap map;
    const QJsonObject object = QJsonDocument::fromJson(json.toUtf8()).object();
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        map.insert(entry.key(), decoded(entry.value().toString()));
    return map;
}

QVariant dataFrom(const QString &base64)
{
    const QByteArray bytes = QByteArray::fromBase64(base64.toLatin1());
    return bytes.isNull() ? QByteArray("") : bytes;
}

QVariant decoded(const QString &text)
{
    using Reader = QVariant (*)(const QString &);
    static const std::pair<QString, Reader> readers[] = {
        {textMark, [](const QString &rest) { return QVariant(rest); }},
        {numberMark, numberFrom},
        {booleanMark, [](const QString &rest) { return QVariant(rest == yes); }},
        {dataMark, dataFrom},
        {dateMark, [](const QString &rest) { return QVariant(QDateTime::fromString(rest, Qt::ISODateWithMs)); }},
        {listMark, listFrom},
        {dictionaryMark, dictionaryFrom},
        {nothingMark, [](const QString &) { return QVariant(); }},
    };
    for (const auto &[mark, read] : readers)
        if (text.startsWith(mark))
            return read(text.mid(mark.size()));
    return text.isNull() ? QVariant(QStringLiteral("")) : QVariant(text);
}

} // namespace

QVariant settingToText(const QVariant &value)
{
    const std::optional<QString> text = encoded(value);
    return text ? QVariant(*text) : value;
}

QVariant settingFromText(const QVariant &stored)
{
    // A line of the file with commas and without quotation marks, written by hand, arrives as a list of texts.
    return stored.typeId() == QMetaType::QString ? decoded(stored.toString()) : stored;
}

} // namespace platform
