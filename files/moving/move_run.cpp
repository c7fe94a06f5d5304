#include "files/moving/move_run.h"

#include "files/moving/move_paths.h"
#include "files/planning/move_names.h"

#include "platform/file/living_process.h"
#include "platform/foundation/paths.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QRandomGenerator>

#include <algorithm>

namespace files {
namespace {

using platform::joinedPath;
using platform::lastPathComponent;
using platform::parentFolder;

/** A name that sorts by time and that no other run has. */
QString newId(const QDateTime &now)
{
    return now.toUTC().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz-")) +
           QStringLiteral("%1").arg(QRandomGenerator::system()->generate(), 8, 16, QLatin1Char('0'));
}

/** Paths without links, each folder looked up once. */
class PlainPaths
{
public:
    explicit PlainPaths(const platform::FileSystem &disk) : m_disk(disk) {}

    QString operator()(const QString &path)
    {
        const QString folder = parentFolder(path);
        auto known = m_known.find(folder);
        if (known == m_known.end()) {
            const QString canonical = m_disk.canonicalFolder(folder);
            const bool isTop = folder.size() < 2;
            known = m_known.insert(folder, !canonical.isNull() || isTop ? canonical : (*this)(folder));
        }
        return joinedPath(*known, lastPathComponent(path));
    }

private:
    const platform::FileSystem &m_disk;
    QHash<QString, QString> m_known;
};

Displacement displacementOf(const MoveItem &item, PlainPaths &plain)
{
    Displacement displacement;
    displacement.isFolder = item.was && item.was->kind == platform::ItemKind::Folder;
    displacement.mayStepAside = item.operation == Operation::Move;
    const bool isLeaving = item.operation != Operation::Copy && item.operation != Operation::Link;
    const bool isTaking = item.operation == Operation::Move || item.operation == Operation::Copy ||
                          item.operation == Operation::Link || item.operation == Operation::Restore;
    if (isLeaving)
        displacement.leaves = plain(item.from);
    if (isTaking)
        displacement.takes = plain(item.to);
    if (item.operation == Operation::Copy)
        displacement.reads = plain(item.from);
    if (item.operation == Operation::RemoveCopy)
        displacement.reads = plain(item.to);
    return displacement;
}

QString placeOf(const QString &path)
{
    return placeKey(parentFolder(path), lastPathComponent(path));
}

RunRecord newRecord(const QString &title)
{
    const QDateTime now = QDateTime::currentDateTime();
    RunRecord record;
    record.id = newId(now);
    record.title = title;
    record.by = platform::processMark();
    record.date = now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODate);
    return record;
}

/** Keeps the journals of the last runs, with the one that is about to begin; those that are not ended stay. */
void discardOld(JournalShelf &shelf)
{
    constexpr qsizetype mostJournals = 200;
    const QStringList names = shelf.names();
    for (qsizetype i = mostJournals - 1; i < names.size(); ++i)
        if (!summaryOf(shelf.ends(names[i])).end.isEmpty())
            shelf.remove(names[i]);
}

} // namespace

MoveRun::MoveRun(platform::FileSystem &disk, JournalShelf &shelf, RunRecord record)
    : m_disk(disk), m_shelf(shelf), m_record(std::move(record)), m_operations(disk, m_record.id, *this)
{
}

platform::Result<std::unique_ptr<MoveRun>> MoveRun::begin(platform::FileSystem &disk, JournalShelf &shelf,
                                                          const MoveOrderForm &form)
{
    RunRecord record = newRecord(form.title);
    record.undoes = form.undoes;
    record.count = int(form.items.size());
    PlainPaths plain(disk);
    std::vector<Displacement> displacements;
    for (const MoveItem &item : form.items) {
        MoveRecord &added = record.items.emplace_back();
        added.item = item;
        if (item.operation != Operation::Link)
            added.item.was = disk.look(item.from);
        displacements.push_back(displacementOf(added.item, plain));
    }
    record.steps = orderMoves(displacements).steps;
    for (const MoveStep &step : record.steps)
        if (step.isAhead)
            record.items[size_t(step.item)].item.isAhead = true;
    discardOld(shelf);
    if (const auto made = shelf.make(record.id, headLines(record)); !made)
        return tl::unexpected(made.error());
    std::unique_ptr<MoveRun> run(new MoveRun(disk, shelf, std::move(record)));
    run->m_emptyFolders = form.emptyFolders;
    return run;
}

platform::Result<std::unique_ptr<MoveRun>> MoveRun::open(platform::FileSystem &disk, JournalShelf &shelf,
                                                         const QString &title)
{
    RunRecord record = newRecord(title);
    record.isByHand = true;
    discardOld(shelf);
    if (const auto made = shelf.make(record.id, headLines(record)); !made)
        return tl::unexpected(made.error());
    return std::unique_ptr<MoveRun>(new MoveRun(disk, shelf, std::move(record)));
}

std::unique_ptr<MoveRun> MoveRun::resume(platform::FileSystem &disk, JournalShelf &shelf, RunRecord record)
{
    return std::unique_ptr<MoveRun>(new MoveRun(disk, shelf, std::move(record)));
}

/** What could not be written, on a disk that was full, comes before the next line; so the journal lacks nothing in the middle. */
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

/** Items that no order allows have no step. */
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

/** Whether a later step of the group needs the place where this item still is. */
bool MoveRun::isWaitedFor(int index)
{
    const QString place = placeOf(at(index).item.from);
    for (size_t i = m_step; i < m_groupEnd; ++i)
        if (placeOf(at(m_record.steps[i].item).item.to) == place)
            return true;
    return false;
}

/** Takes the steps of the group back, the last one first. */
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
    outcome.message =
        QCoreApplication::translate("files", "The name %1 was taken in the meantime; the item is now called %2")
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
    const auto isDone = [](const MoveRecord &record) { return record.stand == Stand::Done; };
    const auto done = std::count_if(m_record.items.begin(), m_record.items.end(), isDone);
    // What could not be brought back or taken away is tried again at the next start, and so is a journal that lacks a line.
    if (!m_unwritten.isEmpty())
        m_trouble = note({}, Lasting::AtOnce);
    if (m_trouble && !m_operations.hasLeftOver() && std::none_of(m_record.items.begin(), m_record.items.end(), isAside))
        m_trouble = note(endLine(end, int(m_record.items.size()), int(done)), Lasting::AtOnce);
    m_record.end = end;
    m_record.doneAtEnd = int(done);
    m_shelf.letGo(m_record.id);
}

/** Folders in which nothing came to be, and those that are empty since a run was taken back. The deepest are last. */
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
    // Steps that are not all known could move what was not to be moved yet.
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
