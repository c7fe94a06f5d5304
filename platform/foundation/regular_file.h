#pragma once

#include "platform/foundation/result.h"

#include <QIODevice>

class QFile;

namespace platform {

/**
 * Opens an ordinary file, or what a link to one leads to, for reading. Never waits for anybody.
 *
 * @param file  closed, with its name; open afterwards where this succeeded
 * @param more  further flags of the mode, such as Unbuffered
 *
 * A named pipe would wait for somebody who writes, a device may never end or do something when it is opened: what an item
 * is, is asked before it is opened, and of what was opened once more. Everything that reads a file whose name came from
 * outside comes this way.
 *
 * Fails with NotFound where nothing is there or it may not be opened, with InvalidValue where the text can be no path, and
 * with Unreadable for folders, pipes, sockets and devices.
 */
Result<void> openToRead(QFile &file, QIODevice::OpenMode more = {});

} // namespace platform
