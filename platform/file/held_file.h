#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>

namespace platform {

enum class Lasting { WhenTheSystemLikes, AtOnce };

/**
 * A file to which lines are appended, held by one process at a time: from open() until the object or the process ends,
 * for whatever reason, nobody else can open it here.
 */
class HeldFile
{
public:
    HeldFile() = default;
    HeldFile(HeldFile &&other) noexcept;
    HeldFile &operator=(HeldFile &&other) noexcept;
    ~HeldFile();

    /** Creates a new file. Fails with WriteFailed. */
    static Result<HeldFile> make(const QString &path);
    /**
     * Opens a file. Fails with NotFound, and with Unsupported if another process, or this one, holds it, or it is no
     * regular file.
     */
    static Result<HeldFile> open(const QString &path);

    /**
     * Appends @p bytes; with AtOnce they are synced when this returns. Fails with WriteFailed, and has then appended
     * nothing as far as the disk allows.
     */
    Result<void> append(const QByteArray &bytes, Lasting lasting);
    Result<QByteArray> readAll() const;
    /** False if the file system has no locks: others may have the file open then. */
    bool isLocked() const { return m_isLocked; }

private:
    HeldFile(const QString &path, int descriptor) : m_path(path), m_descriptor(descriptor) {}
    bool lock();

    QString m_path;
    int m_descriptor = -1;
    bool m_isLocked = false;
};

} // namespace platform
