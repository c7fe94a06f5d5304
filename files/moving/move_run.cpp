#include "files/moving/move_run.h"

#include "files/moving/move_beginning.h"
#include "files/moving/move_paths.h"
#include "files/moving/standing_items.h"
#include "files/planning/move_names.h"

#include "platform/foundation/paths.h"

#include <QCoreApplication>

#include <algorithm>

namespace files {
namespace {

using platform::joinedPath;
using platform::lastPathComponent;
using platform::parentFolder;

QString placeOf(const QString &path)
{
    return placeKey(parentFolder(path), lastPathComponent(path));
}

} // namespace

MoveRun::MoveRun(platform::FileSystem &disk, JournalShelf &shelf, RunRecord record)
    : m_disk(disk), m_shelf(shelf), m_record(std::move(record)), m_operations(disk, m_record.id, *this)
{
}

platform::Result<std::unique_ptr<MoveRun>> MoveRun::begin(platform::FileSystem &disk, JournalShelf &shelf,
                                                          const MoveOrderForm &form)
{
    MoveBeginning beginning(disk, shelf, form);
    while (!beginning.workFor(std::chrono::seconds(1)))
        ;
    return beginning.take();
}

platform::Result<std::unique_ptr<MoveRun>> MoveRun::open(platform::FileSystem &disk, JournalShelf &shelf,
                                                         const QString &title)
{
    RunRecord record = newRecord(title);
    record.isByHand = true;
    discardOldJournals(shelf);
    if (const auto made = shelf.make(record.id, runLine(record)); !made)
        return tl::unexpected(made.error());
    return std::unique_ptr<MoveRun>(new MoveRun(disk, shelf, std::move(record)));
}

platform::Result<std::unique_ptr<MoveRun>> MoveRun::reopen(platform::FileSystem &disk, JournalShelf &shelf,
                                                           const QString &id)
{
    const auto refused = [&] {
        return platform::failure(platform::ErrorCode::InvalidValue, sentence(MoveProblem::UnknownRun));
    };
    if (!shelf.names().contains(id) || !shelf.hold(id))
        return refused();
    RunRecord record = readRecord(shelf.read(id).value_or(QByteArray()));
    const bool hasEnded = !record.end.isEmpty() && record.isWhole && !record.isDamaged;
    if (record.id != id || !record.isByHand || !record.undoes.isEmpty() || !hasEnded) {
        shelf.letGo(id);
        return refused();
    }
    record.end.clear();
    return resume(disk, shelf, std::move(record));
}

std::unique_ptr<MoveRun> MoveRun::resume(platform::FileSystem &disk, JournalShelf &shelf, RunRecord record)
{
    return std::unique_ptr<MoveRun>(new MoveRun(disk, shelf, std::move(record)));
}

/** What could not be written because the disk was full precedes the next line; so there are no gaps in the journal. */
platform::Result<void> MoveRun::note(const QByteArray &line, Lasting lasting)
{
    m_unwritten += line;
    auto written = m_shelf.append(m_record.id, m_unwritten, lasting);
    if (written)
        m_unwritten.clear();
    return written;
}

platform::Result<void> MoveRun::noteCopy(int index, const platform::ItemState &state)
{
    at(index).copied = state;
    return note(copiedLine(index, state), Lasting::AtOnce);
}

platform::Result<void> MoveRun::noteFolder(const QString &folder)
{
    m_record.made.append(folder);
    return note(makingLine(folder));
}

std::optional<MoveResult> MoveRun::next()
{
    while (m_results.empty() && m_step < m_record.steps.size())
        runGroup();
    if (m_results.empty() && !m_areRestRefused)
        refuseWithoutSteps();
    if (m_results.empty())
        return std::nullopt;
    MoveResult result = m_results.front();
    m_results.pop_front();
    return result;
}

bool MoveRun::again()
{
    const bool isOneStep = m_step == m_groupEnd && m_groupEnd == m_groupBegin + 1 && m_results.empty();
    const int index = isOneStep ? m_record.steps[m_groupBegin].item : -1;
    if (index < 0 || at(index).stand != Stand::Failed || at(index).why != MoveProblem::Full)
        return false;
    MoveRecord waiting;
    waiting.item = at(index).item;
    at(index) = waiting;
    (void)note(againLine(index));
    m_step = m_groupBegin;
    return true;
}

/** Items that cannot be ordered have no step. */
void MoveRun::refuseWithoutSteps()
{
    m_areRestRefused = true;
    for (int i = 0; i < int(m_record.items.size()); ++i)
        if (at(i).stand == Stand::Waiting) {
            markFailed(i, {MoveProblem::Inside, sentence(MoveProblem::Inside, at(i).item.from), {}, {}});
            settleResult(i);
        }
}

/** The steps up to the next moment at which nothing has a temporary name. */
void MoveRun::findGroup()
{
    std::set<int> open;
    m_groupBegin = m_groupEnd = m_step;
    do {
        const MoveStep &step = m_record.steps[m_groupEnd++];
        if (step.isAside)
            open.insert(step.item);
        else
            open.erase(step.item);
    } while (!open.empty() && m_groupEnd < m_record.steps.size());
}

void MoveRun::runGroup()
{
    findGroup();
    m_settled.clear();
    while (m_step < m_groupEnd) {
        const MoveStep step = m_record.steps[m_step++];
        if (step.isAside)
            stepAside(step.item);
        else
            giveName(step.item);
    }
    for (const int index : m_settled)
        settleResult(index);
}

void MoveRun::stepAside(int index)
{
    if (at(index).stand != Stand::Waiting)
        return;
    const OperationOutcome outcome = m_operations.stepAside(index, at(index).item);
    if (outcome.why == MoveProblem::None)
        at(index).stand = Stand::Aside;
    else
        markFailed(index, outcome);
}

void MoveRun::giveName(int index)
{
    MoveRecord &record = at(index);
    const bool isAside = record.stand == Stand::Aside;
    if (!isAside && record.stand != Stand::Waiting)
        return;
    if (!isAside && isToBeSkipped(index))
        return;
    const QString source = isAside ? asidePath(m_record.id, index, record.item) : record.item.from;
    const OperationOutcome outcome = m_operations.carryOut(index, record.item, source);
    if (outcome.why == MoveProblem::None)
        return markDone(index, outcome);
    if (isAside)
        return takeBackGroup(outcome);
    markFailed(index, outcome);
    if (outcome.why != MoveProblem::Gone && isWaitedFor(index))
        takeBackGroup({MoveProblem::Circle, sentence(MoveProblem::Circle, record.item.from), {}, {}});
}

bool MoveRun::isToBeSkipped(int index)
{
    MoveRecord &record = at(index);
    const int leader = record.item.leader;
    const bool isLed = leader >= 0 && leader < int(m_record.items.size()) && leader != index;
    const bool isLeft = isLed && (at(leader).stand == Stand::Failed || at(leader).stand == Stand::Skipped);
    if (!isLeft && (record.item.from != record.item.to))
        return false;
    record.stand = Stand::Skipped;
    record.why = isLeft ? MoveProblem::Leader : MoveProblem::Same;
    record.message = isLeft ? sentence(record.why, at(leader).item.from) : QString();
    record.path = record.item.from;
    (void)note(failedLine(index, record));
    m_settled.push_back(index);
    return true;
}

/** Whether a later step of the group needs this item's present place. */
bool MoveRun::isWaitedFor(int index)
{
    const QString place = placeOf(at(index).item.from);
    for (size_t i = m_step; i < m_groupEnd; ++i)
        if (placeOf(at(m_record.steps[i].item).item.to) == place)
            return true;
    return false;
}

/** Undoes the steps of the group, last one first. */
void MoveRun::takeBackGroup(const OperationOutcome &why)
{
    for (size_t i = m_step; i-- > m_groupBegin;) {
        const MoveStep step = m_record.steps[i];
        MoveRecord &record = at(step.item);
        if (step.isAside && record.stand == Stand::Aside) {
            bringBack(step.item, why);
        } else if (!step.isAside && record.stand == Stand::Done && record.item.operation == Operation::Move &&
                   m_operations.move(step.item, record.path, record.item.from).why == MoveProblem::None) {
            m_settled.erase(std::remove(m_settled.begin(), m_settled.end(), step.item), m_settled.end());
            markFailed(step.item, why);
        }
    }
}

/** An item never keeps its temporary name: it gets its old one, or else its new one, or else one with a number. */
void MoveRun::bringBack(int index, const OperationOutcome &why)
{
    const MoveItem item = at(index).item;
    const QString aside = asidePath(m_record.id, index, item);
    if (!m_disk.rename(aside, item.from))
        return markFailed(index, why);
    if (const OperationOutcome given = m_operations.carryOut(index, item, aside); given.why == MoveProblem::None)
        return markDone(index, given);
    OperationOutcome outcome = why;
    outcome.path = m_operations.putBack(aside, item.from);
    outcome.message = QCoreApplication::translate("files", "The name %1 is now in use; the item is called %2")
                          .arg(lastPathComponent(item.from), lastPathComponent(outcome.path));
    markFailed(index, outcome);
    if (outcome.path == aside)
        at(index).stand = Stand::Aside;
}

void MoveRun::markDone(int index, const OperationOutcome &outcome)
{
    MoveRecord &record = at(index);
    record.stand = Stand::Done;
    record.why = MoveProblem::None;
    record.message = outcome.message;
    record.path = outcome.path;
    record.is = outcome.is;
    (void)note(doneLine(index, record));
    m_touched.insert(parentFolder(record.item.from));
    m_touched.insert(parentFolder(record.item.to));
    m_settled.push_back(index);
}

void MoveRun::markFailed(int index, const OperationOutcome &outcome)
{
    MoveRecord &record = at(index);
    record.stand = Stand::Failed;
    record.why = outcome.why;
    record.message = outcome.message;
    record.path = outcome.path.isEmpty() ? record.item.from : outcome.path;
    (void)note(failedLine(index, record));
    m_settled.push_back(index);
}

void MoveRun::settleResult(int index)
{
    const MoveRecord &record = at(index);
    const Stand stand = record.stand == Stand::Aside ? Stand::Failed : record.stand;
    m_results.push_back({index, stand, record.why, record.message, record.path});
}

platform::Result<void> MoveRun::end()
{
    const bool isCancelled = m_step < m_record.steps.size() && !m_record.isByHand;
    close(isCancelled ? QStringLiteral("cancelled") : QStringLiteral("done"));
    return m_trouble;
}

void MoveRun::close(const QString &end)
{
    removeEmptyFolders();
    for (const QString &folder : m_touched)
        m_disk.settle(folder);
    const auto isAside = [](const MoveRecord &record) { return record.stand == Stand::Aside; };
    const std::vector<int> doneItems = doneItemsOf(m_record);
    const int done = int(doneItems.size());
    const int files = filesOf(m_record, doneItems);
    // The next start tries again to restore or remove what could not be, and so it does with an incomplete journal.
    if (!m_unwritten.isEmpty())
        m_trouble = note({}, Lasting::AtOnce);
    if (m_trouble && !m_operations.hasLeftOver() && std::none_of(m_record.items.begin(), m_record.items.end(), isAside))
        m_trouble = note(endLine(end, int(m_record.items.size()), done, files), Lasting::AtOnce);
    m_record.end = end;
    m_record.doneAtEnd = done;
    m_record.filesAtEnd = files;
    m_shelf.letGo(m_record.id);
}

/** Folders in which nothing was created, and those left empty by an undo. The deepest are last. */
void MoveRun::removeEmptyFolders()
{
    PathsSince now(m_record);
    for (const QStringList &folders : {m_record.made, m_emptyFolders})
        for (auto folder = folders.crbegin(); folder != folders.crend(); ++folder)
            (void)m_disk.removeEmptyFolder(now(*folder, -1));
}

MoveResult MoveRun::add(MoveItem item)
{
    const int index = int(m_record.items.size());
    if (item.operation != Operation::Link)
        item.was = m_disk.look(item.from);
    MoveRecord &record = m_record.items.emplace_back();
    record.item = item;
    m_settled.clear();
    if (const auto noted = note(itemLine(index, item), Lasting::AtOnce); noted)
        giveName(index);
    else
        markFailed(index, {MoveProblem::Other, noted.error().message, {}, {}});
    settleResult(index);
    MoveResult result = m_results.back();
    m_results.clear();
    return result;
}

int MoveRun::lastDone() const
{
    for (int i = int(m_record.items.size()); i-- > 0;)
        if (m_record.items[size_t(i)].stand == Stand::Done)
            return i;
    return -1;
}

MoveResult MoveRun::takeBack(int index, const MoveItem &operation)
{
    const OperationOutcome outcome = m_operations.carryOut(index, operation, operation.from);
    if (outcome.why != MoveProblem::None)
        return {index, Stand::Failed, outcome.why, outcome.message, operation.from};
    at(index).stand = Stand::TakenBack;
    (void)note(takenBackLine(index), Lasting::AtOnce);
    m_touched.insert(parentFolder(operation.from));
    return {index, Stand::Done, MoveProblem::None, outcome.message, outcome.path};
}

void MoveRun::mend()
{
    // If not all steps are known, something could be moved too early.
    const size_t count = m_record.isDamaged ? 0 : m_record.steps.size();
    for (m_step = 0; m_step < count; m_step = m_groupEnd) {
        findGroup();
        const auto isAside = [&](const MoveStep &step) { return at(step.item).stand == Stand::Aside; };
        const auto begin = m_record.steps.begin();
        if (std::any_of(begin + qsizetype(m_groupBegin), begin + qsizetype(m_groupEnd), isAside))
            runGroup();
    }
    for (int i = 0; i < int(m_record.items.size()); ++i)
        if (at(i).stand == Stand::Aside)
            bringBack(i, {MoveProblem::Other, QCoreApplication::translate("files", "The run was interrupted"), {}, {}});
}

} // namespace files
