#pragma once

#include "files/moving/journal_shelf.h"
#include "files/moving/move_record.h"

#include <QMultiHash>

#include <map>
#include <optional>
#include <set>

namespace files {

/**
 * What of a run is still in effect: reads its journal, and those of all runs that undid it, or one of these, a little
 * at a time.
 */
class StandingItems
{
public:
    StandingItems(const JournalShelf &shelf, const QString &run);

    /** Reads a little; true when everything is known. */
    bool step();

    /** Nothing is known of a run without journal. */
    const RunRecord &record() { return m_records[m_run]; }
    /** The items that were done and not undone, by the run or by one that is still in effect, in order. */
    std::vector<int> items();

private:
    void readEnds(const QString &name);
    void open(const QString &name);
    void readLine();
    std::vector<bool> standing(const QString &name);

    const JournalShelf &m_shelf;
    QString m_run;
    QStringList m_names;
    qsizetype m_nextName = 0;
    QMultiHash<QString, QString> m_undoers; ///< of each run
    QStringList m_unread;
    QString m_opened;
    std::optional<RecordReading> m_reading;
    std::map<QString, RunRecord> m_records;
    std::set<QString> m_seen; ///< a damaged journal can name itself as undone
};

/** The items of a run that are done. */
std::vector<int> doneItemsOf(const RunRecord &run);

/**
 * How many files these items of a run are to the user: a file that was put aside and the result in its place are one, and so they are when
 * both are undone.
 */
int filesOf(const RunRecord &run, const std::vector<int> &items);

} // namespace files
