#pragma once

// Inside platform/foundation only.

#include "platform/file/hidden_item.h"
#include "platform/foundation/result.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

#include <sys/stat.h>
#include <sys/types.h>

namespace platform {

/** The message about a file that could not be written; @p code is an errno. */
tl::unexpected<Error> writeFailure(const QString &path, int code);

/**
 * Whether an open file is still the one at its path, and nobody has written to it; @p before is its state when it was
 * opened. A link at the path is followed. Sets errno to EBUSY if not.
 */
bool isUnchanged(const QString &path, int file, const struct stat &before);

/**
 * A new file without a name until it replaces another one, so that a process that ends in between leaves nothing
 * behind. If the file system does not support that, it has a hidden name beside its target, and is removed by the
 * destructor, or after a kill by sweepHiddenItems(). All functions answer false and set errno if they fail.
 */
class TemporaryFile
{
public:
    explicit TemporaryFile(const QString &target);
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;
    ~TemporaryFile();

    bool isOpen() const { return m_descriptor >= 0; }
    /** A path under which this process can read what was written so far, even while the file has no name. */
    QString openPath() const { return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor); }
    bool write(const QByteArray &bytes);
    /** Writes @p count bytes at @p position without moving the position of write(). */
    bool writeAt(qint64 position, const char *bytes, qint64 count);
    /** Copies @p size bytes of an open file, starting at @p position, within the kernel if possible. */
    bool copyFrom(int source, qint64 position, qint64 size);
    /** The permissions of the file that is about to be replaced, or the default ones. */
    bool takePermissions();
    /** Permissions, extended attributes, access lists and, as far as this user may, the owner of an open file. */
    bool takeAttributesOf(int source);
    /**
     * Syncs to the disk, closes, and replaces the target. A symbolic link there is replaced.
     *
     * @param mayTake  is asked immediately before that, and sets errno if it answers false
     */
    bool takePlace(const std::function<bool()> &mayTake = [] { return true; });

private:
    bool copyByHand(int source, qint64 position, qint64 size);
    QByteArray anyHiddenName() const;
    void noteName(const QByteArray &name);
    bool nameIt();
    bool openNamed();
    mode_t firstMode() const;

    QByteArray m_target;
    QByteArray m_folder;
    QByteArray m_name; ///< empty while the file has none
    std::optional<HiddenItem> m_noted;
    int m_descriptor = -1;
    bool m_isNew = false; ///< there was no file: this one has had default permissions from the start
};

} // namespace platform
