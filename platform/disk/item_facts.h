#pragma once

#include "platform/foundation/result.h"

#include <QDateTime>

namespace platform {

/** What the file system says about one item. */
struct ItemFacts
{
    qint64 sizeInBytes = 0; ///< for a folder that of its entry, not of its contents
    QDateTime created;      ///< the modification date if the file system stores no other
    QDateTime modified;
};

/** The facts of the item at @p path itself: a link is not followed. Fails with NotFound. */
Result<ItemFacts> itemFacts(const QString &path);

} // namespace platform
