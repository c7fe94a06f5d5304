#include "app/seam/values.h"

#include "app/seam/function.h"
#include "app/seam/picture_object.h"

#include "platform/foundation/locations.h"
#include "platform/foundation/raised.h"
#include "platform/plist/property_value.h"
#include "platform/values/flag.h"
#include "platform/values/sender.h"

#include <QDateTime>
#include <QJSValueIterator>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QUrl>

#include <cmath>
#include <limits>

namespace script {
namespace {

/** Deeper nesting than any real settings have; a list that contains itself ends here. */
constexpr int deepestNesting = 64;

/**
 * A list that contains one list twice, which contains another twice and so on, exceeds all memory after a few levels. A
 * run over half a million files is less than this.
 */
constexpr qint64 mostValues = 3'000'000;

/** So much of a deeply nested name appears in a sentence. */
constexpr qsizetype longestName = 120;

constexpr double largestWholeNumber = 9007199254740992.0;

QString notEmptyNull(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

/** Whole numbers stay whole, so that every service formats 3 as "3". */
QVariant wholeOrNot(double number)
{
    const bool isWhole = std::trunc(number) == number && std::abs(number) <= largestWholeNumber;
    if (isWhole && number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max())
        return int(number);
    return isWhole ? QVariant(qlonglong(number)) : QVariant(number);
}

} // namespace

Values::Values(QJSEngine &engine)
    : m_engine(engine), m_objectPrototype(engine.evaluate(QStringLiteral("Object.prototype"))),
      m_dataPrototype(engine.evaluate(QStringLiteral("ArrayBuffer.prototype"))),
      m_defineKey(
          engine.evaluate(QStringLiteral("((o, k, v) => Object.defineProperty(o, k, "
                                         "{ value: v, writable: true, enumerable: true, configurable: true }))")))
{
    callFunction = [](const QJSValue &function, const QJSValueList &values) { return function.call(values); };
}

void Values::reject(const QString &expected, const QString &name, const QJSValue &value) const
{
    throw platform::Raised::typeError(
        QStringLiteral("Expected %1 for %2 but received %3").arg(expected, name, described(value)));
}

QVariant Values::toNative(const QJSValue &value, Kind kind, QMetaType type, const QString &name) const
{
    m_valuesLeft = mostValues;
    switch (kind) {
    case Kind::Text:
        if (!value.isString() && !value.isNull())
            reject(QStringLiteral("text or null"), name, value);
        return value.isNull() ? QVariant(QString()) : QVariant(notEmptyNull(value.toString()));
    case Kind::Whole:
    case Kind::Unsigned:
    case Kind::Number:
    case Kind::Single:
        return numberToNative(value, kind, name);
    case Kind::Truth:
        if (!value.isBool())
            reject(QStringLiteral("true or false"), name, value);
        return value.toBool();
    case Kind::Flag:
        if (!value.isBool() && !value.isNumber())
            reject(QStringLiteral("true, false or a number"), name, value);
        return QVariant::fromValue(platform::Flag{value.isBool() ? value.toBool() : value.toNumber() == 1});
    default:
        return compositeToNative(value, kind, type, name);
    }
}

QVariant Values::compositeToNative(const QJSValue &value, Kind kind, QMetaType type, const QString &name) const
{
    switch (kind) {
    case Kind::Sender:
        if (value.isUndefined())
            reject(QStringLiteral("an object or null"), name, value);
        return QVariant::fromValue(platform::Sender());
    case Kind::Any:
        return scalarToNative(value, name);
    case Kind::Property:
        return QVariant::fromValue(platform::PropertyValue(value.isNull() ? QVariant() : setting(value, name)));
    case Kind::Dictionary:
        return value.isNull() ? QVariantMap() : dictionaryToNative(value, name, 0);
    case Kind::List:
        return value.isNull() ? QVariantList() : listToNative(value, name, 0);
    case Kind::TextList:
        return value.isNull() ? QStringList() : textListToNative(value, name);
    case Kind::SharedList:
        if (!value.isArray() && !value.isNull())
            reject(QStringLiteral("a list or null"), name, value);
        return QVariant::fromValue(value);
    default:
        return otherToNative(value, kind, type, name);
    }
}

QVariant Values::otherToNative(const QJSValue &value, Kind kind, QMetaType type, const QString &name) const
{
    switch (kind) {
    case Kind::Data:
        return dataToNative(value, name);
    case Kind::Date:
        if (!value.isNull() && !(value.isDate() && value.toDateTime().isValid()))
            reject(QStringLiteral("a date or null"), name, value);
        return value.isNull() ? QDateTime() : value.toDateTime();
    case Kind::Location:
        return locationToNative(value, name);
    case Kind::Size:
    case Kind::Point:
    case Kind::Rectangle:
        return geometryToNative(value, kind, name);
    case Kind::Opaque:
        return opaqueToNative(value, type, name);
    case Kind::Picture:
        return pictureToNative(value, name);
    case Kind::Object:
        return objectToNative(value, type, name);
    case Kind::ObjectList:
        return objectListToNative(value, name);
    case Kind::Function:
        return functionToNative(value, name);
    case Kind::Generator:
        return generatorToNative(value, name);
    default:
        break;
    }
    throw platform::Raised::typeError(QStringLiteral("%1 cannot be given by a script").arg(name));
}

QVariant Values::numberToNative(const QJSValue &value, Kind kind, const QString &name) const
{
    const bool isWholeKind = kind == Kind::Whole || kind == Kind::Unsigned;
    const QString expected = isWholeKind ? QStringLiteral("a whole number") : QStringLiteral("a number");
    if (!value.isNumber())
        reject(expected, name, value);
    const double number = value.toNumber();
    if (kind == Kind::Number)
        return number;
    if (kind == Kind::Single)
        return float(number);
    if (!std::isfinite(number) || std::trunc(number) != number)
        reject(expected, name, value);
    const double least = kind == Kind::Whole ? std::numeric_limits<int>::min() : 0;
    const double most = kind == Kind::Whole ? std::numeric_limits<int>::max() : std::numeric_limits<uint>::max();
    if (number < least || number > most)
        throw platform::Raised::rangeError(
            QStringLiteral("Expected a whole number from %1 to %2 for %3 but received %4")
                .arg(least, 0, 'f', 0)
                .arg(most, 0, 'f', 0)
                .arg(name, described(value)));
    return kind == Kind::Whole ? QVariant(int(number)) : QVariant(uint(number));
}

/** An operation that takes any object means one that it writes as text. */
QVariant Values::scalarToNative(const QJSValue &value, const QString &name) const
{
    if (value.isNull())
        return QVariant();
    if (value.isNumber())
        return wholeOrNot(value.toNumber());
    if (!value.isString())
        reject(QStringLiteral("text, a number or null"), name, value);
    return notEmptyNull(value.toString());
}

QVariant Values::nestedToNative(const QJSValue &value, const QString &name, int depth) const
{
    if (depth > deepestNesting)
        throw platform::Raised::typeError(QStringLiteral("%1 is nested too deeply").arg(name.left(longestName)));
    if (--m_valuesLeft < 0)
        throw platform::Raised::typeError(
            QStringLiteral("%1 holds more than %2 values").arg(name.section(u'[', 0, 0)).arg(mostValues));
    if (value.isNull() || value.isString() || value.isNumber())
        return scalarToNative(value, name);
    if (value.isBool())
        return value.toBool();
    if (value.isArray())
        return listToNative(value, name, depth);
    if (isPlainObject(value))
        return dictionaryToNative(value, name, depth);
    if (value.isDate() && value.toDateTime().isValid())
        return value.toDateTime();
    if (isData(value))
        return dataToNative(value, name);
    reject(QStringLiteral("text, a number, true or false, a date, data, a list, a dictionary or null"), name, value);
}

QVariantMap Values::dictionaryToNative(const QJSValue &value, const QString &name, int depth) const
{
    if (!isPlainObject(value))
        reject(QStringLiteral("a dictionary"), name, value);
    QVariantMap map;
    for (QJSValueIterator entry(value); entry.next();)
        map.insert(entry.name(), nestedToNative(entry.value(), name + u'.' + entry.name(), depth + 1));
    return map;
}

QVariantList Values::listToNative(const QJSValue &value, const QString &name, int depth) const
{
    if (!value.isArray())
        reject(QStringLiteral("a list"), name, value);
    const quint32 length = value.property(QStringLiteral("length")).toUInt();
    QVariantList list;
    list.reserve(length);
    for (quint32 i = 0; i < length; ++i)
        list.append(nestedToNative(value.property(i), QStringLiteral("%1[%2]").arg(name).arg(i), depth + 1));
    return list;
}

QStringList Values::textListToNative(const QJSValue &value, const QString &name) const
{
    if (!value.isArray())
        reject(QStringLiteral("a list of texts"), name, value);
    const quint32 length = value.property(QStringLiteral("length")).toUInt();
    QStringList list;
    list.reserve(length);
    for (quint32 i = 0; i < length; ++i) {
        const QJSValue item = value.property(i);
        if (!item.isString())
            reject(QStringLiteral("text"), QStringLiteral("%1[%2]").arg(name).arg(i), item);
        list.append(notEmptyNull(item.toString()));
    }
    return list;
}

QVariant Values::dataToNative(const QJSValue &value, const QString &name) const
{
    if (value.isNull())
        return QByteArray();
    if (!isData(value))
        reject(QStringLiteral("data (an ArrayBuffer) or null"), name, value);
    const QByteArray bytes = m_engine.fromScriptValue<QByteArray>(value);
    return bytes.isNull() ? QByteArray("") : bytes;
}

QVariant Values::locationToNative(const QJSValue &value, const QString &name) const
{
    if (value.isNull())
        return QUrl();
    const QUrl url = platform::locationOf(value.isString() ? value.toString() : QString());
    if (!url.isValid() || url.isRelative())
        reject(QStringLiteral("a location such as file:///a/b.jpg or null"), name, value);
    return url;
}

QList<double> Values::numbersOf(const QJSValue &value, const QStringList &keys, const QString &shape,
                                const QString &name) const
{
    if (!isPlainObject(value))
        reject(shape, name, value);
    for (QJSValueIterator entry(value); entry.next();)
        if (!keys.contains(entry.name()))
            throw platform::Raised::typeError(
                QStringLiteral("Expected %1 for %2 but received another key, %3").arg(shape, name, entry.name()));
    QList<double> numbers;
    for (const QString &key : keys) {
        const QJSValue number = value.property(key);
        if (!number.isNumber())
            reject(QStringLiteral("a number"), name + u'.' + key, number);
        numbers.append(number.toNumber());
    }
    return numbers;
}

QVariant Values::geometryToNative(const QJSValue &value, Kind kind, const QString &name) const
{
    const QString x = QStringLiteral("x");
    const QString y = QStringLiteral("y");
    const QString width = QStringLiteral("width");
    const QString height = QStringLiteral("height");
    if (kind == Kind::Size) {
        const auto n = numbersOf(value, {width, height}, QStringLiteral("{width, height}"), name);
        return QSizeF(n[0], n[1]);
    }
    if (kind == Kind::Point) {
        const auto n = numbersOf(value, {x, y}, QStringLiteral("{x, y}"), name);
        return QPointF(n[0], n[1]);
    }
    const auto n = numbersOf(value, {x, y, width, height}, QStringLiteral("{x, y, width, height}"), name);
    return QRectF(n[0], n[1], n[2], n[3]);
}

QVariant Values::opaqueToNative(const QJSValue &value, QMetaType type, const QString &name) const
{
    if (value.isNull())
        return QVariant(type);
    const QVariant held = value.isVariant() ? value.toVariant() : QVariant();
    if (held.metaType() != type)
        reject(QStringLiteral("an image handle or null"), name, value);
    return held;
}

QVariant Values::pictureToNative(const QJSValue &value, const QString &name) const
{
    if (value.isNull())
        return QVariant::fromValue(platform::Picture());
    const auto *object = qobject_cast<PictureObject *>(objectOf(value));
    if (!object)
        reject(QStringLiteral("a Picture or null"), name, value);
    return QVariant::fromValue(object->picture());
}

QVariant Values::objectToNative(const QJSValue &value, QMetaType type, const QString &name) const
{
    QObject *object = value.isNull() ? nullptr : objectOf(value);
    const bool isAnyControl = type.metaObject() == &QObject::staticMetaObject;
    const bool isTaken =
        object && object->metaObject()->inherits(type.metaObject()) && (!isAnyControl || isControl(*object));
    if (!value.isNull() && !isTaken)
        reject((isAnyControl ? QStringLiteral("a control") : withArticle(wordOf(*type.metaObject()))) +
                   QStringLiteral(" or null"),
               name, value);
    return QVariant(type, &object);
}

QVariant Values::objectListToNative(const QJSValue &value, const QString &name) const
{
    if (!value.isArray())
        reject(QStringLiteral("a list of objects"), name, value);
    const quint32 length = value.property(QStringLiteral("length")).toUInt();
    QObjectList list;
    for (quint32 i = 0; i < length; ++i) {
        QObject *object = objectOf(value.property(i));
        if (!object)
            reject(QStringLiteral("a control or a service"), QStringLiteral("%1[%2]").arg(name).arg(i),
                   value.property(i));
        list.append(object);
    }
    return QVariant::fromValue(list);
}

QVariant Values::functionToNative(const QJSValue &value, const QString &name) const
{
    if (!value.isCallable() && !value.isNull())
        reject(QStringLiteral("a function or null"), name, value);
    return QVariant::fromValue(value.isNull() ? Function() : Function(value, *this));
}

QVariant Values::generatorToNative(const QJSValue &value, const QString &name) const
{
    if (!value.property(QStringLiteral("next")).isCallable())
        reject(QStringLiteral("a generator"), name, value);
    return QVariant::fromValue(Generator{value, &m_engine});
}

QStringList Values::keysOf(const QJSValue &value, const QString &name) const
{
    if (!isPlainObject(value))
        reject(QStringLiteral("a dictionary"), name, value);
    QStringList keys;
    for (QJSValueIterator entry(value); entry.next();)
        keys.append(entry.name());
    return keys;
}

QVariant Values::anything(const QJSValue &value, const QString &name) const
{
    m_valuesLeft = mostValues;
    return nestedToNative(value, name, 0);
}

QVariant Values::setting(const QJSValue &value, const QString &name) const
{
    if (value.isNull())
        reject(QStringLiteral("text, a number, true or false, a date, data, a list or a dictionary"), name, value);
    return anything(value, name);
}

bool Values::isPlainObject(const QJSValue &value) const
{
    if (!value.isObject() || value.isCallable() || value.isArray() || value.isQObject() || value.isVariant())
        return false;
    const QJSValue prototype = value.prototype();
    return prototype.isNull() || prototype.strictlyEquals(m_objectPrototype);
}

bool Values::isData(const QJSValue &value) const
{
    return value.isObject() && value.prototype().strictlyEquals(m_dataPrototype);
}

} // namespace script
