#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

namespace platform {

/**
 * What a script wrote in a dictionary, read by names. What is of another type than is meant raises Raised, a TypeError
 * of the form "Expected X for N but received V"; what is missing or null is the value that is asked for instead.
 */
class Fields
{
public:
    /** @param name  what the sentence calls the dictionary: "wishes[2]". Raises where @p value is none. */
    Fields(const QVariant &value, QString name);
    /** The same, and raises where the dictionary has another key than these. */
    Fields(const QVariant &value, QString name, const QStringList &keys);

    QString text(const char *key) const;
    bool truth(const char *key, bool otherwise) const;
    int whole(const char *key, int otherwise) const;
    /** With an end. */
    double number(const char *key, double otherwise) const;
    /** Of every key, whatever they are called. */
    QMap<QString, QString> everyText() const;
    /** Empty where it is missing. */
    QVariantList list(const char *key) const;
    /** The same for a list of texts. */
    QStringList texts(const char *key) const;

    /** Says that @p key holds something else than is expected: "\"move\", \"copy\" or \"link\"". */
    [[noreturn]] void reject(const char *expected, const char *key) const;

private:
    QString textAt(const QString &key) const;
    QVariant value(const char *key) const { return m_map.value(QString::fromLatin1(key)); }

    QVariantMap m_map;
    QString m_name;
};

/** A list of whole numbers from @p least on; raises, as Fields does, where one of them is something else. */
QList<int> wholeNumbers(const QVariantList &list, const QString &name, int least);

/** A list of true and false. */
QList<bool> truths(const QVariantList &list, const QString &name);

} // namespace platform
