#include "app/seam/picture_object.h"
#include "app/seam/values.h"

#include "platform/imageio/source/image_source.h"
#include "platform/values/flag.h"
#include "platform/values/shared_texts.h"
#include "presets/database.h"

#include <QDateTime>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QUrl>

namespace script {
namespace {

QJSValue nothing()
{
    return QJSValue(QJSValue::NullValue);
}

QJSValue textToScript(const QString &text, Values::NullText nullText)
{
    return text.isNull() && nullText == Values::NullText::Null ? nothing() : QJSValue(text);
}

template<typename T> bool isNull(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<T>() && value.value<T>().isNull();
}

bool isNullOpaque(const QVariant &value)
{
    return isNull<platform::BitmapHandle>(value) || isNull<platform::Bitmap>(value) ||
           isNull<platform::ImageSource>(value) || isNull<presets::Connection>(value);
}

} // namespace

QJSValue Values::toScript(const QVariant &value, NullText nullText) const
{
    const Kind kind = kindOf(value.metaType());
    switch (kind) {
    case Kind::Text:
        return textToScript(value.toString(), nullText);
    case Kind::Whole:
        return QJSValue(value.toInt());
    case Kind::Unsigned:
        return QJSValue(value.toUInt());
    case Kind::Number:
    case Kind::Single:
        return QJSValue(value.toDouble());
    case Kind::Truth:
        return QJSValue(value.toBool());
    case Kind::Flag:
        return QJSValue(value.value<platform::Flag>().on);
    case Kind::Dictionary:
        return dictionaryToScript(value.toMap(), nullText);
    case Kind::List:
        return listToScript(value.toList(), nullText);
    case Kind::TextList:
        return textListToScript(value.toStringList(), nullText);
    default:
        return otherToScript(value, kind);
    }
}

QJSValue Values::otherToScript(const QVariant &value, Kind kind) const
{
    switch (kind) {
    case Kind::SharedList:
        return value.value<QJSValue>().isUndefined() ? nothing() : value.value<QJSValue>();
    case Kind::SharedTexts:
        return sharedTextsToScript(value.value<platform::SharedTexts>());
    case Kind::Data:
        return value.toByteArray().isNull() ? nothing() : m_engine.toScriptValue(value.toByteArray());
    case Kind::Date:
        return value.toDateTime().isValid() ? m_engine.toScriptValue(value.toDateTime()) : nothing();
    case Kind::Location: {
        const QUrl url = value.toUrl();
        return url.isEmpty() ? nothing() : QJSValue(QString::fromLatin1(url.toEncoded()));
    }
    case Kind::Size: {
        const QSizeF size = value.toSizeF();
        return numbersToScript({QStringLiteral("width"), QStringLiteral("height")}, {size.width(), size.height()});
    }
    case Kind::Point: {
        const QPointF point = value.toPointF();
        return numbersToScript({QStringLiteral("x"), QStringLiteral("y")}, {point.x(), point.y()});
    }
    case Kind::Rectangle: {
        const QRectF r = value.toRectF();
        return numbersToScript(
            {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"), QStringLiteral("height")},
            {r.x(), r.y(), r.width(), r.height()});
    }
    case Kind::Opaque:
        return isNullOpaque(value) ? nothing() : m_engine.toScriptValue(value);
    case Kind::Picture: {
        const auto picture = value.value<platform::Picture>();
        return picture.isNull() ? nothing() : facadeOfNew(new PictureObject(picture));
    }
    case Kind::Object: {
        auto *object = value.value<QObject *>();
        return object ? facadeOf(object) : nothing();
    }
    default:
        break;
    }
    if (value.canConvert<double>() && value.isValid())
        return QJSValue(value.toDouble());
    return nothing();
}

QJSValue Values::numbersToScript(const QStringList &keys, const QList<double> &numbers) const
{
    QJSValue object = m_engine.newObject();
    for (qsizetype i = 0; i < keys.size(); ++i)
        object.setProperty(keys.at(i), numbers.at(i));
    return object;
}

QJSValue Values::listToScript(const QVariantList &list, NullText nullText) const
{
    QJSValue array = m_engine.newArray(uint(list.size()));
    for (qsizetype i = 0; i < list.size(); ++i)
        array.setProperty(quint32(i), toScript(list.at(i), nullText));
    return array;
}

QJSValue Values::textListToScript(const QStringList &list, NullText nullText) const
{
    QJSValue array = m_engine.newArray(uint(list.size()));
    for (qsizetype i = 0; i < list.size(); ++i)
        array.setProperty(quint32(i), textToScript(list.at(i), nullText));
    return array;
}

QJSValue Values::sharedTextsToScript(platform::SharedTexts texts) const
{
    if (texts.isNull())
        return nothing();
    if (!texts.form().isValid()) {
        QJSValue array = textListToScript(texts.texts(), NullText::Null);
        texts.setForm(QVariant::fromValue(array),
                      [array]() mutable { array.setProperty(QStringLiteral("length"), 0); });
    }
    return texts.form().value<QJSValue>();
}

/** Plain assignment to this one name would set the prototype of the object. */
void Values::setKey(QJSValue &object, const QString &key, const QJSValue &value) const
{
    if (key == QStringLiteral("__proto__"))
        m_defineKey.call({object, key, value});
    else
        object.setProperty(key, value);
}

QJSValue Values::dictionaryToScript(const QVariantMap &map, NullText nullText) const
{
    QJSValue object = m_engine.newObject();
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        setKey(object, entry.key(), toScript(entry.value(), nullText));
    return object;
}

QString withArticle(const QString &noun)
{
    const bool startsWithVowel = QStringLiteral("AEIOU").contains(noun.left(1).toUpper());
    return (startsWithVowel ? QStringLiteral("an ") : QStringLiteral("a ")) + noun;
}

QString Values::described(const QJSValue &value) const
{
    if (value.isString()) {
        const QString text = value.toString();
        constexpr int longest = 60;
        return u'"' + (text.size() > longest ? text.left(longest) + u'…' : text) + u'"';
    }
    if (value.isUndefined() || value.isNull() || value.isBool() || value.isNumber())
        return value.toString();
    if (!value.isObject())
        return QStringLiteral("a symbol");
    if (value.isArray())
        return QStringLiteral("a list");
    if (value.isCallable())
        return QStringLiteral("a function");
    if (value.isDate())
        return QStringLiteral("a date");
    if (isData(value))
        return QStringLiteral("data");
    if (const QObject *object = objectOf(value))
        return withArticle(wordOf(*object->metaObject()));
    return QStringLiteral("an object");
}

} // namespace script
