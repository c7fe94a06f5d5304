#include "platform/values/fields.h"

#include "platform/foundation/raised.h"

#include <cmath>
#include <utility>

namespace platform {

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

/** The types of numbers from scripts: integers of any size, and others. */
bool isNumber(const QVariant &value)
{
    const int type = value.typeId();
    return type == QMetaType::Int || type == QMetaType::LongLong || type == QMetaType::Double;
}

QString itemName(const QString &list, qsizetype index)
{
    return QStringLiteral("%1[%2]").arg(list).arg(index);
}

[[noreturn]] void refuse(const QString &expected, const QString &name, const QVariant &value)
{
    throw Raised::typeError(QStringLiteral("Expected %1 for %2 but received %3").arg(expected, name, described(value)));
}

} // namespace

Fields::Fields(const QVariant &value, QString name) : m_map(value.toMap()), m_name(std::move(name))
{
    if (value.typeId() != QMetaType::QVariantMap)
        refuse(QStringLiteral("a dictionary"), m_name, value);
}

Fields::Fields(const QVariant &value, QString name, const QStringList &keys) : Fields(value, std::move(name))
{
    for (auto entry = m_map.cbegin(); entry != m_map.cend(); ++entry)
        if (!keys.contains(entry.key()))
            throw Raised::typeError(QStringLiteral("%1 has no field %2").arg(m_name, entry.key()));
}

void Fields::reject(const char *expected, const char *key) const
{
    refuse(QString::fromLatin1(expected), m_name + u'.' + QString::fromLatin1(key), value(key));
}

QString Fields::text(const char *key) const
{
    return textAt(QString::fromLatin1(key));
}

QString Fields::textAt(const QString &key) const
{
    const QVariant given = m_map.value(key);
    if (!given.isNull() && given.typeId() != QMetaType::QString)
        refuse(QStringLiteral("text"), m_name + u'.' + key, given);
    return given.toString();
}

QMap<QString, QString> Fields::everyText() const
{
    QMap<QString, QString> all;
    for (auto entry = m_map.begin(); entry != m_map.end(); ++entry)
        all.insert(entry.key(), textAt(entry.key()));
    return all;
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

double Fields::number(const char *key, double otherwise) const
{
    const QVariant given = value(key);
    if (given.isNull())
        return otherwise;
    if (!isNumber(given) || !std::isfinite(given.toDouble()))
        reject("a number", key);
    return given.toDouble();
}

QVariantList Fields::list(const char *key) const
{
    const QVariant given = value(key);
    if (!given.isNull() && given.typeId() != QMetaType::QVariantList)
        reject("a list", key);
    return given.toList();
}

QStringList Fields::texts(const char *key) const
{
    const QVariantList given = list(key);
    QStringList texts;
    for (qsizetype i = 0; i < given.size(); ++i) {
        if (given.at(i).typeId() != QMetaType::QString)
            refuse(QStringLiteral("text"), itemName(m_name + u'.' + QString::fromLatin1(key), i), given.at(i));
        texts.append(given.at(i).toString());
    }
    return texts;
}

QList<int> wholeNumbers(const QVariantList &list, const QString &name, int least)
{
    QList<int> numbers;
    for (qsizetype i = 0; i < list.size(); ++i) {
        if (list.at(i).typeId() != QMetaType::Int || list.at(i).toInt() < least)
            refuse(least == 0 ? QStringLiteral("a whole number from 0") : QStringLiteral("a whole number"),
                   itemName(name, i), list.at(i));
        numbers.append(list.at(i).toInt());
    }
    return numbers;
}

QList<bool> truths(const QVariantList &list, const QString &name)
{
    QList<bool> truths;
    for (qsizetype i = 0; i < list.size(); ++i) {
        if (list.at(i).typeId() != QMetaType::Bool)
            refuse(QStringLiteral("true or false"), itemName(name, i), list.at(i));
        truths.append(list.at(i).toBool());
    }
    return truths;
}

} // namespace platform
