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
QJsonArray arrayOf(const QVariantList &list);
QJsonObject objectOf(const QVariantMap &map);

/**
 * A value inside a list or dictionary: lists and dictionaries are JSON, since a text within a text would double the
 * quotation marks at each level; other values have the form that they have alone. Values without a form become nothing.
 */
QJsonValue inside(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return arrayOf(value.toList());
    case QMetaType::QVariantMap:
        return objectOf(value.toMap());
    default:
        return encoded(value).value_or(nothingMark);
    }
}

QJsonArray arrayOf(const QVariantList &list)
{
    QJsonArray array;
    for (const QVariant &item : list)
        array.append(inside(item));
    return array;
}

QJsonObject objectOf(const QVariantMap &map)
{
    QJsonObject object;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        object.insert(entry.key(), inside(entry.value()));
    return object;
}

QString compact(const QJsonDocument &document)
{
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
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
        return listMark + compact(QJsonDocument(arrayOf(value.toList())));
    case QMetaType::QVariantMap:
        return dictionaryMark + compact(QJsonDocument(objectOf(value.toMap())));
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

QVariant fromInside(const QJsonValue &value);

QVariant listOf(const QJsonArray &array)
{
    QVariantList list;
    for (const auto &item : array)
        list.append(fromInside(item));
    return list;
}

QVariant dictionaryOf(const QJsonObject &object)
{
    QVariantMap map;
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        map.insert(entry.key(), fromInside(entry.value()));
    return map;
}

/** Earlier versions wrote a nested list or dictionary as a text with its mark: these are read as well. */
QVariant fromInside(const QJsonValue &value)
{
    if (value.isArray())
        return listOf(value.toArray());
    return value.isObject() ? dictionaryOf(value.toObject()) : decoded(value.toString());
}

QVariant listFrom(const QString &json)
{
    return listOf(QJsonDocument::fromJson(json.toUtf8()).array());
}

QVariant dictionaryFrom(const QString &json)
{
    return dictionaryOf(QJsonDocument::fromJson(json.toUtf8()).object());
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
    // A hand-written line with commas and without quotation marks is read as a list of texts.
    return stored.typeId() == QMetaType::QString ? decoded(stored.toString()) : stored;
}

} // namespace platform
