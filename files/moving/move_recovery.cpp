#include "files/moving/move_recovery.h"

#include "files/moving/half_names.h"
#include "files/moving/move_paths.h"
#include "files/moving/move_rescue.h"
#include "files/moving/move_run.h"

#include "platform/foundation/paths.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdlib>
#include <map>

namespace files {
namespace {

using platform::ItemState;

const QString recoveredEnd = QStringLiteral("recovered");

/** Finds out where the items of an interrupted run are, and removes unfinished copies. */
class Search
{
public:
    Search(platform::FileSystem &disk, RunRecord &run) : m_disk(disk), m_run(run), m_now(run) {}

    QStringList problems;

    void lookAgain()
    {
        for (int i = 0; i < int(m_run.items.size()); ++i) {
            MoveRecord &record = m_run.items[size_t(i)];
            if (!record.isKnown)
                continue;
            m_halfNames.remove(i, record);
            removePart(i, record);
            switch (record.item.operation) {
            case Operation::Move:
                findMoved(i, record);
                break;
            case Operation::Copy:
                decide(record, record.copied && isAt(record.item.to, record.copied));
                break;
            case Operation::Link:
                decide(record, m_disk.linkText(record.item.to) == record.item.from);
                break;
            case Operation::Trash:
                findTrashed(record);
                break;
            case Operation::RemoveCopy:
                findRemoved(i, record);
                break;
            case Operation::RemoveLink:
                bringBackRemoved(i, record);
                decide(record, m_disk.linkText(record.item.from) != record.item.to);
                break;
            case Operation::Restore:
                findRestored(record);
                break;
            }
        }
    }

private:
    bool isAt(const QString &path, const std::optional<ItemState> &state) const
    {
        const auto found = m_disk.look(path);
        return found && state && isSameItem(*found, *state);
    }

    void done(MoveRecord &record, const QString &path)
    {
        if (record.stand == Stand::Done)
            return;
        record.stand = Stand::Done;
        record.why = MoveProblem::None;
        record.message.clear();
        record.path = path;
        record.is = path.isEmpty() ? std::nullopt : m_disk.look(path);
    }

    /** What the journal says was done is trusted; what it does not know was done if it looks so. */
    void decide(MoveRecord &record, bool looksDone)
    {
        if (record.stand == Stand::Waiting && looksDone)
            done(record, record.item.operation == Operation::RemoveLink ? QString() : record.item.to);
    }

    /**
     * Unfinished files are named through a folder that their process has open: they are lost with it, and made again.
     */
    static bool isOfUnfinished(const MoveRecord &record)
    {
        return record.item.operation == Operation::Copy && record.item.from.startsWith(QStringLiteral("/proc/self/"));
    }

    /** A copy that never got its name is removed if its original still exists; otherwise it is all that is left. */
    void removePart(int index, MoveRecord &record)
    {
        const bool makesCopy = record.item.operation == Operation::Move || record.item.operation == Operation::Copy;
        if (!makesCopy)
            return;
        const QStringList sources = {m_now(record.item.from, index), record.item.from,
                                     asidePath(m_run.id, index, record.item)};
        const QString part = partPath(m_run.id, index, record.item.to);
        for (const QString &place : {part, m_now(part, index)}) {
            if (!m_disk.look(place))
                continue;
            const bool hasSource = std::any_of(sources.begin(), sources.end(),
                                               [&](const QString &source) { return isSource(source, place, record); });
            if (hasSource || isOfUnfinished(record) ||
                (record.stand == Stand::Done && m_disk.look(m_now(record.path, index))))
                (void)m_disk.discard(place);
            else
                nameLastCopy(record, place);
        }
    }

    /** Some disks number their items differently after a restart; a matching item is then taken for the source. */
    bool isSource(const QString &path, const QString &part, const MoveRecord &record) const
    {
        const auto found = m_disk.look(path);
        const auto &was = record.item.was;
        if (!found || !was || isSameItem(*found, *was))
            return found.has_value();
        return isAlike(*found, *was) && holds(path, part);
    }

