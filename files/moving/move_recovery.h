#pragma once

#include "files/moving/journal_shelf.h"
#include "files/moving/move_record.h"

#include "platform/disk/file_system.h"

#include <QStringList>

#include <vector>

namespace files {

struct RecoveredRun
{
    QString id;
    QString title;
    int done = 0;      ///< items that already had their new names
    int finished = 0;  ///< interrupted items that have their new names now
    int takenBack = 0; ///< interrupted items that have their old names again
    int left = 0;      ///< items that had not been started
    QStringList problems;
};

/**
 * Ends the runs that were interrupted by a crash or a power cut: unfinished operations are completed if possible and
 * undone otherwise; items that had not been started keep their names. Checks where every item is rather than trusting
 * the journal. A run that another living process holds is left alone. May be interrupted itself and called again.
 */
std::vector<RecoveredRun> recoverMoves(platform::FileSystem &disk, JournalShelf &shelf);

/** What is left to do of an interrupted run. */
struct RestOfRun
{
    std::vector<MoveItem> items; ///< those that kept their old names, to be started as another run; includes leaders
    QStringList places;          ///< the present paths of all its items except those that moved with others, in order
};

/**
 * For a run that recoverMoves() has ended; empty for any other. A run that undoes another has no items: undoing is
 * simply repeated.
 */
RestOfRun restOf(const JournalShelf &shelf, const QString &run);

} // namespace files
