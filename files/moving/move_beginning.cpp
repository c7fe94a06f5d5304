#include "files/moving/move_beginning.h"

#include "files/moving/move_paths.h"

#include "platform/file/living_process.h"
#include "platform/foundation/paths.h"

#include <QDateTime>
#include <QHash>
#include <QRandomGenerator>

#include <algorithm>
#include <utility>

namespace files {
namespace {

using platform::joinedPath;
using platform::lastPathComponent;
using platform::parentFolder;

/** A unique name that sorts by time. */
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

} // namespace

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

void discardOldJournals(JournalShelf &shelf)
{
    constexpr qsizetype mostJournals = 200;
    const QStringList names = shelf.names();
    for (qsizetype i = mostJournals - 1; i < names.size(); ++i)
        if (!summaryOf(shelf.ends(names[i])).end.isEmpty())
            shelf.remove(names[i]);
}

/** The places that the items of the run affect, found out one after the other. */
class MoveBeginning::Looking
{
public:
    explicit Looking(const platform::FileSystem &disk) : plain(disk) {}

    PlainPaths plain;
    std::vector<Displacement> displacements;
    std::optional<MoveOrdering> ordering; ///< once all are known
};

MoveBeginning::MoveBeginning(platform::FileSystem &disk, JournalShelf &shelf, MoveOrderForm form)
    : m_disk(disk), m_shelf(shelf), m_form(std::move(form)), m_record(newRecord(m_form.title)),
      m_looking(std::make_unique<Looking>(disk))
{
    m_record.undoes = m_form.undoes;
    m_record.count = int(m_form.items.size());
}

MoveBeginning::~MoveBeginning()
{
    if (m_isMade)
        m_shelf.remove(m_record.id);
}

bool MoveBeginning::workFor(std::chrono::milliseconds time)
{
    const auto end = std::chrono::steady_clock::now() + time;
    do {
        if (m_isDone)
            return true;
        if (m_record.items.size() < m_form.items.size())
            look();
        else if (m_looking)
            order();
        else
            write();
    } while (std::chrono::steady_clock::now() < end);
    return m_isDone;
}

void MoveBeginning::look()
{
    MoveRecord &added = m_record.items.emplace_back();
    added.item = m_form.items[m_record.items.size() - 1];
    if (added.item.operation != Operation::Link)
        added.item.was = m_disk.look(added.item.from);
    m_looking->displacements.push_back(displacementOf(added.item, m_looking->plain));
}

void MoveBeginning::order()
{
    if (!m_looking->ordering)
        m_looking->ordering.emplace(std::move(m_looking->displacements));
    if (!m_looking->ordering->step())
        return;
    m_record.steps = m_looking->ordering->take().steps;
    for (const MoveStep &step : m_record.steps)
        if (step.isAhead)
            m_record.items[size_t(step.item)].item.isAhead = true;
    m_looking.reset();
}

/**
 * When this returns, the last lines are synced to the disk with all before them; a truncated head is that of a run that
 * never began.
 */
void MoveBeginning::write()
{
    constexpr int itemsAtOnce = 100;
    const int end = std::min(m_written + itemsAtOnce, int(m_record.items.size()));
    QByteArray lines = m_isMade ? QByteArray() : runLine(m_record);
    for (int i = m_written; i < end; ++i)
        lines += itemLine(i, m_record.items[size_t(i)].item);
    const bool isLast = end == int(m_record.items.size());
    if (isLast)
        lines += stepsLine(m_record);
    if (m_isMade) {
        m_trouble = m_shelf.append(m_record.id, lines, isLast ? Lasting::AtOnce : Lasting::WhenTheSystemLikes);
    } else {
        discardOldJournals(m_shelf);
        m_trouble = m_shelf.make(m_record.id, lines);
        m_isMade = bool(m_trouble);
    }
    m_written = end;
    m_isDone = isLast || !m_trouble;
}

platform::Result<std::unique_ptr<MoveRun>> MoveBeginning::take()
{
    if (!m_trouble)
        return tl::unexpected(m_trouble.error());
    m_isMade = false; // the run owns it now
    std::unique_ptr<MoveRun> run(new MoveRun(m_disk, m_shelf, std::move(m_record)));
    run->m_emptyFolders = m_form.emptyFolders;
    return run;
}

} // namespace files
