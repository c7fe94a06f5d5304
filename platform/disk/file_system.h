#pragma once

#include "platform/foundation/result.h"

#include <QString>

#include <optional>
#include <system_error>
#include <vector>

namespace platform {

enum class ItemKind { File, Folder, Link, Other };

/** What a file system says of one item. A link is an item itself, never what it leads to. */
struct ItemState
{
    ItemKind kind = ItemKind::Other;
    quint64 device = 0; ///< of one start of the system: another start may number its devices differently
    quint64 inode = 0;
    qint64 bytes = 0;
    qint64 changedNs = 0; ///< of the content, nanoseconds since 1970
    qint64 bornNs = 0;    ///< 0 where the file system does not keep it
    quint32 names = 1;    ///< hard links
};

struct FolderEntry
{
    QString name;
    bool mayBeFolder = false; ///< false: it is none
};

/** An item in the trash. */
struct TrashedItem
{
    QString path; ///< where it lies now
};

/**
 * The file system as one who moves files meets it, so that the same code runs on a disk and on a model in memory.
 *
 * Paths are absolute and never followed through a link in their last component. What changes something answers the system's
 * error and has then changed nothing, unless it says otherwise. Nothing here ever replaces an item, but for replace().
 */
class FileSystem
{
public:
    FileSystem() = default;
    FileSystem(const FileSystem &) = delete;
    FileSystem &operator=(const FileSystem &) = delete;
    virtual ~FileSystem() = default;

    virtual std::optional<ItemState> look(const QString &path) const = 0;
    /** All entries, hidden ones too, in no order; nothing where the folder cannot be read, or is a link to one. */
    virtual std::optional<std::vector<FolderEntry>> list(const QString &folder) const = 0;
    /** The folder's path without links; null where there is no such folder. */
    virtual QString canonicalFolder(const QString &folder) const = 0;
    /** Whether items may be made in the folder and taken out of it, as far as permissions tell. */
    virtual bool mayChange(const QString &folder) const = 0;
    /** Whether an item and all that is in it could be removed, as far as permissions tell. */
    virtual bool mayBeTakenAway(const QString &path) const = 0;
    /** What a link says; null where there is none. */
    virtual QString linkText(const QString &path) const = 0;
    /** Whether two items have the same bytes, links the same text, folders the same items in them. */
    virtual bool haveSameContent(const QString &one, const QString &other) const = 0;

    /** Fails with file_exists where @p to is taken, with cross_device_link where the two are on different file systems. */
    virtual std::error_code rename(const QString &from, const QString &to) = 0;
    /**
     * Swaps the names of two items of one file system, in one step; not a folder's. operation_not_supported where the file system
     * cannot do that.
     */
    virtual std::error_code exchange(const QString &one, const QString &other) = 0;
    /** Renames a file, in one step, over the file or link that is at @p to. */
    virtual std::error_code replace(const QString &from, const QString &to) = 0;
    /** Gives a file the permissions of another one, as far as that is allowed. */
    virtual void copyPermissions(const QString &from, const QString &to) = 0;
    /** Makes one folder. */
    virtual std::error_code makeFolder(const QString &path) = 0;
    virtual std::error_code removeEmptyFolder(const QString &path) = 0;
    /** Makes a symbolic link that says exactly @p target. */
    virtual std::error_code makeLink(const QString &target, const QString &path) = 0;
    /** Copies a file, link or whole folder; it is on the disk when this returns. A failure may leave a part. */
    virtual std::error_code copy(const QString &from, const QString &to) = 0;
    /** Removes a file, a link or a folder with all in it. A failure may leave a part of a folder. */
    virtual std::error_code remove(const QString &path) = 0;
    /** The same for what the caller has made: folders in it that may not be changed are removed too. */
    virtual std::error_code discard(const QString &path) = 0;
    virtual Result<TrashedItem> trash(const QString &path) = 0;
    /** Brings an item back from the trash to a path that nothing may be at. */
    virtual std::error_code restore(const TrashedItem &item, const QString &path) = 0;
    /** The item that was at @p path, as it lies in the trash, if the one with that state was put there; for what was cut short. */
    virtual std::optional<TrashedItem> findTrashed(const QString &path, const ItemState &state) const = 0;
    /** All that lies in the trash and was at @p path, the latest first. */
    virtual std::vector<TrashedItem> allTrashed(const QString &path) const = 0;
    /** Takes away what an interruption left of copying the item at @p path, which is there, into the trash. */
    virtual void discardHalfTrashed(const QString &path) = 0;
    /** Waits until the names in a folder are on the disk. */
    virtual void settle(const QString &folder) = 0;
};

} // namespace platform
