#pragma once

#include "files/moving/move_paths.h"

namespace files {

/**
 * What a kill leaves of names that were being given on a disk without a rename that replaces nothing. Such a disk either keeps the new
 * name with an empty file, or gives the item a second name and then takes the first one away.
 */
class HalfNames
{
public:
    /** All of them must live as long as this. */
    HalfNames(platform::FileSystem &disk, const RunRecord &run, PathsSince &now) : m_disk(disk), m_run(run), m_now(now)
    {
    }

    /**
     * Removes what is left of one item's names: empty files made since the run began, and a hidden name where the item has a seen one
     * besides. Then the item is where it would be, had the run been cut short a moment before or after.
     */
    void remove(int index, const MoveRecord &record);

    /** Whether two names lead to one item that had one name less when it was as @p was. */
    bool areOne(const QString &one, const QString &other, const std::optional<platform::ItemState> &was) const;

private:
    void removePlaceholders(int index, const MoveRecord &record);
    void removePlaceholder(const QString &path, const platform::ItemState &was);
    void removeSecondName(const QString &hidden, const std::optional<platform::ItemState> &was, const MoveItem &item);
    bool isInFolderOf(const QString &path, const platform::ItemState &state) const;
    bool isAt(const QString &path, const std::optional<platform::ItemState> &state) const;

    platform::FileSystem &m_disk;
    const RunRecord &m_run;
    PathsSince &m_now;
};

} // namespace files
