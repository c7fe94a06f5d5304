#pragma once

#include "files/moving/move_undo.h"

#include <map>

namespace files {

/**
 * Caches what can be undone of which run: a journal of many items takes long to read, and windows ask after every step.
 * The entry of a run is dropped when another run that undoes it begins.
 */
class UndoableRuns
{
public:
    explicit UndoableRuns(const JournalShelf &shelf) : m_shelf(shelf) {}

    Undoable of(const QString &run);
    /** A run of this process has ended; its journal need not be read. */
    void ended(const RunRecord &run);

private:
    void lookForNewRuns();
    void forget(const QString &run);

    const JournalShelf &m_shelf;
    QStringList m_names; ///< of the journals that were read
    std::map<QString, QString> m_undoes;
    std::map<QString, Undoable> m_known;
};

} // namespace files
