#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>

namespace platform {

enum class Lasting { WhenTheSystemLikes, AtOnce };

/**
 * A file that lines are added to, held by one process at a time: from open() until the object or the process ends, by
 * whatever means, nobody else can open it here.
 */
class HeldFile
{
public:
    HeldFile() = default;
    HeldFile(HeldFile &&other) noexcept;
    HeldFile &operator=(HeldFile &&other) noexcept;
    ~HeldFile();

    /** Makes a file that is not there yet. Fails with WriteFailed. */
    static Result<HeldFile> make(const QString &path);
    /** Opens a file. Fails with NotFound, and with Unsupported where another process, or this one, holds it, or it is no plain file. */
    static Result<HeldFile> open(const QString &path);

    /**
     * Adds @p bytes at the end; with AtOnce it is on the disk when this returns. Fails with WriteFailed,
     * and has then added nothing as far as the disk allows.
     */
    Result<void> append(const QByteArray &bytes, Lasting lasting);
    Result<QByteArray> readAll() const;
    /** False where the file system has no locks: others may have the file open then. */
    bool isLocked() const { return m_isLocked; }

private:
    HeldFile(const QString &path, int descriptor) : m_path(path), m_descriptor(descriptor) {}
    bool lock();

    QString m_path;
    int m_descriptor = -1;
    bool m_isLocked = false;
};

} // namespace platform
