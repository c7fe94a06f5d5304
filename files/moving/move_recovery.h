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
    int done = 0;      ///< items that had their new names already
    int finished = 0;  ///< items that were in the middle and have their new names now
    int takenBack = 0; ///< items that were in the middle and have their old names again
    int left = 0;      ///< items whose turn had not come
    QStringList problems;
};

/**
 * Ends the runs that were interrupted, by a crash or a power cut: what was in the middle is finished where that is possible and
 * taken back where not; items whose turn had not come keep their names. Looks where every item is rather than trusting the journal.
 * A run that another living process holds is left alone. May be interrupted itself and called again.
 */
std::vector<RecoveredRun> recoverMoves(platform::FileSystem &disk, JournalShelf &shelf);

/** What is left of a run that was interrupted. */
struct RestOfRun
{
    std::vector<MoveItem>
        items;          ///< those that kept their old names, to be begun as a run again; leaders are counted among them
    QStringList places; ///< where all its items are now but those that went along with others, in order
};

/** Of a run that recoverMoves() has ended; empty for any other. One that takes another back has no items: that is done once more. */
RestOfRun restOf(const JournalShelf &shelf, const QString &run);

} // namespace files
