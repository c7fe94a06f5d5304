#pragma once

#include "files/moving/move_run.h"

#include <chrono>

namespace files {

/**
 * Starts a run in slices, for a window that must stay responsive: checks all its items, orders them, and writes the
 * head of its journal. Nothing moves before all of that is on the disk. If destroyed before take(), it leaves nothing.
 */
class MoveBeginning
{
public:
    MoveBeginning(platform::FileSystem &disk, JournalShelf &shelf, MoveOrderForm form);
    ~MoveBeginning();
    MoveBeginning(const MoveBeginning &) = delete;
    MoveBeginning &operator=(const MoveBeginning &) = delete;

    /** Works for about this long, and always makes progress; true when finished. */
    bool workFor(std::chrono::milliseconds time);
    /** The run; fails if its journal could not be written. Once, after workFor() returned true. */
    platform::Result<std::unique_ptr<MoveRun>> take();

private:
    class Looking;

    void look();
    void order();
    void write();

    platform::FileSystem &m_disk;
    JournalShelf &m_shelf;
    MoveOrderForm m_form;
    RunRecord m_record;
    std::unique_ptr<Looking> m_looking; ///< until all items are ordered
    int m_written = 0;                  ///< items written to the journal
    bool m_isMade = false;              ///< there is a journal
    bool m_isDone = false;
    platform::Result<void> m_trouble;
};

/** A record of a run that begins now, without items. */
RunRecord newRecord(const QString &title);
/** Removes the oldest journals to make room for one more; those of unfinished runs stay. */
void discardOldJournals(JournalShelf &shelf);

} // namespace files
