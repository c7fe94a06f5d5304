#pragma once

#include <QString>

namespace platform {

/**
 * Records that an item has a hidden name for a while, as long as the object lives. The note is in a file of the
 * program's data folder that this process holds, so that the next start finds what a kill left beside somebody's
 * pictures.
 */
class HiddenItem
{
public:
    enum class What {
        Copy,        ///< a copy that is unfinished, or to be removed: it can be made again
        Aside,       ///< an item that was copied and is to be removed, if it still equals the copy
        Part,        ///< an unfinished file in the sense of sign_of_life.h, of no value
        Placeholder, ///< an empty file of this process that reserves a name, not hidden, until the item gets it
        SecondName,  ///< a name, not hidden, that the item gets before it loses its own
    };
    /**
     * @param hidden  the hidden path
     * @param item    what was copied, the name of what was moved aside, the file that an unfinished one is to replace,
     *                or what is to get the reserved or second name
     * @param copy    the path of the copy
     */
    HiddenItem(What what, const QString &hidden, const QString &item, const QString &copy = {});
    HiddenItem(const HiddenItem &) = delete;
    HiddenItem &operator=(const HiddenItem &) = delete;
    ~HiddenItem();

private:
    What m_what;
    QString m_hidden;
};

/**
 * The folder of the notes, the file of this process in it (empty if it has none), and the suffix of such files' names.
 */
QString hiddenItemsFolder();
QString ownHiddenItems();
inline constexpr char hiddenItemsEnding[] = ".hidden";

/** How a note spells it. */
QString wordOf(HiddenItem::What what);

} // namespace platform
