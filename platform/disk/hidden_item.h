#pragma once

#include <QString>
#include <QStringList>

namespace platform {

/**
 * Notes that an item has a hidden name for a while, for as long as the object lives. The note is in a file of the program's data
 * folder that this process holds, so that what a kill leaves beside somebody's pictures is found at the next start.
 */
class HiddenItem
{
public:
    enum class What {
        Copy,  ///< a copy that is not finished, or is to go: it can be made again
        Aside, ///< an item that was copied and is to go, if it still is what was copied
    };
    /**
     * @param hidden  the hidden path
     * @param item    what was copied, or the name of what stands aside
     * @param copy    the place of the copy
     */
    HiddenItem(What what, const QString &hidden, const QString &item, const QString &copy);
    HiddenItem(const HiddenItem &) = delete;
    HiddenItem &operator=(const HiddenItem &) = delete;
    ~HiddenItem();

private:
    QString m_hidden;
};

/**
 * Ends what processes left under hidden names that live no more: copies go if what they were made from is there, and items get their
 * names back unless the copy has all of them. Answers the paths of items that got a name again.
 */
QStringList sweepHiddenItems();

} // namespace platform
