#pragma once

#include "files/moving/move_operations.h"

#include <QStringList>

namespace files {

/** For operations that no journal has to tell of. */
class SilentOperationLog : public OperationLog
{
    platform::Result<void> noteCopy(int, const platform::ItemState &) override { return {}; }
    platform::Result<void> noteFolder(const QString &) override { return {}; }
};

/** Whether items that have their temporary names from this run lie in the folders that its journal mentions. */
bool hasHidden(const platform::FileSystem &disk, const RunRecord &run);

/**
 * Gives items names again that a damaged journal does not tell of: those that its lines still let read, or else "recovered-" and the
 * item's number. Answers what is to be said of it.
 */
QStringList rescueHidden(platform::FileSystem &disk, const RunRecord &run);

} // namespace files
