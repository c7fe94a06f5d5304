#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

/**
 * The names of one folder during a run: those on the disk, and those given to results of the run. Names that many disks
 * treat as the same count as one; see platform::nameKey(). No disk is accessed.
 */
class FolderNames : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("ClassOperations", "keyOf numbered")
    /** Those on the disk. */
    Q_PROPERTY(QStringList names READ names WRITE setNames)

public:
    Q_INVOKABLE explicit FolderNames(QObject *parent = nullptr);

    QStringList names() const { return m_names; }
    void setNames(const QStringList &names);

    /** See platform::nameKey(). */
    Q_INVOKABLE QString keyOf(const QString &name) const;
    /** See platform::fittingNumberedName(). */
    Q_INVOKABLE QString numbered(const QString &name, int number) const;

    /**
     * The name on the disk that blocks this one, as it is spelled there: the name itself if it exists; empty if none
     * does.
     */
    Q_INVOKABLE QString onDiskAs(const QString &name) const;
    /** Whether a result of this run was given that name. */
    Q_INVOKABLE bool isGiven(const QString &name) const;
    /** Neither on the disk nor given. */
    Q_INVOKABLE bool isFree(const QString &name) const;

    /** Gives a name to a result, and answers it. */
    Q_INVOKABLE QString give(const QString &name);
    /** Gives the first free numbered form of a name, counting from 2, and answers it. */
    Q_INVOKABLE QString giveNumbered(const QString &name);

private:
    bool isFreeByKey(const QString &key) const { return !m_given.contains(key) && !m_onDisk.contains(key); }

    QStringList m_names;
    QSet<QString> m_exact;
    QHash<QString, QString> m_onDisk; ///< by key, as they are spelled
    QSet<QString> m_given;            ///< keys
    QHash<QString, int> m_nextNumber; ///< by key
};
