#include "files/moving/move_undo.h"

#include "files/moving/move_paths.h"
#include "files/planning/move_names.h"

#include "platform/foundation/paths.h"

#include <QCoreApplication>
#include <QHash>

#include <set>

namespace files {
namespace {

UndoProblem problemAt(const QString &path, MoveProblem why)
{
    return {path, why, sentence(why, path)};
}

/** The operation that takes an item back, where everything still is as it was left. */
MoveItem inverseOf(const MoveRecord &record, int index, PathsSince &now)
{
    const MoveItem &item = record.item;
    const QString path = now(record.path, index);
    switch (item.operation) {
    case Operation::Move:
        return {Operation::Move, path, now(item.from, index), index};
    case Operation::Copy:
        return {Operation::RemoveCopy, path, now(item.from, index), index};
    case Operation::Link:
        return {Operation::RemoveLink, path, item.from, index};
    case Operation::Trash:
        return {Operation::Restore, record.path, now(item.from, index), index};
    case Operation::RemoveCopy:
        if (!record.path.isEmpty())
            return {Operation::Restore, record.path, now(item.from, index), index};
        return {Operation::Copy, now(item.to, index), now(item.from, index), index};
    case Operation::RemoveLink:
        return {Operation::Link, item.to, now(item.from, index), index};
    case Operation::Restore:
        return {Operation::Trash, path, QString(), index};
    }
    Q_UNREACHABLE();
}

/** Whether what the operation works on is still what the run left there. */
UndoProblem faultOf(const platform::FileSystem &disk, const MoveItem &operation, const MoveRecord &record,
                    const PathsSince &now)
{
    const bool madeItem = operation.operation != Operation::Link && operation.operation != Operation::Copy;
    const auto state = operation.operation == Operation::Link ? std::nullopt : disk.look(operation.from);
    if (!state && operation.operation != Operation::Link)
        return problemAt(operation.from, MoveProblem::Gone);
    if (!madeItem)
        return {};
    // A copy that was changed goes to the trash, from where it can be taken.
    const bool isSame =
        !record.is || (now.wasCopied(record.path, operation.of)       ? isAlike(*state, *record.is)
                       : operation.operation == Operation::RemoveCopy ? isSameItem(*state, *record.is)
                                                                      : isUnchanged(*state, *record.is));
    if (!isSame)
        return problemAt(operation.from, MoveProblem::Changed);
    const auto original = operation.operation == Operation::RemoveCopy ? disk.look(operation.to) : std::nullopt;
    if (original && isOneItem(*state, *original))
        return problemAt(operation.from, MoveProblem::Original);
    if (operation.operation == Operation::RemoveLink && disk.linkText(operation.from) != operation.to)
        return problemAt(operation.from, MoveProblem::Changed);
    return {};
}

bool takesPlace(const MoveItem &operation)
{
    return operation.operation == Operation::Move || operation.operation == Operation::Copy ||
           operation.operation == Operation::Link || operation.operation == Operation::Restore;
}

bool leavesPlace(const MoveItem &operation)
{
    return operation.operation != Operation::Copy && operation.operation != Operation::Link;
}

QString keyOf(const QString &path)
{
    return placeKey(platform::parentFolder(path), platform::lastPathComponent(path));
}

/** Leaves out what wants a place that something else keeps, and then what wanted the place of that. */
void leaveOutHindered(const platform::FileSystem &disk, std::vector<MoveItem> &operations,
                      std::vector<UndoProblem> &problems)
{
    QHash<QString, int> leaving;
    QHash<QString, int> similar; // on a disk that does not tell cases apart
    QHash<QString, int> taking;
    std::vector<int> questions;
    for (int i = 0; i < int(operations.size()); ++i) {
        if (leavesPlace(operations[size_t(i)])) {
            leaving.insert(operations[size_t(i)].from, i);
            similar.insert(keyOf(operations[size_t(i)].from), i);
        }
        if (takesPlace(operations[size_t(i)])) {
            taking.insert(operations[size_t(i)].to, i);
            questions.push_back(i);
        }
    }
    std::vector<bool> isOut(operations.size());
    while (!questions.empty()) {
        const int i = questions.back();
        questions.pop_back();
        const MoveItem &operation = operations[size_t(i)];
        const int leaver = leaving.value(operation.to, similar.value(keyOf(operation.to), -1));
        const auto there = isOut[size_t(i)] ? std::nullopt : disk.look(operation.to);
        const auto own = there && operation.operation == Operation::Move ? disk.look(operation.from) : std::nullopt;
        const bool isItself = own && isSameItem(*there, *own);
        if (!there || isItself || (leaver >= 0 && !isOut[size_t(leaver)]))
            continue;
        isOut[size_t(i)] = true;
        problems.push_back(problemAt(operation.to, MoveProblem::Taken));
        if (const int waiting = taking.value(operation.from, -1); leavesPlace(operation) && waiting >= 0)
            questions.push_back(waiting);
    }
    std::vector<MoveItem> kept;
    for (size_t i = 0; i < operations.size(); ++i)
        if (!isOut[i])
            kept.push_back(operations[i]);
    operations = std::move(kept);
}

RunRecord recordOf(const JournalShelf &shelf, const QString &run)
{
    if (!shelf.names().contains(run))
        return {};
    RunRecord record = readRecord(shelf.read(run).value_or(QByteArray()));
    if (record.isDamaged)
        record.id = run;
    return record;
}

/** Which runs take back which, as the journals tell. */
class Undoers
{
public:
    explicit Undoers(const JournalShelf &shelf) : m_shelf(shelf)
    {
        for (const QString &name : shelf.names())
            if (const QString undoes = summaryOf(shelf.ends(name)).undoes; !undoes.isEmpty())
                m_undoers.insert(undoes, name);
    }

