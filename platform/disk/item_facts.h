#pragma once

#include "platform/foundation/result.h"

#include <QDateTime>

namespace platform {

/** What the file system says about one item. */
struct ItemFacts
{
    qint64 sizeInBytes = 0; ///< of a folder its entry's, not that of what is in it
    QDateTime created;      ///< the modification date where the file system keeps no other
    QDateTime modified;
};

/** The facts of the item at @p path itself: a link is not followed. Fails with NotFound. */
Result<ItemFacts> itemFacts(const QString &path);

} // namespace platform
