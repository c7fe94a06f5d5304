#pragma once

#include "files/moving/move_run.h"

#include <chrono>

namespace files {

/**
 * Begins a run in slices, for a window that is to answer meanwhile: looks at all its items, orders them, and writes the head of its journal.
 * Nothing moves before all of that is on the disk. Destroyed before take(), it leaves nothing.
 */
class MoveBeginning
{
public:
    MoveBeginning(platform::FileSystem &disk, JournalShelf &shelf, MoveOrderForm form);
    ~MoveBeginning();
    MoveBeginning(const MoveBeginning &) = delete;
    MoveBeginning &operator=(const MoveBeginning &) = delete;

    /** Works for about this long, and always gets somewhere; true when all is done. */
    bool workFor(std::chrono::milliseconds time);
    /** The run; fails where its journal could not be written. Once, when workFor() said true. */
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
    int m_written = 0;                  ///< items that the journal tells
    bool m_isMade = false;              ///< there is a journal
    bool m_isDone = false;
    platform::Result<void> m_trouble;
};

/** A record of a run that begins now, without items. */
RunRecord newRecord(const QString &title);
/** Takes the oldest journals away, so that there is a place for one more; those that are not ended stay. */
void discardOldJournals(JournalShelf &shelf);

} // namespace files
