#pragma once

#include "platform/foundation/result.h"

#include <QString>

#include <memory>

namespace platform {

class TemporaryFile;

/**
 * A file that is written piece by piece and takes the place of another one at the end, atomically, as replaceFile() has it.
 * Without takePlace() nothing of it is left.
 */
class ReplacementFile
{
public:
    /** @param path  absolute; its folder must exist */
    explicit ReplacementFile(const QString &path);
    ReplacementFile(const ReplacementFile &) = delete;
    ReplacementFile &operator=(const ReplacementFile &) = delete;
    ~ReplacementFile();

    /** Writes at @p at, in bytes from the start; zeros fill what is left out. False from the first failure on. */
    bool write(qint64 at, const char *bytes, qint64 count);
    bool write(qint64 at, const QByteArray &bytes) { return write(at, bytes.constData(), bytes.size()); }

    /** Flushes to the disk and renames. Fails with WriteFailed, also where a piece could not be written. */
    Result<void> takePlace();

private:
    QString m_path;
    std::unique_ptr<TemporaryFile> m_file;
    int m_problem = 0;
};

} // namespace platform
