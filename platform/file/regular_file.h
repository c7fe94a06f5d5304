#pragma once

#include "platform/foundation/result.h"

#include <QFile>

namespace platform {

/** A file that knows its name also when it was opened by a descriptor. */
class NamedFile : public QFile
{
public:
    explicit NamedFile(const QString &path) : QFile(path), m_path(path) {}
    QString fileName() const override { return m_path; }

private:
    QString m_path;
};

/**
 * Opens an ordinary file, or what a link to one leads to, for reading. Never waits for anybody.
 *
 * @param file  closed, with its name; open afterwards where this succeeded. A plain QFile has lost its name then
 * @param more  further flags of the mode, such as Unbuffered
 *
 * A named pipe would wait for somebody who writes, a device may never end or do something when it is opened: what an item
 * is, is asked before it is opened, and of what was opened once more. Everything that reads a file whose name came from
 * outside comes this way.
 *
 * Fails with NotFound: where nothing is there, where it may not be opened, for folders, pipes, sockets and devices, and for
 * a text that can be no path.
 */
Result<void> openToRead(QFile &file, QIODevice::OpenMode more = {});

} // namespace platform
