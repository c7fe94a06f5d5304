#include "files/moving/half_names.h"

#include "files/moving/move_operations.h"

#include "platform/foundation/paths.h"

#include <QDateTime>

#include <algorithm>

namespace files {
namespace {

using platform::ItemKind;
using platform::ItemState;
using platform::joinedPath;
using platform::parentFolder;

constexpr qint64 nsPerMs = 1'000'000;

/** An item that had several hard links before must keep all of them. */
bool hasMoreNames(const ItemState &now, const std::optional<ItemState> &was)
{
    return was && was->names > 0 && now.kind != ItemKind::Folder && now.names > was->names;
}

} // namespace

void HalfNames::remove(int index, const MoveRecord &record)
{
    const MoveItem &item = record.item;
    removePlaceholders(index, record);
    const QString hidden = asidePath(m_run.id, index, item);
    for (const QString &place : {hidden, m_now(hidden, index)})
        removeSecondName(place, item.was, item);
    const QString part = partPath(m_run.id, index, item.to);
    for (const QString &place : {part, m_now(part, index)})
        removeSecondName(place, record.copied, item);
}

bool HalfNames::areOne(const QString &one, const QString &other, const std::optional<ItemState> &was) const
{
    const auto first = m_disk.look(one);
    const auto second = m_disk.look(other);
    return first && second && isOneItem(*first, *second) && hasMoreNames(*first, was);
}

/**
 * An empty file remains where the item never arrived: under its new name, its hidden one, that of a copy to be removed,
 * or its old one.
 */
void HalfNames::removePlaceholders(int index, const MoveRecord &record)
{
    const MoveItem &item = record.item;
    const bool stepsAside = item.operation == Operation::Move || item.operation == Operation::RemoveLink;
    if (!item.was || (!stepsAside && item.operation != Operation::Copy))
        return;
    const QString hidden = asidePath(m_run.id, index, item);
    const bool isAtHome = isAt(item.from, item.was);
    const bool takesPlace = item.operation != Operation::RemoveLink;
    if (takesPlace && record.stand == Stand::Waiting && (isAtHome || m_disk.look(hidden)))
        removePlaceholder(item.to, *item.was);
    if (stepsAside && isAtHome)
        removePlaceholder(hidden, *item.was);
    else if (stepsAside && isAt(hidden, item.was))
        removePlaceholder(item.from, *item.was);
    if (record.copied && isAt(item.to, record.copied))
        removePlaceholder(partPath(m_run.id, index, item.to), *item.was);
}

void HalfNames::removePlaceholder(const QString &path, const ItemState &was)
{
    const auto there = m_disk.look(path);
    const bool isEmpty = there && there->kind == ItemKind::File && there->bytes == 0 && there->names == 1;
    const qint64 begunNs = QDateTime::fromString(m_run.date, Qt::ISODate).toMSecsSinceEpoch() * nsPerMs;
    if (isEmpty && there->changedNs >= begunNs && was.bytes != 0 && !isSameItem(*there, was))
        (void)m_disk.remove(path);
}

void HalfNames::removeSecondName(const QString &hidden, const std::optional<ItemState> &was, const MoveItem &item)
{
    const auto state = m_disk.look(hidden);
    if (!state || !hasMoreNames(*state, was))
        return;
    for (const QString &path : {item.from, item.to})
        if (const auto seen = m_disk.look(path); (seen && isOneItem(*seen, *state)) || isInFolderOf(path, *state)) {
            (void)m_disk.remove(hidden);
            return;
        }
}

/** An item with a visible name, whichever: it may have got a number. */
bool HalfNames::isInFolderOf(const QString &path, const ItemState &state) const
{
    const QString folder = parentFolder(path);
    const auto entries = m_disk.list(m_disk.canonicalFolder(folder)).value_or(std::vector<platform::FolderEntry>());
    return std::any_of(entries.begin(), entries.end(), [&](const platform::FolderEntry &entry) {
        const auto seen = entry.name.startsWith(QStringLiteral(".quorlin-"))
                              ? std::nullopt
                              : m_disk.look(joinedPath(folder, entry.name));
        return seen && isOneItem(*seen, state);
    });
}

bool HalfNames::isAt(const QString &path, const std::optional<ItemState> &state) const
{
    const auto found = m_disk.look(path);
    return found && state && isSameItem(*found, *state);
}

} // namespace files
