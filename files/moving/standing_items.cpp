#include "files/moving/standing_items.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace files {
namespace {

bool leaves(Operation operation)
{
    return operation == Operation::Move || operation == Operation::Trash || operation == Operation::RemoveCopy;
}

bool takes(Operation operation)
{
    return operation == Operation::Move || operation == Operation::Copy || operation == Operation::Restore;
}

} // namespace

StandingItems::StandingItems(const JournalShelf &shelf, const QString &run)
    : m_shelf(shelf), m_run(run), m_names(shelf.names())
{
    if (m_names.contains(run))
        m_unread.append(run);
    else
        m_names.clear(); // nothing can undo it
}

bool StandingItems::step()
{
    if (m_reading)
        readLine();
    else if (m_nextName < m_names.size())
        readEnds(m_names[m_nextName++]);
    else if (!m_unread.isEmpty())
        open(m_unread.takeLast());
    else
        return true;
    return false;
}

void StandingItems::readEnds(const QString &name)
{
    if (const QString undoes = summaryOf(m_shelf.ends(name)).undoes; !undoes.isEmpty())
        m_undoers.insert(undoes, name);
}

void StandingItems::open(const QString &name)
{
    m_opened = name;
    m_seen.insert(name);
    m_reading.emplace(m_shelf.read(name).value_or(QByteArray()));
}

void StandingItems::readLine()
{
    if (!m_reading->step())
        return;
    RunRecord record = m_reading->take();
    m_reading.reset();
    if (m_opened == m_run && record.isDamaged)
        record.id = m_run;
    if (record.id == m_opened)
        for (const QString &name : m_undoers.values(m_opened))
            if (!m_seen.contains(name))
                m_unread.append(name);
    m_records[m_opened] = std::move(record);
}

std::vector<int> StandingItems::items()
{
    m_seen.clear();
    std::vector<int> items;
    const std::vector<bool> stands = standing(m_run);
    for (size_t i = 0; i < stands.size(); ++i)
        if (stands[i])
            items.push_back(int(i));
    return items;
}

std::vector<bool> StandingItems::standing(const QString &name)
{
    const RunRecord &run = m_records[name];
    std::vector<bool> stands(run.items.size());
    for (size_t i = 0; i < run.items.size(); ++i)
        stands[i] = run.items[i].stand == Stand::Done && run.items[i].isKnown;
    m_seen.insert(name);
    for (const QString &undoer : m_undoers.values(name)) {
        const RunRecord &undo = m_records[undoer];
        if (m_seen.contains(undoer) || undo.id != undoer)
            continue;
        const std::vector<bool> takes = standing(undoer);
        for (size_t i = 0; i < takes.size(); ++i)
            if (const int of = undo.items[i].item.of; takes[i] && of >= 0 && of < int(stands.size()))
                stands[size_t(of)] = false;
    }
    return stands;
}

std::vector<int> doneItemsOf(const RunRecord &run)
{
    std::vector<int> done;
    for (int i = 0; i < int(run.items.size()); ++i)
        if (run.items[size_t(i)].stand == Stand::Done)
            done.push_back(i);
    return done;
}

int filesOf(const RunRecord &run, const std::vector<int> &items)
{
    const auto isMoved = [&run](int index) { return run.items[size_t(index)].item.operation == Operation::Move; };
    if (std::all_of(items.begin(), items.end(), isMoved))
        return int(items.size());
    QHash<QString, Operation> takers;
    for (const int index : items)
        if (const MoveItem &item = run.items[size_t(index)].item; takes(item.operation))
            takers.insert(item.to, item.operation);
    const auto isPutAside = [&](int index) {
        const MoveItem &item = run.items[size_t(index)].item;
        const auto taker = takers.constFind(item.from);
        if (!leaves(item.operation) || taker == takers.constEnd())
            return false;
        // Where one file is moved to the place that another was moved from, these are two.
        return item.operation != Operation::Move || *taker != Operation::Move;
    };
    return int(items.size()) - int(std::count_if(items.begin(), items.end(), isPutAside));
}

} // namespace files