    void nameLastCopy(MoveRecord &record, const QString &part)
    {
        const bool isWhole = record.copied && isAt(part, record.copied);
        const QString place = m_names.putBack(part, record.item.to);
        if (isWhole && place == record.item.to)
            done(record, place);
        else
            problems.append(QCoreApplication::translate("files", "%1 no longer exists; its partial copy is at %2")
                                .arg(record.item.from, place));
    }

    void findMoved(int index, MoveRecord &record)
    {
        const MoveItem &item = record.item;
        const QString aside = asidePath(m_run.id, index, item);
        const bool isCopied = record.copied && isAt(item.to, record.copied);
        if (m_disk.look(aside))
            return findAside(record, aside, isCopied);
        if (const QString since = m_now(aside, index); since != aside && m_disk.look(since))
            putAway(item, since);
        const bool isOld = isAt(item.from, item.was);
        const bool isNew = isCopied || isAt(item.to, item.was);
        if (isOld && isNew)
            return findBoth(index, record, isCopied);
        if (isNew)
            done(record, item.to);
        else if (isOld && record.stand == Stand::Done)
            record.stand = Stand::TakenBack;
        else if (!isOld && record.stand == Stand::Waiting)
            problems.append(sentence(MoveProblem::Gone, item.from));
    }

    /** Whether everything of @p part is also in @p whole; @p part may have been half removed. Links are not followed. */
    bool holds(const QString &whole, const QString &part) const
    {
        const auto state = m_disk.look(part);
        const auto other = m_disk.look(whole);
        const bool isFolder = state && state->kind == platform::ItemKind::Folder;
        if (!state || !other || state->kind != other->kind || isOneItem(*state, *other))
            return false;
        if (!isFolder)
            return m_disk.haveSameContent(part, whole);
        const auto entries = m_disk.list(part);
        if (!entries)
            return false;
        return std::all_of(entries->begin(), entries->end(), [&](const platform::FolderEntry &entry) {
            return holds(platform::joinedPath(whole, entry.name), platform::joinedPath(part, entry.name));
        });
    }

    /** A folder is also moved aside while it is being removed, after it was copied to another disk. */
    void findAside(MoveRecord &record, const QString &aside, bool isCopied)
    {
        if (!isCopied || !holds(record.item.to, aside)) {
            record.stand = Stand::Aside;
            return;
        }
        if (m_disk.remove(aside))
            problems.append(QCoreApplication::translate("files", "A part of %1 could not be removed")
                                .arg(m_names.putBack(aside, record.item.from)));
        done(record, record.item.to);
    }

    /** The remains of a folder that was copied to another disk, in a folder that has moved since. */
    void putAway(const MoveItem &item, const QString &left)
    {
        const QString place =
            platform::joinedPath(platform::parentFolder(left), platform::lastPathComponent(item.from));
        if (holds(item.to, left) && !m_disk.remove(left))
            return;
        if (m_names.putBack(left, place) == left)
            problems.append(QCoreApplication::translate("files", "%1 could not be moved aside").arg(left));
    }

    /** A copy on another disk, or a second link on this one, was made and the first not yet removed. */
    void findBoth(int index, MoveRecord &record, bool isCopied)
    {
        const MoveItem &item = record.item;
        const bool isSecondName = !isCopied && m_halfNames.areOne(item.from, item.to, item.was);
        if (!isSecondName && (record.stand == Stand::Done || !isCopied))
            return;
        if (isSecondName || m_disk.haveSameContent(item.from, item.to)) {
            const QString left = asidePath(m_run.id, index, item);
            const bool isAside = !m_disk.rename(item.from, left);
            const bool isSame = isAside && isAt(left, item.was) &&
                                (isSecondName ? isAt(item.to, item.was) : m_disk.haveSameContent(left, item.to));
            if (isSame && !m_disk.remove(left))
                return done(record, item.to);
            if (isAside && m_disk.look(left))
                (void)m_names.putBack(left, item.from);
        }
        problems.append(QCoreApplication::translate("files", "%1 is also at %2").arg(item.from, item.to));
    }

    void findTrashed(MoveRecord &record)
    {
        const MoveItem &item = record.item;
        if (!item.was)
            return;
        if (isAt(item.from, item.was)) {
            takeOutOfTrash(record);
            if (record.stand == Stand::Done)
                record.stand = Stand::TakenBack;
            return;
        }
        if (record.stand == Stand::Done)
            return;
        if (const auto trashed = m_disk.findTrashed(item.from, *item.was))
            done(record, trashed->path);
        else if (!findHalfTrashed(record) && !findCopyInTrash(record) && !m_disk.look(item.from))
            problems.append(sentence(MoveProblem::Gone, item.from));
    }

