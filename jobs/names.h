#pragma once

#include "image/recipe/plan.h"
#include "jobs/inputs.h"

#include <QHash>
#include <QSet>

namespace jobs {

/** Where results go. */
struct Destination
{
    QString folder;         ///< absolute base of relative folders; empty: the folder of each picture
    bool keepsTree = false; ///< the tree of each input folder is built again below it
};

/** The base folder of a picture's results. */
QString baseFolderOf(const Input &input, const Destination &destination);

/**
 * A recipe's pattern for one picture. Values are English; what the picture lacks is "undated" or "unknown", a "/" in a value
 * becomes "-", and no value is a step up. {width} and {height} are those of @p size.
 *
 * @param index  how many inputs came before this one
 */
QString nameFrom(const QString &pattern, const QString &path, int index, QSize size);

/** The same for a folder, absolute where the pattern is; parts that come out empty are left out. */
QString folderFrom(const QString &pattern, const QString &base, const QString &path, int index, QSize size);

/** The same for the text of a watermark, in which a missing value is nothing and a "/" stays. */
QString watermarkFrom(const QString &pattern, const QString &path, int index, QSize size);

/** What stands where a result wants to be. */
enum class Standing { Nothing, OnDisk, OwnInput, OtherInput, OtherResult };

/**
 * The names of all results of a batch. Two names that differ only in case or in the way an accent is written are one name on many
 * disks, so they count as the same everywhere.
 */
class ResultNames
{
public:
    explicit ResultNames(const QList<Input> &inputs);

    Standing standingAt(const QString &path, const Input &input);
    /** Notes that a result of the batch goes there. */
    void give(const QString &path);
    /** Gives the first free numbered form of @p path, counting from 2, and answers it. */
    QString giveNumbered(const QString &path);

private:
    struct Folder
    {
        QString path;
        bool isThere = false;
        QSet<QString> onDisk;
        QSet<QString> given;
        QHash<QString, int> nextNumber; ///< of the next numbered form of a name
    };

    Folder &folderOf(const QString &path);
    QString knownIdentityOf(const QString &folder) const;
    bool isFree(const QString &path);

    QSet<QString> m_inputs;               ///< identities
    QHash<QString, QString> m_identities; ///< of the paths of folders that were asked for
    QHash<QString, Folder> m_folders;     ///< by their identities when they were first met
};

} // namespace jobs
