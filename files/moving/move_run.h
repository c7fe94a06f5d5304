#pragma once

#include "files/moving/journal_shelf.h"
#include "files/moving/move_operations.h"

#include <deque>
#include <memory>
#include <set>

namespace files {

/** The outcome for one item. */
struct MoveResult
{
    int index = -1;
    Stand stand = Stand::Waiting;        ///< Done, Failed or Skipped
    MoveProblem why = MoveProblem::None; ///< it failed or was skipped
    QString message;
    QString path; ///< where the item is now
};

/** A run to be started. */
struct MoveOrderForm
{
    QString title;
    std::vector<MoveItem> items;
    QString undoes;           ///< the run that it undoes
    QStringList emptyFolders; ///< removed at the end if it is empty
};

/**
 * A run that renames, moves, copies and links, in steps, with a journal.
 *
 * The journal is on the disk before the first item moves. To break a cycle, an item is moved aside under a hidden name
 * in its folder; the steps of one cycle are done together, so that between two calls of next() every item has its old
 * or its new name. Nothing is ever replaced. An item that fails keeps its old name; only if another program has taken
 * that in between does it get a number, and it says so.
 *
 * Destroying a run does not end it: what is left then is what an interruption leaves, and MoveRecovery ends it.
 */
class MoveRun : private OperationLog
{
public:
    /** Starts a run. Fails if the journal cannot be written; nothing has moved then. */
    static platform::Result<std::unique_ptr<MoveRun>> begin(platform::FileSystem &disk, JournalShelf &shelf,
                                                            const MoveOrderForm &form);
    /** A run without items, which are added one by one. */
    static platform::Result<std::unique_ptr<MoveRun>> open(platform::FileSystem &disk, JournalShelf &shelf,
                                                           const QString &title);
    /** Such a run that has ended: more items can be added. Fails if it is none, or belongs to another process. */
    static platform::Result<std::unique_ptr<MoveRun>> reopen(platform::FileSystem &disk, JournalShelf &shelf,
                                                             const QString &id);
    /** A run that was interrupted; its journal must be locked. */
    static std::unique_ptr<MoveRun> resume(platform::FileSystem &disk, JournalShelf &shelf, RunRecord record);

    QString id() const { return m_record.id; }
    const RunRecord &record() const { return m_record; }

    /** Carries out one more item; nothing after the last one. */
    std::optional<MoveResult> next();
    /** Has next() try the last item again if it failed because the disk is full. False if it did not, or is part of a circle. */
    bool again();
    /** Ends the run, even before its last item. Fails if the journal could not be completed. */
    platform::Result<void> end();

    /** Adds an item to an open run and carries it out. */
    MoveResult add(MoveItem item);
    /** The last item that is in effect, or -1. */
    int lastDone() const;
    /** Undoes one item with the operation that does so. */
    MoveResult takeBack(int index, const MoveItem &operation);

    /** Completes or undoes interrupted operations; afterwards the records say where everything is. */
    void mend();
    void close(const QString &end);

private:
    friend class MoveBeginning;

    MoveRun(platform::FileSystem &disk, JournalShelf &shelf, RunRecord record);

    platform::Result<void> noteCopy(int index, const platform::ItemState &state) override;
    platform::Result<void> noteFolder(const QString &folder) override;
    platform::Result<void> note(const QByteArray &line, Lasting lasting = Lasting::WhenTheSystemLikes);

    MoveRecord &at(int index) { return m_record.items[size_t(index)]; }
    void findGroup();
    void runGroup();
    void stepAside(int index);
    void giveName(int index);
    bool isToBeSkipped(int index);
    bool isWaitedFor(int index);
    void takeBackGroup(const OperationOutcome &why);
    void bringBack(int index, const OperationOutcome &why);
    void markDone(int index, const OperationOutcome &outcome);
    void markFailed(int index, const OperationOutcome &outcome);
    void settleResult(int index);
    void refuseWithoutSteps();
    void removeEmptyFolders();

    platform::FileSystem &m_disk;
    JournalShelf &m_shelf;
    RunRecord m_record;
    MoveOperations m_operations;
    size_t m_step = 0;
    size_t m_groupBegin = 0; ///< steps that leave nothing under a temporary name once all are done
    size_t m_groupEnd = 0;
    std::vector<int> m_settled; ///< items of the group that are finished, in order
    std::deque<MoveResult> m_results;
    std::set<QString> m_touched;
    QStringList m_emptyFolders;
    QByteArray m_unwritten; ///< lines not yet written to the journal
    platform::Result<void> m_trouble;
    bool m_areRestRefused = false;
};

} // namespace files
