#pragma once

#include "files/moving/move_record.h"

namespace files {

/** How the deed on one item went. */
struct DeedOutcome
{
    MoveProblem why = MoveProblem::None; ///< none: done
    QString message;                     ///< why not, a sentence
    QString path;                        ///< where the item is since then; empty if it was removed
    std::optional<platform::ItemState> is = std::nullopt;
};

/** What must be in the journal before a deed goes on. Fails where it could not be written. */
class DeedLog
{
public:
    DeedLog() = default;
    DeedLog(const DeedLog &) = delete;
    DeedLog &operator=(const DeedLog &) = delete;
    virtual ~DeedLog() = default;
    /** A copy is whole, under its temporary name. */
    virtual platform::Result<void> noteCopy(int index, const platform::ItemState &state) = 0;
    /** A folder is about to be made. */
    virtual platform::Result<void> noteFolder(const QString &folder) = 0;
};

/** The hidden name of an item that stands aside, in its own folder or in the one that it goes to. */
QString asidePath(const QString &run, int index, const MoveItem &item);
/** The hidden name of an unfinished copy beside its target. */
QString partPath(const QString &run, int index, const QString &to);

/**
 * Carries out the deeds of one run, one at a time.
 *
 * Nothing is replaced. A deed that fails leaves the item where it was. Temporary names begin with ".quorlin-aside-" and are
 * made of the run and the item's number, so that they can be found again after an interruption.
 */
class MoveDeeds
{
public:
    MoveDeeds(platform::FileSystem &disk, QString run, DeedLog &log) : m_disk(disk), m_run(std::move(run)), m_log(log)
    {
    }

    /** @param source  where the item is: its old place, or its temporary one */
    DeedOutcome carryOut(int index, const MoveItem &item, const QString &source);
    /** Gives an item its temporary name. */
    DeedOutcome stepAside(int index, const MoveItem &item);
    /** Moves without looking what is moved. */
    DeedOutcome move(int index, const QString &from, const QString &to);

    /** Gives an item its name again that stands aside, or that with a number where it is taken; its path is then answered. */
    QString putBack(const QString &aside, const QString &path);

    /** Whether something under a temporary name could not be taken away. */
    bool hasLeftOver() const { return m_hasLeftOver; }

private:
    struct Removal
    {
        std::error_code error;
        QString path;        ///< where it is if it could not be removed
        bool isWhole = true; ///< false: a part of it is gone
    };

    DeedOutcome moved(int index, const MoveItem &item, const QString &source);
    DeedOutcome movedToOtherDisk(int index, const QString &from, const QString &to);
    DeedOutcome copied(int index, const QString &from, const QString &to);
    DeedOutcome linked(const MoveItem &item);
    DeedOutcome trashed(const QString &path);
    DeedOutcome copyRemoved(const MoveItem &item);
    DeedOutcome linkRemoved(int index, const MoveItem &item);
    DeedOutcome restored(const MoveItem &item);
    DeedOutcome renamedInCase(int index, const QString &from, const QString &to);
    void discard(const QString &path);
    DeedOutcome withoutCopy(int index, DeedOutcome why, const QString &source, const DeedOutcome &copy);
    Removal removeWhole(int index, const QString &path, const QString &copy);
    void settleWayTo(const QString &path);
    bool isInside(const QString &folder, const QString &item) const;
    bool isSameUnderOtherCase(const QString &from, const QString &to) const;
    DeedOutcome madeFolders(const QString &folder);
    DeedOutcome done(const QString &path) const;

    platform::FileSystem &m_disk;
    QString m_run;
    DeedLog &m_log;
    bool m_hasLeftOver = false;
    QStringList m_newFolders; ///< whose names may not be on the disk yet
};

/** The failure for a system's error that hit the item at @p path on its way to @p to. */
DeedOutcome failureFor(const std::error_code &error, const QString &path, const QString &to);

} // namespace files