    /** What is both in its place and in the trash was on its way from one to the other. */
    void takeOutOfTrash(const MoveRecord &record)
    {
        const MoveItem &item = record.item;
        for (const platform::TrashedItem &trashed : m_disk.allTrashed(item.from))
            if (m_halfNames.areOne(trashed.path, item.from, item.was))
                (void)m_disk.remove(trashed.path);
        m_disk.discardHalfTrashed(item.from);
    }

    void findRestored(MoveRecord &record)
    {
        const MoveItem &item = record.item;
        if (m_halfNames.areOne(item.from, item.to, item.was))
            (void)m_disk.remove(item.from);
        decide(record, isAt(item.to, item.was));
        if (record.stand == Stand::Done)
            m_disk.discardHalfTrashed(item.to);
    }

    /** Only the copy in the trash is left, which is another item with the same size and date. */
    bool findCopyInTrash(MoveRecord &record)
    {
        for (const platform::TrashedItem &trashed : m_disk.allTrashed(record.item.from)) {
            const auto state = m_disk.look(trashed.path);
            if (!state || !isAlikeOnAnyDisk(*state, *record.item.was))
                continue;
            done(record, trashed.path);
            return true;
        }
        return false;
    }

    /** Some disks store dates with a resolution of two seconds. */
    static bool isAlikeOnAnyDisk(ItemState one, const ItemState &other)
    {
        constexpr qint64 coarse = 2'000'000'000;
        if (std::abs(one.changedNs - other.changedNs) < coarse)
            one.changedNs = other.changedNs;
        return isAlike(one, other);
    }

    /**
     * If a file system has no trash, the item is copied into another one, and then moved aside under a hidden name. Its
     * remains there are removed if the trash has all of it, and moved back otherwise.
     */
    bool findHalfTrashed(MoveRecord &record)
    {
        const MoveItem &item = record.item;
        const QString folder = platform::parentFolder(item.from);
        for (const platform::FolderEntry &entry :
             m_disk.list(m_disk.canonicalFolder(folder)).value_or(std::vector<platform::FolderEntry>())) {
            const QString aside = platform::joinedPath(folder, entry.name);
            if (!entry.name.startsWith(QStringLiteral(".quorlin-")) || !isAt(aside, item.was))
                continue;
            for (const platform::TrashedItem &trashed : m_disk.allTrashed(item.from))
                if (holds(trashed.path, aside) && !m_disk.remove(aside)) {
                    done(record, trashed.path);
                    return true;
                }
            return !m_disk.rename(aside, item.from);
        }
        return false;
    }

    /** What was removed is moved aside for a moment. */
    void bringBackRemoved(int index, const MoveRecord &record)
    {
        if (const QString left = asidePath(m_run.id, index, record.item); m_disk.look(left))
            (void)m_names.putBack(left, record.item.from);
    }

    /** Copies are trashed; older journals list some that were removed. */
    void findRemoved(int index, MoveRecord &record)
    {
        const MoveItem &item = record.item;
        bringBackRemoved(index, record);
        if (record.stand != Stand::Waiting || !item.was)
            return;
        if (isAt(item.from, item.was))
            return takeOutOfTrash(record);
        if (const auto trashed = m_disk.findTrashed(item.from, *item.was))
            done(record, trashed->path);
        else if (!findHalfTrashed(record) && !findCopyInTrash(record) && !m_disk.look(item.from))
            done(record, QString());
    }

