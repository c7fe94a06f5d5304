#pragma once

#include "platform/foundation/result.h"

#include <QDateTime>
#include <QFile>

#include <optional>

namespace platform {

/** What a disk knows of an ordinary file. */
struct RegularFile
{
    qint64 bytes = 0;
    QDateTime modified;
};

/** Of the ordinary file at @p path, or the one that a link leads to; none for anything else. */
std::optional<RegularFile> regularFile(const QString &path);

/**
 * A file that knows its name also when it was opened by a descriptor, and remembers that some of it could not be read, which
 * QFile forgets with the next call. Whoever looks for something that may not be there asks for that before he says "there is none".
 */
class NamedFile : public QFile
{
public:
    explicit NamedFile(const QString &path) : QFile(path), m_path(path) {}
    QString fileName() const override { return m_path; }
    /** Why some of it could not be read; empty where all that was asked for was read. */
    const QString &readProblem() const { return m_readProblem; }

protected:
    qint64 readData(char *data, qint64 count) override;

private:
    QString m_path;
    QString m_readProblem;
};

/** The same of any device; empty for those that are neither a NamedFile nor a LentReader. */
QString readProblemOf(const QIODevice &device);

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
