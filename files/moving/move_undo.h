#pragma once

#include "files/moving/journal_shelf.h"
#include "files/moving/move_run.h"

#include <memory>
#include <vector>

namespace files {

/** An item of a run that cannot be undone. */
struct UndoProblem
{
    QString path;
    MoveProblem why = MoveProblem::None;
    QString reason;
};

/** What undoes a run: another run, to be started like any other. */
struct UndoPlan
{
    MoveOrderForm form;
    std::vector<UndoProblem> problems;
    MoveProblem why = MoveProblem::None; ///< nothing of the run can be undone
};

/**
 * Plans how a run is undone, last item first. Checks whether every item is still the one that was moved and whether its
 * old place is free; those that are changed, gone or blocked are left out with the reason. Copies are trashed, unless a
 * copy is its own original by now; links are removed if unchanged; what was trashed is restored. What was undone before
 * is left out. The run that undoes another can be undone too.
 */
UndoPlan planUndo(const platform::FileSystem &disk, const JournalShelf &shelf, const QString &run);

/** The same a little at a time, for a window that must stay responsive. Disk and shelf must outlive it. */
class UndoPlanning
{
public:
    UndoPlanning(const platform::FileSystem &disk, const JournalShelf &shelf, const QString &run);
    ~UndoPlanning();

    /** Handles one item; true when the plan is complete. */
    bool step();
    /** Once, after step() returned true. */
    UndoPlan take();

private:
    class Work;
    std::unique_ptr<Work> m_work;
};

/** The operation that undoes one item of an open run, or why that is impossible. */
struct TakeBack
{
    MoveItem operation;
    UndoProblem problem; ///< none if it is possible
};
TakeBack takeBackOf(const platform::FileSystem &disk, const RunRecord &run, int index);

struct Undoable
{
    int count = 0;
    MoveProblem why = MoveProblem::None; ///< nothing can be undone, as far as the journal says
};
Undoable undoableItems(const JournalShelf &shelf, const QString &run);

/** A run in the list of all. */
struct RunSummary
{
    RunRecord run; ///< without its items
    QString state; ///< "open", "done", "cancelled", "recovered" or "undone"
};

/** All runs whose journals are kept, newest first. */
std::vector<RunSummary> listRuns(const JournalShelf &shelf);

} // namespace files
