#include "files/moving/move_undo.h"

#include "files/moving/move_paths.h"
#include "files/moving/standing_items.h"
#include "files/planning/move_names.h"

#include "platform/foundation/paths.h"

#include <QCoreApplication>
#include <QHash>

#include <utility>

namespace files {
namespace {

UndoProblem problemAt(const QString &path, MoveProblem why)
{
    return {path, why, sentence(why, path)};
}

/** The operation that undoes an item, if everything is as it was left. */
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

/** Whether the operation's item is still what the run left there. */
UndoProblem faultOf(const platform::FileSystem &disk, const MoveItem &operation, const MoveRecord &record,
                    const PathsSince &now)
{
    const bool madeItem = operation.operation != Operation::Link && operation.operation != Operation::Copy;
    const auto state = operation.operation == Operation::Link ? std::nullopt : disk.look(operation.from);
    if (!state && operation.operation != Operation::Link)
        return problemAt(operation.from, MoveProblem::Gone);
    if (!madeItem)
        return {};
    // A copy that was changed goes to the trash, from where it can be restored.
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

/** Leaves out items whose place something else keeps, and then those that wanted the place of these. */
class HinderedOnes
{
public:
    HinderedOnes(const platform::FileSystem &disk, std::vector<MoveItem> operations)
        : m_disk(disk), m_operations(std::move(operations)), m_isOut(m_operations.size())
    {
    }

    /** Handles one operation; true when all are done. */
    bool step()
    {
        if (m_next < int(m_operations.size()))
            note(m_next++);
        else if (!m_questions.empty())
            ask();
        else
            return true;
        return false;
    }

    std::vector<UndoProblem> problems;

    std::vector<MoveItem> kept() const
    {
        std::vector<MoveItem> kept;
        for (size_t i = 0; i < m_operations.size(); ++i)
            if (!m_isOut[i])
                kept.push_back(m_operations[i]);
        return kept;
    }

private:
    void note(int i)
    {
        const MoveItem &operation = m_operations[size_t(i)];
        if (leavesPlace(operation)) {
            m_leaving.insert(operation.from, i);
            m_similar.insert(keyOf(operation.from), i);
        }
        if (takesPlace(operation)) {
            m_taking.insert(operation.to, i);
            m_questions.push_back(i);
        }
    }

    void ask()
    {
        const int i = m_questions.back();
        m_questions.pop_back();
        const MoveItem &operation = m_operations[size_t(i)];
        const int leaver = m_leaving.value(operation.to, m_similar.value(keyOf(operation.to), -1));
        const auto there = m_isOut[size_t(i)] ? std::nullopt : m_disk.look(operation.to);
        const auto own = there && operation.operation == Operation::Move ? m_disk.look(operation.from) : std::nullopt;
        const bool isItself = own && isSameItem(*there, *own);
        if (!there || isItself || (leaver >= 0 && !m_isOut[size_t(leaver)]))
            return;
        m_isOut[size_t(i)] = true;
        problems.push_back(problemAt(operation.to, MoveProblem::Taken));
        if (const int waiting = m_taking.value(operation.from, -1); leavesPlace(operation) && waiting >= 0)
            m_questions.push_back(waiting);
    }

    const platform::FileSystem &m_disk;
    std::vector<MoveItem> m_operations;
    std::vector<bool> m_isOut;
    QHash<QString, int> m_leaving;
    QHash<QString, int> m_similar; ///< on a case-insensitive disk
    QHash<QString, int> m_taking;
    std::vector<int> m_questions;
    int m_next = 0;
};

MoveProblem whyNot(const RunRecord &run, const std::vector<int> &standing)
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

class UndoPlanning::Work
{
public:
    Work(const platform::FileSystem &disk, const JournalShelf &shelf, const QString &run)
        : m_disk(disk), m_run(run), m_journals(shelf, run)
    {
    }

    UndoPlan plan;

    bool step()
    {
        if (!m_now)
            return m_journals.step() && !begin();
        if (!m_left.empty()) {
            look(m_left.back());
            m_left.pop_back();
        } else if (!m_hindered) {
            m_hindered.emplace(m_disk, std::move(plan.form.items));
        } else if (m_hindered->step()) {
            end();
            return true;
        }
        return false;
    }

private:
    /** Everything that is recorded is known; false if nothing can be undone. */
    bool begin()
    {
        m_left = m_journals.items();
        const RunRecord &record = m_journals.record();
        plan.why = whyNot(record, m_left);
        if (plan.why != MoveProblem::None)
            return false;
        m_now.emplace(record);
        for (const MoveRecord &item : record.items)
            if (!item.isKnown && item.stand == Stand::Done)
                plan.problems.push_back(
                    {item.path, MoveProblem::Other,
                     QCoreApplication::translate("files", "The journal of this run is damaged: %1").arg(m_run)});
        return true;
    }

    void look(int index)
    {
        const MoveRecord &done = m_journals.record().items[size_t(index)];
        const MoveItem operation = inverseOf(done, index, *m_now);
        const UndoProblem fault = faultOf(m_disk, operation, done, *m_now);
        if (fault.why == MoveProblem::None)
            plan.form.items.push_back(operation);
        else
            plan.problems.push_back(fault);
    }

    void end()
    {
        plan.form.items = m_hindered->kept();
        plan.problems.insert(plan.problems.end(), m_hindered->problems.begin(), m_hindered->problems.end());
        if (plan.form.items.empty())
            plan.why = MoveProblem::Stuck;
        plan.form.title = m_journals.record().title;
        plan.form.undoes = m_run;
        for (const QString &folder : m_journals.record().made)
            plan.form.emptyFolders.append((*m_now)(folder, -1));
    }

    const platform::FileSystem &m_disk;
    QString m_run;
    StandingItems m_journals;
    std::vector<int> m_left; ///< items, last one first
    std::optional<PathsSince> m_now;
    std::optional<HinderedOnes> m_hindered;
};

UndoPlanning::UndoPlanning(const platform::FileSystem &disk, const JournalShelf &shelf, const QString &run)
    : m_work(std::make_unique<Work>(disk, shelf, run))
{
}

UndoPlanning::~UndoPlanning() = default;

bool UndoPlanning::step()
{
    return m_work->step();
}

UndoPlan UndoPlanning::take()
{
    return std::move(m_work->plan);
}

UndoPlan planUndo(const platform::FileSystem &disk, const JournalShelf &shelf, const QString &run)
{
    UndoPlanning planning(disk, shelf, run);
    while (!planning.step())
        ;
    return planning.take();
}

TakeBack takeBackOf(const platform::FileSystem &disk, const RunRecord &run, int index)
{
    PathsSince now(run);
    const MoveRecord &record = run.items[size_t(index)];
    const MoveItem operation = inverseOf(record, index, now);
    TakeBack answer = {operation, faultOf(disk, operation, record, now)};
    HinderedOnes hindered(disk, {operation});
    while (!hindered.step())
        ;
    if (answer.problem.why == MoveProblem::None && !hindered.problems.empty())
        answer.problem = hindered.problems.front();
    return answer;
}

Undoable undoableItems(const JournalShelf &shelf, const QString &run)
{
    StandingItems journals(shelf, run);
    while (!journals.step())
        ;
    const std::vector<int> standing = journals.items();
    return {filesOf(journals.record(), standing), whyNot(journals.record(), standing)};
}

std::vector<RunSummary> listRuns(const JournalShelf &shelf)
{
    std::vector<RunSummary> runs;
    QHash<QString, bool> isTakenBack; // by runs that are still in effect
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
