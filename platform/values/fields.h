#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

namespace platform {

/**
 * A dictionary from a script, read by names. A value of the wrong type raises Raised, a TypeError of the form "Expected
 * X for N but received V"; a missing or null value becomes the default that the caller names.
 */
class Fields
{
public:
    /** @param name  the dictionary's name in sentences: "wishes[2]". Raises if @p value is none. */
    Fields(const QVariant &value, QString name);
    /** The same, and raises if the dictionary has other keys than these. */
    Fields(const QVariant &value, QString name, const QStringList &keys);

    QString text(const char *key) const;
    bool truth(const char *key, bool otherwise) const;
    int whole(const char *key, int otherwise) const;
    /** With an end. */
    double number(const char *key, double otherwise) const;
    /** For every key, whatever its name. */
    QMap<QString, QString> everyText() const;
    /** Empty if it is missing. */
    QVariantList list(const char *key) const;
    /** The same for a list of texts. */
    QStringList texts(const char *key) const;

    /** Raises because @p key holds something other than expected: "\"move\", \"copy\" or \"link\"". */
    [[noreturn]] void reject(const char *expected, const char *key) const;

private:
    QString textAt(const QString &key) const;
    QVariant value(const char *key) const { return m_map.value(QString::fromLatin1(key)); }

    QVariantMap m_map;
    QString m_name;
};

/** A list of whole numbers from @p least on; raises, like Fields, if one of them is something else. */
QList<int> wholeNumbers(const QVariantList &list, const QString &name, int least);

/** A list of true and false. */
QList<bool> truths(const QVariantList &list, const QString &name);

} // namespace platform
