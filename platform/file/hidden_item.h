#pragma once

#include <QString>

namespace platform {

/**
 * Notes that an item has a hidden name for a while, for as long as the object lives. The note is in a file of the program's data
 * folder that this process holds, so that what a kill leaves beside somebody's pictures is found at the next start.
 */
class HiddenItem
{
public:
    enum class What {
        Copy,        ///< a copy that is not finished, or is to go: it can be made again
        Aside,       ///< an item that was copied and is to go, if it still is what was copied
        Part,        ///< an unfinished file as sign_of_life.h has it, which nobody misses
        Placeholder, ///< an empty file of this process that keeps a name, not hidden, until the item takes it
        SecondName,  ///< a name that the item gets, not hidden, before it loses its own
    };
    /**
     * @param hidden  the hidden path
     * @param item    what was copied, the name of what stands aside, the file whose place an unfinished one is to take, or what is
     *                to have the name that is kept or second
     * @param copy    the place of the copy
     */
    HiddenItem(What what, const QString &hidden, const QString &item, const QString &copy = {});
    HiddenItem(const HiddenItem &) = delete;
    HiddenItem &operator=(const HiddenItem &) = delete;
    ~HiddenItem();

private:
    What m_what;
    QString m_hidden;
};

/** The folder of the notes, the file of this process in it (empty where it has none), and the ending of such files' names. */
QString hiddenItemsFolder();
QString ownHiddenItems();
inline constexpr char hiddenItemsEnding[] = ".hidden";

/** What a note calls it. */
QString wordOf(HiddenItem::What what);

} // namespace platform
