#include "files/services/fields.h"

#include "platform/foundation/raised.h"

#include <utility>

namespace files {

namespace {

QString described(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return u'"' + value.toString() + u'"';
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return QStringLiteral("a list");
    case QMetaType::QVariantMap:
        return QStringLiteral("an object");
    case QMetaType::QDateTime:
        return QStringLiteral("a date");
    case QMetaType::QByteArray:
        return QStringLiteral("data");
    default:
        return value.isNull() ? QStringLiteral("null") : value.toString();
    }
}

[[noreturn]] void refuse(const QString &expected, const QString &name, const QVariant &value)
{
    throw platform::Raised::typeError(
        QStringLiteral("Expected %1 for %2 but received %3").arg(expected, name, described(value)));
}

} // namespace

Fields::Fields(const QVariant &value, QString name) : m_map(value.toMap()), m_name(std::move(name))
{
    if (value.typeId() != QMetaType::QVariantMap)
        refuse(QStringLiteral("a dictionary"), m_name, value);
}

void Fields::reject(const char *expected, const char *key) const
{
    refuse(QString::fromLatin1(expected), m_name + u'.' + QString::fromLatin1(key), value(key));
}

QString Fields::text(const char *key) const
{
    const QVariant given = value(key);
    if (!given.isNull() && given.typeId() != QMetaType::QString)
        reject("text", key);
    return given.toString();
}

bool Fields::truth(const char *key, bool otherwise) const
{
    const QVariant given = value(key);
    if (given.isNull())
        return otherwise;
    if (given.typeId() != QMetaType::Bool)
        reject("true or false", key);
    return given.toBool();
}

int Fields::whole(const char *key, int otherwise) const
{
    const QVariant given = value(key);
    if (given.isNull())
        return otherwise;
    if (given.typeId() != QMetaType::Int)
        reject("a whole number", key);
    return given.toInt();
}

QVariantList Fields::list(const char *key) const
{
    const QVariant given = value(key);
    if (!given.isNull() && given.typeId() != QMetaType::QVariantList)
        reject("a list", key);
    return given.toList();
}

} // namespace files