    platform::FileSystem &m_disk;
    RunRecord &m_run;
    PathsSince m_now;
    HalfNames m_halfNames{m_disk, m_run, m_now};
    SilentOperationLog m_log;
    MoveOperations m_names{m_disk, m_run.id, m_log}; ///< restores names
};

/** Writes the findings to the journal, so that it is complete afterwards. */
QByteArray newsOf(const RunRecord &before, const RunRecord &now)
{
    QByteArray lines;
    for (int i = 0; i < int(now.items.size()); ++i) {
        const MoveRecord &record = now.items[size_t(i)];
        if (record.stand == before.items[size_t(i)].stand)
            continue;
        if (record.stand == Stand::Done)
            lines += doneLine(i, record);
        else if (record.stand == Stand::TakenBack)
            lines += takenBackLine(i);
    }
    return lines;
}

RecoveredRun reportOf(const RunRecord &before, const RunRecord &found, const RunRecord &after)
{
    RecoveredRun report;
    report.id = after.id;
    report.title = after.title;
    for (size_t i = 0; i < after.items.size(); ++i) {
        const bool wasDone = before.items[i].stand == Stand::Done;
        const bool isDone = after.items[i].stand == Stand::Done;
        const bool wasInTheMiddle = found.items[i].stand == Stand::Aside || wasDone;
        report.done += wasDone && isDone;
        report.finished += !wasDone && isDone;
        report.takenBack += !isDone && wasInTheMiddle;
        report.left += after.items[i].stand == Stand::Waiting;
        if (after.items[i].stand == Stand::Aside)
            report.problems.append(after.items[i].message);
    }
    return report;
}

RecoveredRun recoverOne(platform::FileSystem &disk, JournalShelf &shelf, RunRecord record)
{
    if (!record.isWhole)
        (void)shelf.append(record.id, cutLine(), Lasting::WhenTheSystemLikes);
    const RunRecord before = record;
    Search search(disk, record);
    search.lookAgain();
    const RunRecord found = record;
    if (const QByteArray news = newsOf(before, record); !news.isEmpty())
        (void)shelf.append(record.id, news, Lasting::AtOnce);
    const auto run = MoveRun::resume(disk, shelf, std::move(record));
    run->mend();
    if (before.isDamaged)
        search.problems += rescueHidden(disk, before);
    run->close(recoveredEnd);
    RecoveredRun report = reportOf(before, found, run->record());
    report.problems += search.problems;
    return report;
}

/** Nothing moves before the head of the journal is complete, so a run without one has done nothing. */
bool neverBegan(platform::FileSystem &disk, const RunRecord &run)
{
    const bool isHeadWhole = run.isByHand || (int(run.items.size()) == run.count && !run.steps.empty());
    return !isHeadWhole && !run.isDamaged && !run.isBegun && !hasHidden(disk, run);
}

} // namespace

std::vector<RecoveredRun> recoverMoves(platform::FileSystem &disk, JournalShelf &shelf)
{
    std::vector<RecoveredRun> recovered;
    for (const QString &name : shelf.names()) {
        if (!summaryOf(shelf.ends(name)).end.isEmpty() || !shelf.hold(name))
            continue;
        const auto journal = shelf.read(name);
        RunRecord record = readRecord(journal.value_or(QByteArray()));
        record.isDamaged = record.isDamaged || (record.id != name && record.isBegun);
        record.id = name;
        if (!journal || !record.end.isEmpty())
            shelf.letGo(name);
        else if (neverBegan(disk, record))
            shelf.remove(name);
        else
            recovered.push_back(recoverOne(disk, shelf, std::move(record)));
    }
    return recovered;
}

RestOfRun restOf(const JournalShelf &shelf, const QString &run)
{
    RestOfRun rest;
    const RunRecord record =
        shelf.names().contains(run) ? readRecord(shelf.read(run).value_or(QByteArray())) : RunRecord();
    if (record.id != run || record.end != recoveredEnd || record.isByHand)
        return rest;
    std::map<int, int> numbers; // among the rest
    for (int i = 0; i < int(record.items.size()); ++i) {
        const MoveRecord &each = record.items[size_t(i)];
        if (!each.isKnown)
            continue;
        if (each.item.leader < 0)
            rest.places.append(each.stand == Stand::Done ? each.path : each.item.from);
        const bool isLeft = each.stand == Stand::Waiting || each.stand == Stand::TakenBack;
        if (!isLeft || !record.undoes.isEmpty())
            continue;
        numbers[i] = int(rest.items.size());
        const auto leader = numbers.find(each.item.leader);
        rest.items.push_back({each.item.operation, each.item.from, each.item.to});
        rest.items.back().leader = leader == numbers.end() ? -1 : leader->second;
    }
    return rest;
}

} // namespace files
