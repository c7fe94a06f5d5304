#pragma once

#include "image/recipe/recipe.h"
#include "jobs/inputs.h"
#include "platform/imageio/source/picture_facts.h"
#include "text/token_values.h"

#include <QHash>
#include <QSet>

#include <functional>

namespace jobs {

/** Where results go. */
struct Destination
{
    QString folder;         ///< absolute base of relative folders; empty: the folder of each picture
    bool keepsTree = false; ///< the tree of each input folder is built again below it
};

/** The base folder of a picture's results. */
QString baseFolderOf(const Input &input, const Destination &destination);

/** Whether names, folders and watermarks of a recipe say more of a picture than its path does. */
bool needsFacts(const image::Recipe &recipe);

/**
 * What is known of a picture without looking into it.
 *
 * @param index     how many inputs came before this one
 * @param isNeeded  see needsFacts(): without them its path and number are all
 */
text::TokenFacts factsOfFile(const QString &path, int index, bool isNeeded);

/** All that is known of a picture, which is opened for it in this process. */
text::TokenFacts factsOfPicture(const QString &path, int index);

/** What is known of the file with what the picture says of itself, its date by the corrected clock of the camera. */
text::TokenFacts withPictureFacts(const text::TokenFacts &facts, const platform::PictureFacts &picture);

/**
 * A recipe's pattern for one picture. Values are English; what the picture lacks is "undated" or "unknown", a "/" in a value
 * becomes "-", and no value is a step up. {width} and {height} are those of @p size.
 */
QString nameFrom(const QString &pattern, const text::TokenFacts &facts, QSize size);

/** The same for a folder, absolute where the pattern is; parts that come out empty are left out. */
QString folderFrom(const QString &pattern, const QString &base, const text::TokenFacts &facts, QSize size);

/** The same for the text of a watermark, in which a missing value is nothing and a "/" stays. */
QString watermarkFrom(const QString &pattern, const text::TokenFacts &facts, QSize size);

/** Whether the names of an output need more of a picture than its path: what is inside it, or what its disk knows. */
bool namesNeedPictures(const image::RecipeOutput &output);

/** What is at the path that a result wants. */
enum class Standing { Nothing, OnDisk, OwnInput, OtherInput, OtherResult };

/**
 * The names of all results of a batch. Two names that differ only in case or in the way an accent is written are one name on many
 * disks, so they count as the same everywhere.
 *
 * Each result is planned among the results alone, in the order of the inputs, so that all who know the inputs plan the same names
 * whatever is on their disks. What is there is looked at afterwards, for those results that are made here.
 * Memory: some 20 bytes a name.
 */
class ResultNames
{
public:
    using IsReserved = std::function<bool(const QString &path)>;
    /**
     * @param inputs      are checked when something is compared with them; the batch walks through them meanwhile
     * @param isReserved  whether giveNumbered() must not give a path
     */
    ResultNames(const Inputs &inputs, const IsReserved &isReserved) : m_inputs(inputs), m_isReserved(isReserved) {}

    /** Plans a result at @p path, or at the first numbered form of it that no result is planned at, counting from 2. */
    QString plan(const QString &path);
    /** Plans a result at such a numbered form in any case. */
    QString planNumbered(const QString &path);
    /** Whether one of the inputs that are known so far is at @p path, and another one than @p input. */
    bool isOtherInput(const QString &path, const Input &input) const;
    /** Notes that @p path is kept for a result that is not planned. */
    void keep(const QString &path);

    /** What is at the path of a planned result. */
    Standing standingAt(const QString &planned, const Input &input);
    /** Gives the first numbered form of @p path that nothing has, neither a result nor the disk, counting from 2. */
    QString giveNumbered(const QString &path);

private:
    using Key = quint64; ///< of a name; two names of one key only cost a number

    struct Folder
    {
        QString path;
        bool isThere = false;
        bool isListed = false;
        QSet<Key> onDisk;
        QSet<Key> planned;
        QSet<Key> given;             ///< besides those that were planned
        QHash<Key, int> nextPlanned; ///< number of the next numbered form of a name
        QHash<Key, int> nextGiven;
    };

    Folder &folderOf(const QString &path);
    Folder &listedFolderOf(const QString &path);
    QString knownIdentityOf(const QString &folder);

    const Inputs &m_inputs;
    IsReserved m_isReserved;
    QHash<QString, QString> m_identities; ///< of the paths of folders that were asked for
    QHash<QString, Folder> m_folders;     ///< by their identities when they were first met
    QStringList m_missing;                ///< identities of folders that were not there
};

} // namespace jobs
