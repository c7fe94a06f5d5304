#pragma once

#include "files/moving/journal_shelf.h"
#include "files/moving/move_run.h"

#include <memory>
#include <vector>

namespace files {

/** An item of a run that cannot be taken back. */
struct UndoProblem
{
    QString path;
    MoveProblem why = MoveProblem::None;
    QString reason;
};

/** What takes a run back: a run again, to be begun like any other. */
struct UndoPlan
{
    MoveOrderForm form;
    std::vector<UndoProblem> problems;
    MoveProblem why = MoveProblem::None; ///< nothing of the run can be taken back
};

/**
 * Plans how a run is taken back, the last item first. Looks whether every item is still the one that was moved and whether its old
 * place is free; those that are changed, gone or hindered are left out with the reason. Copies are trashed,
 * unless a copy is its own original by now; links are removed if they still say the same; what was trashed comes back. What was
 * taken back before is left out. The run that takes another back can be taken back too.
 */
UndoPlan planUndo(const platform::FileSystem &disk, const JournalShelf &shelf, const QString &run);

/** The same a little at a time, for a window that is to answer meanwhile. Disk and shelf must outlive it. */
class UndoPlanning
{
public:
    UndoPlanning(const platform::FileSystem &disk, const JournalShelf &shelf, const QString &run);
    ~UndoPlanning();

    /** Does what one item needs; true when the plan is made. */
    bool step();
    /** Once, when step() said true. */
    UndoPlan take();

private:
    class Work;
    std::unique_ptr<Work> m_work;
};

/** The operation that undoes one item of a run that is open, or why it cannot be done. */
struct TakeBack
{
    MoveItem operation;
    UndoProblem problem; ///< none where it can
};
TakeBack takeBackOf(const platform::FileSystem &disk, const RunRecord &run, int index);

struct Undoable
{
    int count = 0;
    MoveProblem why = MoveProblem::None; ///< nothing can be taken back, as far as the journal tells
};
Undoable undoableItems(const JournalShelf &shelf, const QString &run);

/** A run in the list of all. */
struct RunSummary
{
    RunRecord run; ///< without its items
    QString state; ///< "open", "done", "cancelled", "recovered" or "undone"
};

/** All runs whose journals are kept, the newest first. */
std::vector<RunSummary> listRuns(const JournalShelf &shelf);

} // namespace files
