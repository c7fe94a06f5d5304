#include "files/moving/standing_items.h"

#include <utility>

namespace files {

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

} // namespace files
