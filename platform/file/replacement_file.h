#pragma once

#include "platform/descriptors/descriptor.h"
#include "platform/foundation/result.h"

#include <QString>

#include <memory>

#include <sys/stat.h>

namespace platform {

class LentFile;
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

/**
 * A file that an edited copy of it is to replace, which another process makes. As with spliceFile(), nothing of the copy is left unless it
 * takes the file's place.
 */
class EditedFile
{
public:
    /** Fails as openToRead() does, and with WriteFailed where no copy can be made beside it. */
    static Result<std::unique_ptr<EditedFile>> of(const QString &path);
    EditedFile(const EditedFile &) = delete;
    EditedFile &operator=(const EditedFile &) = delete;
    ~EditedFile();

    /** To be handed over: the file as it is, the copy to be written, and the same to be read. Each is closed where that fails. */
    Descriptor lendFile() const;
    Descriptor lendCopy() const;
    Descriptor lendCopyToRead() const;

    /**
     * The copy takes the place, permissions, access lists, extended attributes and, as far as this user may, the owner of the file. A link is
     * replaced by the copy. Fails with WriteFailed, also where the file is write-protected, or somebody wrote to it since.
     */
    Result<void> takePlace();

private:
    EditedFile(const QString &path, LentFile file);

    QString m_path;
    std::unique_ptr<LentFile> m_file;
    std::unique_ptr<TemporaryFile> m_copy;
    struct stat m_before = {};
};

} // namespace platform
