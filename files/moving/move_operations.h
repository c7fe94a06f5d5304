#pragma once

#include "files/moving/move_record.h"

namespace files {

/** The outcome of the operation on one item. */
struct OperationOutcome
{
    MoveProblem why = MoveProblem::None; ///< none: done
    QString message;                     ///< why not, a sentence
    QString path;                        ///< its path since then; empty if it was removed
    std::optional<platform::ItemState> is = std::nullopt;
};

/** What must be in the journal before an operation continues. Fails if it could not be written. */
class OperationLog
{
public:
    OperationLog() = default;
    OperationLog(const OperationLog &) = delete;
    OperationLog &operator=(const OperationLog &) = delete;
    virtual ~OperationLog() = default;
    /** A copy is complete, under its temporary name. */
    virtual platform::Result<void> noteCopy(int index, const platform::ItemState &state) = 0;
    /** A folder is about to be created. */
    virtual platform::Result<void> noteFolder(const QString &folder) = 0;
};

/** The hidden name of an item that is moved aside, in its own folder or in the destination's. */
QString asidePath(const QString &run, int index, const MoveItem &item);
/** The hidden name of an unfinished copy beside its target. */
QString partPath(const QString &run, int index, const QString &to);

/**
 * Carries out the operations of one run, one at a time.
 *
 * Nothing is replaced. An operation that fails leaves the item where it was. Temporary names begin with
 * ".quorlin-aside-" and are made of the run and the item's number, so that they can be found again after an
 * interruption.
 */
class MoveOperations
{
public:
    MoveOperations(platform::FileSystem &disk, QString run, OperationLog &log)
        : m_disk(disk), m_run(std::move(run)), m_log(log)
    {
    }

    /** @param source  the present path of the item: its old one, or its temporary one */
    OperationOutcome carryOut(int index, const MoveItem &item, const QString &source);
    /** Gives an item its temporary name. */
    OperationOutcome stepAside(int index, const MoveItem &item);
    /** Moves without verifying the identity of the source. */
    OperationOutcome move(int index, const QString &from, const QString &to);

    /** Restores the name of an item that was moved aside, with a number if it is taken; its path is then answered. */
    QString putBack(const QString &aside, const QString &path);

    /** Whether something under a temporary name could not be removed. */
    bool hasLeftOver() const { return m_hasLeftOver; }

private:
    struct Removal
    {
        std::error_code error;
        QString path;        ///< its path if it could not be removed
        bool isWhole = true; ///< false: part of it is gone
    };

    OperationOutcome moved(int index, const MoveItem &item, const QString &source);
    OperationOutcome movedToOtherDisk(int index, const QString &from, const QString &to);
    OperationOutcome copied(int index, const QString &from, const QString &to);
    OperationOutcome linked(const MoveItem &item);
    OperationOutcome trashed(const QString &path);
    OperationOutcome copyRemoved(const MoveItem &item);
    OperationOutcome linkRemoved(int index, const MoveItem &item);
    OperationOutcome restored(const MoveItem &item);
    OperationOutcome renamedInCase(int index, const QString &from, const QString &to);
    void discard(const QString &path);
    OperationOutcome withoutCopy(int index, OperationOutcome why, const QString &source, const OperationOutcome &copy);
    Removal removeWhole(int index, const QString &path, const QString &copy);
    void settleWayTo(const QString &path);
    bool isInside(const QString &folder, const QString &item) const;
    bool isSameUnderOtherCase(const QString &from, const QString &to) const;
    OperationOutcome madeFolders(const QString &folder);
    OperationOutcome done(const QString &path) const;

    platform::FileSystem &m_disk;
    QString m_run;
    OperationLog &m_log;
    bool m_hasLeftOver = false;
    QStringList m_newFolders; ///< whose names may not be synced yet
};

/** The failure for a system's error that hit the item at @p path on its way to @p to. */
OperationOutcome failureFor(const std::error_code &error, const QString &path, const QString &to);

} // namespace files
