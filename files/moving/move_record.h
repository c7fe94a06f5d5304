#pragma once

#include "files/planning/move_order.h"
#include "files/planning/move_problem.h"

#include "platform/disk/file_system.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace files {

/** What is done with one item of a run. The last three undo what the others did. */
enum class Operation {
    Move,
    Copy,
    Link,       ///< `from` is the text of the link
    Trash,      ///< `to` is empty
    RemoveCopy, ///< `from` is the copy, `to` its original
    RemoveLink, ///< `from` is the link, `to` its expected text
    Restore,    ///< `from` is in the trash
};

enum class Stand {
    Waiting,   ///< has its old name
    Aside,     ///< has a temporary name
    Done,      ///< has its new name
    Failed,    ///< has its old name, and keeps it
    Skipped,   ///< nothing was to be done
    TakenBack, ///< was done, and has its old name again
};

struct MoveItem
{
    Operation operation = Operation::Move;
    QString from;
    QString to;
    int of = -1;          ///< when a run is undone: the item of that run
    int leader = -1;      ///< the item that this one moves with
    bool isAhead = false; ///< it is moved aside in the folder of `to`, not in its own
    std::optional<platform::ItemState> was =
        std::nullopt; ///< what was at `from` when the run began; for a link, nothing
};

/** One item of a run as recorded in its journal. */
struct MoveRecord
{
    MoveItem item;
    bool isKnown = true; ///< false: its line in the journal cannot be read
    Stand stand = Stand::Waiting;
    MoveProblem why = MoveProblem::None; ///< it failed
    QString message;                     ///< a sentence for the user, for `why`
    QString path; ///< its path since it was processed; in the trash, if it was trashed; empty if it was removed
    std::optional<platform::ItemState> is = std::nullopt;     ///< what has been there since then
    std::optional<platform::ItemState> copied = std::nullopt; ///< the copy that was about to get its name
};

/** What can be recovered from a damaged line. */
struct DamagedLine
{
    int item = -1;
    QString from;      ///< the old place of the item, perhaps with a wrong letter
    QStringList paths; ///< everything that looks like a path
};

/** A run as recorded in its journal. */
struct RunRecord
{
    QString id;
    QString title;
    QString date;          ///< ISO, with the time zone
    QString undoes;        ///< the run that this one undoes
    QString by;            ///< the mark of the process that began it
    bool isByHand = false; ///< items are added one by one
    int count = 0;         ///< items that the journal must contain before the first of them moves
    std::vector<MoveRecord> items;
    std::vector<MoveStep> steps;
    QStringList made; ///< folders that the run made
    QString end;      ///< "done", "cancelled" or "recovered"; empty while it is open
    int doneAtEnd = 0;
    int filesAtEnd = 0;     ///< as filesOf() counts
    bool isWhole = true;    ///< false: the last line was truncated
    bool isBegun = false;   ///< a line says that something was done
    bool isDamaged = false; ///< lines cannot be read, or say something impossible
    std::vector<DamagedLine> damaged;
};

/** Whether two paths lead to one item, at this moment. */
bool isOneItem(const platform::ItemState &one, const platform::ItemState &other);
bool isSameItem(const platform::ItemState &one, const platform::ItemState &other);
/** Two items that could be the same except for their identity: same kind, size and date. */
bool isAlike(const platform::ItemState &one, const platform::ItemState &other);
/** The same item with, as far as dates and sizes tell, the same content. A folder may have changed inside. */
bool isUnchanged(const platform::ItemState &one, const platform::ItemState &other);

/** The head of a journal: the run, its items, each with itemLine(), and its steps, where the items are not added one by one. */
QByteArray runLine(const RunRecord &run);
QByteArray stepsLine(const RunRecord &run);
QByteArray itemLine(int index, const MoveItem &item);
QByteArray doneLine(int index, const MoveRecord &record);
QByteArray failedLine(int index, const MoveRecord &record);
QByteArray takenBackLine(int index);
/** An item that failed is to be carried out after all. */
QByteArray againLine(int index);
QByteArray copiedLine(int index, const platform::ItemState &state);
QByteArray makingLine(const QString &folder);
/** Completes a truncated line. */
QByteArray cutLine();
QByteArray endLine(const QString &end, int count, int done, int files);

/**
 * A journal read back. Every line has a checksum that reveals damage; damaged lines are skipped, and so is a truncated
 * one. Items whose lines are damaged are included, unknown and skipped, so that the numbers of the others are right.
 */
RunRecord readRecord(const QByteArray &journal);

/** The same a line at a time, for a window that must stay responsive. */
class RecordReading
{
public:
    explicit RecordReading(const QByteArray &journal);
    ~RecordReading();

    /** Reads a line; true when there is none left. */
    bool step();
    /** Once, after step() returned true. */
    RunRecord take();

private:
    class Reader;
    QByteArray m_journal;
    qsizetype m_at = 0;
    std::unique_ptr<Reader> m_reader;
};

/** A run without its items, from the first and the last line of its journal. */
RunRecord summaryOf(const std::pair<QByteArray, QByteArray> &ends);

} // namespace files
