#pragma once

#include "text/token_values.h"

#include <QObject>
#include <QVariantMap>

/** A text with tokens, prepared for many files. In the reader's words. */
class TokenText : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString pattern READ pattern WRITE setPattern)
    /** Replacements for missing values, by the names of tokens, and one for all other tokens. */
    Q_PROPERTY(QVariantMap standIns READ standIns WRITE setStandIns)
    Q_PROPERTY(QString standIn MEMBER m_standIn)
    /**
     * What is done to a value before it is inserted. "plain": nothing; "name": it is made fit for a file name;
     * "folder": for a folder name, and so is the whole text, which becomes "-" if nothing of it is left.
     */
    Q_PROPERTY(QString values READ values WRITE setValues)
    /** Whether expand() needs more than paths and indices. */
    Q_PROPERTY(bool needsFacts READ needsFacts)

public:
    Q_INVOKABLE explicit TokenText(QObject *parent = nullptr);

    QString pattern() const { return m_pattern; }
    void setPattern(const QString &pattern);
    QVariantMap standIns() const;
    /** Raises a TypeError if one is not a text. */
    void setStandIns(const QVariantMap &standIns);
    QString values() const;
    /** Raises a TypeError for another word. */
    void setValues(const QString &word);
    bool needsFacts() const { return m_needsFacts; }

    /**
     * The text for one file, followed by the names of the tokens for which it has no value.
     *
     * @param facts  from FileService::facts(); null if needsFacts is false, or nothing is known. Raises a TypeError for
     *               one of another type
     * @param index  how many files come before this one, for counters; whole, or a RangeError is raised
     */
    Q_INVOKABLE QStringList expand(const QString &path, const QVariantMap &facts, double index) const;

private:
    enum class Values { Plain, Name, Folder };

    text::StandIn standInForMissing() const;

    QString m_pattern;
    QMap<QString, QString> m_standIns;
    QString m_standIn;
    Values m_values = Values::Plain;
    QList<text::TokenPart> m_parts;
    bool m_needsFacts = false;
};
