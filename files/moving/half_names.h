#pragma once

#include "files/moving/move_paths.h"

namespace files {

/**
 * What a kill leaves of names being assigned on a disk that cannot rename without replacing. On such a disk an empty
 * file reserves the new name, or the item gets a second hard link and then loses the first.
 */
class HalfNames
{
public:
    /** All of them must outlive this. */
    HalfNames(platform::FileSystem &disk, const RunRecord &run, PathsSince &now) : m_disk(disk), m_run(run), m_now(now)
    {
    }

    /**
     * Removes the remains of one item's names: empty files created since the run began, and a hidden name if the item
     * also has a visible one. Afterwards the item is where it would be if the run had been interrupted a moment earlier
     * or later.
     */
    void remove(int index, const MoveRecord &record);

    /** Whether two names are hard links of one item that had one link less when it was @p was. */
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