    /** The items of a run that were done and not taken back, by it or by a run that still stands. */
    std::set<int> standingItems(const RunRecord &run)
    {
        std::set<int> standing;
        for (int i = 0; i < int(run.items.size()); ++i)
            if (run.items[size_t(i)].stand == Stand::Done && run.items[size_t(i)].isKnown)
                standing.insert(i);
        m_seen.insert(run.id);
        for (const QString &name : m_undoers.values(run.id)) {
            if (m_seen.contains(name)) // a damaged journal can take itself back
                continue;
            const RunRecord undo = readRecord(m_shelf.read(name).value_or(QByteArray()));
            if (undo.id == name)
                for (const int item : standingItems(undo))
                    standing.erase(undo.items[size_t(item)].item.of);
        }
        return standing;
    }

private:
    const JournalShelf &m_shelf;
    QMultiHash<QString, QString> m_undoers;
    std::set<QString> m_seen;
};

std::set<int> standingItems(const JournalShelf &shelf, const RunRecord &run)
{
    return run.id.isEmpty() ? std::set<int>() : Undoers(shelf).standingItems(run);
}

MoveProblem whyNot(const RunRecord &run, const std::set<int> &standing)
{
    if (run.id.isEmpty())
        return MoveProblem::UnknownRun;
    if (run.end.isEmpty())
        return MoveProblem::OpenRun;
    if (!standing.empty())
        return MoveProblem::None;
    return run.doneAtEnd == 0 ? MoveProblem::EmptyRun : MoveProblem::TakenBack;
}

} // namespace

UndoPlan planUndo(const platform::FileSystem &disk, const JournalShelf &shelf, const QString &run)
{
    UndoPlan plan;
    const RunRecord record = recordOf(shelf, run);
    const std::set<int> standing = standingItems(shelf, record);
    plan.why = whyNot(record, standing);
    if (plan.why != MoveProblem::None)
        return plan;
    PathsSince now(record);
    for (const MoveRecord &item : record.items)
        if (!item.isKnown && item.stand == Stand::Done)
            plan.problems.push_back(
                {item.path, MoveProblem::Other,
                 QCoreApplication::translate("files", "The journal of this run is damaged: %1").arg(run)});
    for (auto index = standing.rbegin(); index != standing.rend(); ++index) {
        const MoveRecord &done = record.items[size_t(*index)];
        const MoveItem operation = inverseOf(done, *index, now);
        const UndoProblem fault = faultOf(disk, operation, done, now);
        if (fault.why == MoveProblem::None)
            plan.form.items.push_back(operation);
        else
            plan.problems.push_back(fault);
    }
    leaveOutHindered(disk, plan.form.items, plan.problems);
    if (plan.form.items.empty())
        plan.why = MoveProblem::Stuck;
    plan.form.title = record.title;
    plan.form.undoes = run;
    for (const QString &folder : record.made)
        plan.form.emptyFolders.append(now(folder, -1));
    return plan;
}

TakeBack takeBackOf(const platform::FileSystem &disk, const RunRecord &run, int index)
{
    PathsSince now(run);
    const MoveRecord &record = run.items[size_t(index)];
    std::vector<MoveItem> operations = {inverseOf(record, index, now)};
    TakeBack answer = {operations.front(), faultOf(disk, operations.front(), record, now)};
    std::vector<UndoProblem> problems;
    leaveOutHindered(disk, operations, problems);
    if (answer.problem.why == MoveProblem::None && !problems.empty())
        answer.problem = problems.front();
    return answer;
}

Undoable undoableItems(const JournalShelf &shelf, const QString &run)
{
    const RunRecord record = recordOf(shelf, run);
    const std::set<int> standing = standingItems(shelf, record);
    return {int(standing.size()), whyNot(record, standing)};
}

std::vector<RunSummary> listRuns(const JournalShelf &shelf)
{
    std::vector<RunSummary> runs;
    QHash<QString, bool> isTakenBack; // by runs that still stand
    for (const QString &name : shelf.names()) {
        RunSummary summary;
        summary.run = summaryOf(shelf.ends(name));
        if (summary.run.id.isEmpty()) {
            summary.run.id = name;
            summary.run.title =
                QCoreApplication::translate("files", "The journal of this run is damaged: %1").arg(name);
        }
        const bool isUndone = isTakenBack.value(name);
        summary.state = summary.run.end.isEmpty() ? QStringLiteral("open")
                        : isUndone                ? QStringLiteral("undone")
                                                  : summary.run.end;
        if (!summary.run.undoes.isEmpty() && !isUndone && summary.run.doneAtEnd > 0)
            isTakenBack.insert(summary.run.undoes, true);
        runs.push_back(summary);
    }
    return runs;
}

} // namespace files
