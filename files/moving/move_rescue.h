#pragma once

#include "files/moving/move_operations.h"

#include <QStringList>

namespace files {

/** For operations that need no journal. */
class SilentOperationLog : public OperationLog
{
    platform::Result<void> noteCopy(int, const platform::ItemState &) override { return {}; }
    platform::Result<void> noteFolder(const QString &) override { return {}; }
};

/** Whether items with temporary names of this run are in the folders that its journal mentions. */
bool hasHidden(const platform::FileSystem &disk, const RunRecord &run);

/**
 * Restores names of items that a damaged journal does not list: those that can still be read from its lines, or else
 * "recovered-" and the item's number. Answers a message about it.
 */
QStringList rescueHidden(platform::FileSystem &disk, const RunRecord &run);

} // namespace files
