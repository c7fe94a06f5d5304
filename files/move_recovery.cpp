#include "files/move_recovery.h"

#include "files/move_paths.h"
#include "files/move_run.h"

#include "platform/foundation/paths.h"

#include <algorithm>

namespace files {
namespace {

using platform::ItemState;

/** Finds out where the items of an interrupted run are, and takes away what is left of unfinished copies. */
class Search
{
public:
    Search(platform::FileSystem &disk, RunRecord &run) : m_disk(disk), m_run(run), m_now(run) {}

    QStringList problems;

    void lookAgain()
    {
        for (int i = 0; i < int(m_run.items.size()); ++i) {
            MoveRecord &record = m_run.items[size_t(i)];
            removePart(i, record);
            switch (record.item.deed) {
            case Deed::Move:
                findMoved(i, record);
                break;
            case Deed::Copy:
                decide(record, record.copied && isAt(record.item.to, record.copied));
                break;
            case Deed::Link:
                decide(record, m_disk.linkText(record.item.to) == record.item.from);
                break;
            case Deed::Trash:
                findTrashed(record);
                break;
            case Deed::RemoveCopy:
                findRemoved(i, record);
                break;
            case Deed::RemoveLink:
                decide(record, m_disk.linkText(record.item.from) != record.item.to);
                break;
            case Deed::Restore:
                decide(record, isAt(record.item.to, record.item.was));
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
        record.code.clear();
        record.message.clear();
        record.path = path;
        record.is = path.isEmpty() ? std::nullopt : m_disk.look(path);
    }

    /** What the journal says was done stands; what it does not know was done if it looks so. */
    void decide(MoveRecord &record, bool looksDone)
    {
        if (record.stand == Stand::Waiting && looksDone)
            done(record, record.item.deed == Deed::RemoveLink ? QString() : record.item.to);
    }

    /** A copy that never got its name; what it was made from is still in its place. */
    void removePart(int index, const MoveRecord &record)
    {
        const bool makesCopy = record.item.deed == Deed::Move || record.item.deed == Deed::Copy;
        if (!makesCopy)
            return;
        const bool hasSource = m_disk.look(m_now(record.item.from, index)) || m_disk.look(record.item.from) ||
                               m_disk.look(asidePath(m_run.id, index, record.item));
        const QString part = partPath(m_run.id, index, record.item.to);
        for (const QString &place : {part, m_now(part, index)})
            if ((hasSource || record.stand == Stand::Done) && m_disk.look(place))
                (void)m_disk.remove(place);
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
            return findBoth(record, isCopied);
        if (isNew)
            done(record, item.to);
        else if (isOld && record.stand == Stand::Done)
            record.stand = Stand::TakenBack;
        else if (!isOld && record.stand == Stand::Waiting)
            problems.append(MoveDeeds::sentence(QStringLiteral("gone"), item.from));
    }

    /** Whether everything of @p part is also in @p whole; @p part may have been half removed. */
    bool holds(const QString &whole, const QString &part) const
    {
        const auto entries = m_disk.list(part);
        if (!entries)
            return m_disk.haveSameContent(part, whole);
        return std::all_of(entries->begin(), entries->end(), [&](const platform::FolderEntry &entry) {
            return holds(platform::joinedPath(whole, entry.name), platform::joinedPath(part, entry.name));
        });
    }

    /** A folder is also aside while it is removed, after it was copied to another disk. */
    void findAside(MoveRecord &record, const QString &aside, bool isCopied)
    {
        if (!isCopied || !holds(record.item.to, aside)) {
            record.stand = Stand::Aside;
            return;
        }
        (void)m_disk.remove(aside);
        done(record, record.item.to);
    }

    /** What is left of a folder that was copied to another disk, in a folder that moved since. */
    void putAway(const MoveItem &item, const QString &left)
    {
        const QString place =
            platform::joinedPath(platform::parentFolder(left), platform::lastPathComponent(item.from));
        const bool isGone = holds(item.to, left) ? !m_disk.remove(left) : !m_disk.rename(left, place);
        if (!isGone)
            problems.append(QStringLiteral("%1 could not be put away").arg(left));
    }

    /** A copy on another disk, or a second name on this one, was made and the first not yet removed. */
    void findBoth(MoveRecord &record, bool isCopied)
    {
        const MoveItem &item = record.item;
        const auto found = m_disk.look(item.to);
        const bool isSecondName = !isCopied && found && item.was && found->names > item.was->names;
        const bool isSecondCopy = isCopied && m_disk.haveSameContent(item.from, item.to);
        if (record.stand == Stand::Done || (!isSecondName && !isCopied))
            return;
        if ((isSecondName || isSecondCopy) && !m_disk.remove(item.from))
            done(record, item.to);
        else
            problems.append(QStringLiteral("%1 is also at %2").arg(item.from, item.to));
    }

    void findTrashed(MoveRecord &record)
    {
        const MoveItem &item = record.item;
        if (record.stand == Stand::Done || !item.was)
            return;
        if (isAt(item.from, item.was))
            return m_disk.discardHalfTrashed(item.from);
        if (m_disk.look(item.from))
            return;
        if (const auto trashed = m_disk.findTrashed(item.from, *item.was))
            done(record, trashed->path);
        else if (!findHalfTrashed(record))
            problems.append(MoveDeeds::sentence(QStringLiteral("gone"), item.from));
    }

    /**
     * Where a file system has no trash the item is copied into one, and then leaves its place under a hidden name. What is left of
     * it there goes if the trash has all of it, and back into its place otherwise.
     */
    bool findHalfTrashed(MoveRecord &record)
    {
        const MoveItem &item = record.item;
        const QString folder = platform::parentFolder(item.from);
        for (const platform::FolderEntry &entry : m_disk.list(folder).value_or(std::vector<platform::FolderEntry>())) {
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

    void findRemoved(int index, MoveRecord &record)
    {
        const MoveItem &item = record.item;
        const QString aside = asidePath(m_run.id, index, item);
        if (m_disk.look(aside) && holds(item.to, aside))
            (void)m_disk.remove(aside);
        else if (m_disk.look(aside))
            (void)m_disk.rename(aside, item.from);
        if (record.stand != Stand::Waiting || m_disk.look(item.from))
            return;
        const auto trashed = item.was ? m_disk.findTrashed(item.from, *item.was) : std::nullopt;
        done(record, trashed ? trashed->path : QString());
    }

    platform::FileSystem &m_disk;
    RunRecord &m_run;
    PathsSince m_now;
};

/** Tells the journal what was found, so that it stands by itself afterwards. */
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
        shelf.append(record.id, "\n", Lasting::WhenTheSystemLikes);
    const RunRecord before = record;
    Search search(disk, record);
    search.lookAgain();
    const RunRecord found = record;
    if (const QByteArray news = newsOf(before, record); !news.isEmpty())
        shelf.append(record.id, news, Lasting::AtOnce);
    const auto run = MoveRun::resume(disk, shelf, std::move(record));
    run->mend();
    run->close(QStringLiteral("recovered"));
    RecoveredRun report = reportOf(before, found, run->record());
    report.problems += search.problems;
    return report;
}

} // namespace

std::vector<RecoveredRun> recoverMoves(platform::FileSystem &disk, JournalShelf &shelf)
{
    std::vector<RecoveredRun> recovered;
    for (const QString &name : shelf.names()) {
        if (!summaryOf(shelf.ends(name)).end.isEmpty() || !shelf.hold(name))
            continue;
        RunRecord record = readRecord(shelf.read(name).value_or(QByteArray()));
        const bool isComplete =
            record.id == name &&
            (record.isByHand || (int(record.items.size()) == record.count && !record.steps.empty()));
        if (!record.end.isEmpty())
            shelf.letGo(name);
        else if (isComplete)
            recovered.push_back(recoverOne(disk, shelf, std::move(record)));
        else
            shelf.remove(name); // nothing moves before the head of the journal is whole
    }
    return recovered;
}

} // namespace files
