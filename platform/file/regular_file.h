#pragma once

#include "platform/foundation/result.h"

#include <QDateTime>
#include <QFile>

#include <optional>

namespace platform {

/** What the file system says about a regular file. */
struct RegularFile
{
    qint64 bytes = 0;
    QDateTime modified;
};

/** Of the regular file at @p path, or of a link's target; none for anything else. */
std::optional<RegularFile> regularFile(const QString &path);

/**
 * A file that knows its name even if it was opened by a descriptor, and that remembers read errors, which QFile forgets
 * with the next call. Code that looks for something optional checks that before it says "there is none".
 */
class NamedFile : public QFile
{
public:
    explicit NamedFile(const QString &path) : QFile(path), m_path(path) {}
    QString fileName() const override { return m_path; }
    /** Why some of it could not be read; empty if all requested bytes were read. */
    const QString &readProblem() const { return m_readProblem; }

protected:
    qint64 readData(char *data, qint64 count) override;

private:
    QString m_path;
    QString m_readProblem;
};

/** The same for any device; empty for those that are neither a NamedFile nor a LentReader. */
QString readProblemOf(const QIODevice &device);

/**
 * Opens a regular file, or the target of a link to one, for reading. Never blocks on anybody.
 *
 * @param file  closed, with its name; open afterwards on success. A plain QFile has lost its name then
 * @param more  further flags of the mode, such as Unbuffered
 *
 * A named pipe would wait for a writer, a device may never end or do something when opened: so the kind of an item is
 * checked before it is opened, and again afterwards. Everything that reads a file whose name came from outside uses
 * this.
 *
 * Fails with NotFound: if nothing is there, if it must not be opened, for folders, pipes, sockets and devices, and for
 * a text that cannot be a path.
 */
Result<void> openToRead(QFile &file, QIODevice::OpenMode more = {});

} // namespace platform
