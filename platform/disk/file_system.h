#pragma once

#include "platform/foundation/result.h"

#include <QString>

#include <optional>
#include <system_error>
#include <vector>

namespace platform {

enum class ItemKind { File, Folder, Link, Other };

/** What a file system says about one item. A link is an item itself, never its target. */
struct ItemState
{
    ItemKind kind = ItemKind::Other;
    quint64 device = 0; ///< identifies the boot: device numbers may differ after a restart
    quint64 inode = 0;
    qint64 bytes = 0;
    qint64 changedNs = 0; ///< of the content, nanoseconds since 1970
    qint64 bornNs = 0;    ///< 0 if the file system does not store it
    quint32 names = 1;    ///< hard links
};

struct FolderEntry
{
    QString name;
    bool mayBeFolder = false; ///< false: there is no item
};

/** An item in the trash. */
struct TrashedItem
{
    QString path; ///< its current location
};

/**
 * The file system as the move engine sees it, so that the same code runs on a disk and on a model in memory.
 *
 * Paths are absolute, and a link in the last component is not followed. Operations that change something return the
 * system's error and have then changed nothing, unless stated otherwise. Nothing here ever replaces an item, except
 * replace().
 */
class FileSystem
{
public:
    FileSystem() = default;
    FileSystem(const FileSystem &) = delete;
    FileSystem &operator=(const FileSystem &) = delete;
    virtual ~FileSystem() = default;

    virtual std::optional<ItemState> look(const QString &path) const = 0;
    /**
     * All entries, including hidden ones, in no particular order; nothing if the folder cannot be read, or is a link.
     */
    virtual std::optional<std::vector<FolderEntry>> list(const QString &folder) const = 0;
    /** The folder's path without links; null if it does not exist. */
    virtual QString canonicalFolder(const QString &folder) const = 0;
    /** Whether items can be created in and removed from the folder, as far as permissions tell. */
    virtual bool mayChange(const QString &folder) const = 0;
    /** Whether an item and all its contents could be removed, as far as permissions tell. */
    virtual bool mayBeTakenAway(const QString &path) const = 0;
    /** The target of a link; null if it is none. */
    virtual QString linkText(const QString &path) const = 0;
    /** Whether two items have the same bytes, links the same text, folders the same contents. */
    virtual bool haveSameContent(const QString &one, const QString &other) const = 0;

    /** Fails with file_exists if @p to is taken, with cross_device_link if the two are on different file systems. */
    virtual std::error_code rename(const QString &from, const QString &to) = 0;
    /**
     * Swaps the names of two items of one file system atomically; not of folders. operation_not_supported if the file
     * system cannot do that.
     */
    virtual std::error_code exchange(const QString &one, const QString &other) = 0;
    /** Atomically renames a file over the file or link at @p to. */
    virtual std::error_code replace(const QString &from, const QString &to) = 0;
    /** Gives a file the permissions of another one, as far as allowed. */
    virtual void copyPermissions(const QString &from, const QString &to) = 0;
    /** Creates one folder. */
    virtual std::error_code makeFolder(const QString &path) = 0;
    virtual std::error_code removeEmptyFolder(const QString &path) = 0;
    /** Creates a symbolic link with exactly the text @p target. */
    virtual std::error_code makeLink(const QString &target, const QString &path) = 0;
    /** Copies a file, link or whole folder and syncs it. A failure may leave a partial copy. */
    virtual std::error_code copy(const QString &from, const QString &to) = 0;
    /** Removes a file, a link or a folder with its contents. A failure may leave part of a folder. */
    virtual std::error_code remove(const QString &path) = 0;
    /** The same for what the caller has made: read-only folders in it are removed too. */
    virtual std::error_code discard(const QString &path) = 0;
    virtual Result<TrashedItem> trash(const QString &path) = 0;
    /** Restores an item from the trash to a free path. */
    virtual std::error_code restore(const TrashedItem &item, const QString &path) = 0;
    /**
     * Where the item that was at @p path is in the trash, if the one with that state was put there; for operations that
     * were interrupted.
     */
    virtual std::optional<TrashedItem> findTrashed(const QString &path, const ItemState &state) const = 0;
    /** All items in the trash that were at @p path, latest first. */
    virtual std::vector<TrashedItem> allTrashed(const QString &path) const = 0;
    /** Removes what an interruption left of copying the item at @p path, which exists, into the trash. */
    virtual void discardHalfTrashed(const QString &path) = 0;
    /** Syncs the names in a folder to the disk. */
    virtual void settle(const QString &folder) = 0;
};

} // namespace platform
