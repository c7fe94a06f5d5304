#include "files/moving/move_paths.h"

#include "platform/foundation/paths.h"

#include <algorithm>

namespace files {

using platform::joinedPath;
using platform::lastPathComponent;
using platform::parentFolder;

PathsSince::PathsSince(const RunRecord &run) : m_isInTurn(run.isByHand)
{
    for (int i = 0; i < int(run.items.size()); ++i) {
        const MoveRecord &record = run.items[size_t(i)];
        const auto &state = record.is ? record.is : record.item.was;
        const bool isFolder = state && state->kind == platform::ItemKind::Folder;
        // A failed one may have got a number, when another program took its old name.
        const bool isMoved = record.stand == Stand::Done || (record.stand == Stand::Failed && !record.path.isEmpty() &&
                                                             record.path != record.item.from);
        if (!isMoved || !record.isKnown || record.path.isEmpty() || record.item.operation != Operation::Move ||
            !isFolder)
            continue;
        m_at.insert(record.item.from, qsizetype(m_moved.size()));
        m_moved.push_back({record.item.from, record.path, i, record.copied.has_value()});
    }
}

QString PathsSince::operator()(const QString &path, int index)
{
    if (m_moved.empty())
        return path;
    if (!m_isInTurn)
        return joinedPath(folderNow(parentFolder(path)), lastPathComponent(path));
    QString now = path;
    for (const Moved &folder : m_moved)
        if (folder.index > index && now.startsWith(folder.from + u'/'))
            now = folder.to + now.mid(folder.from.size());
    return now;
}

bool PathsSince::wasCopied(const QString &path, int index) const
{
    if (m_isInTurn)
        return std::any_of(m_moved.begin(), m_moved.end(), [&](const Moved &folder) {
            return folder.isCopied && folder.index > index && path.startsWith(folder.from + u'/');
        });
    size_t steps = 0;
    for (QString folder = parentFolder(path); !m_moved.empty() && folder.size() > 1; folder = parentFolder(folder))
        if (const qsizetype at = m_at.value(folder, -1); at >= 0) {
            if (m_moved[size_t(at)].isCopied || ++steps > m_moved.size())
                return true;
            folder = m_moved[size_t(at)].to;
        }
    return false;
}

/** All paths of a plan are those before the run, so the parent folders are followed one by one. */
QString PathsSince::folderNow(const QString &folder)
{
    if (folder.size() < 2)
        return folder;
    if (const auto known = m_known.constFind(folder); known != m_known.constEnd())
        return *known;
    const qsizetype at = m_at.value(folder, -1);
    const QString place = at < 0 ? folder : m_moved[size_t(at)].to;
    m_known.insert(folder, folder); // for a journal whose folders form a cycle
    const QString now = joinedPath(folderNow(parentFolder(place)), lastPathComponent(place));
    m_known.insert(folder, now);
    return now;
}

} // namespace files
