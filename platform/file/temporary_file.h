#pragma once

// Inside platform/foundation only.

#include "platform/file/hidden_item.h"
#include "platform/foundation/result.h"

#include <QByteArray>
#include <QString>

#include <optional>

#include <sys/types.h>

namespace platform {

/** What is told of a file that could not be written; @p code is an errno. */
tl::unexpected<Error> writeFailure(const QString &path, int code);

/**
 * A new file that has no name until it takes the place of another one, so that a process that ends in between leaves
 * nothing behind. Where the file system cannot do that it has a hidden name beside its target, and is removed by the
 * destructor; after a kill by sweepHiddenItems(). All functions answer false and leave errno where they fail.
 */
class TemporaryFile
{
public:
    explicit TemporaryFile(const QString &target);
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;
    ~TemporaryFile();

    bool isOpen() const { return m_descriptor >= 0; }
    /** A path under which this process can read what was written so far, also as long as the file has no name. */
    QString openPath() const { return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor); }
    bool write(const QByteArray &bytes);
    /** Writes @p count bytes at @p position, which does not move where write() goes on. */
    bool writeAt(qint64 position, const char *bytes, qint64 count);
    /** Copies @p size bytes from @p position of an open file on, within the kernel where it can. */
    bool copyFrom(int source, qint64 position, qint64 size);
    /** The permissions of the file that is about to be replaced, or those of any new file. */
    bool takePermissions();
    /** Permissions, extended attributes, access lists and, as far as this user may, the owner of an open file. */
    bool takeAttributesOf(int source);
    /** Flushes to the disk, closes, and takes the target's place. A symbolic link there is replaced. */
    bool takePlace();

private:
    bool copyByHand(int source, qint64 position, qint64 size);
    QByteArray anyHiddenName() const;
    void noteName(const QByteArray &name);
    bool nameIt();
    bool openNamed();
    mode_t firstMode() const;

    QByteArray m_target;
    QByteArray m_folder;
    QByteArray m_name; ///< empty as long as the file has none
    std::optional<HiddenItem> m_noted;
    int m_descriptor = -1;
    bool m_isNew = false; ///< no file was there: this one has had the permissions of any new file since it was made
};

} // namespace platform
