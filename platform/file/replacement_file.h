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
 * A file that is written piece by piece and finally replaces another one, atomically, like replaceFile(). Without
 * takePlace() it is removed.
 */
class ReplacementFile
{
public:
    /** @param path  absolute; its folder must exist */
    explicit ReplacementFile(const QString &path);
    ReplacementFile(const ReplacementFile &) = delete;
    ReplacementFile &operator=(const ReplacementFile &) = delete;
    ~ReplacementFile();

    /** Writes at @p at, in bytes from the start; gaps are filled with zeros. False from the first failure on. */
    bool write(qint64 at, const char *bytes, qint64 count);
    bool write(qint64 at, const QByteArray &bytes) { return write(at, bytes.constData(), bytes.size()); }

    /** Syncs to the disk and renames. Fails with WriteFailed, also if a piece could not be written. */
    Result<void> takePlace();

private:
    QString m_path;
    std::unique_ptr<TemporaryFile> m_file;
    int m_problem = 0;
};

/**
 * A file that is to be replaced by an edited copy, which another process makes. As with spliceFile(), the copy is
 * removed unless it replaces the file.
 */
class EditedFile
{
public:
    /** Fails like openToRead(), and with WriteFailed if no copy can be created beside it. */
    static Result<std::unique_ptr<EditedFile>> of(const QString &path);
    EditedFile(const EditedFile &) = delete;
    EditedFile &operator=(const EditedFile &) = delete;
    ~EditedFile();

    /** To be passed on: the file itself, the copy to be written, and the copy to be read. Each is closed on failure. */
    Descriptor lendFile() const;
    Descriptor lendCopy() const;
    Descriptor lendCopyToRead() const;

    /**
     * The copy gets the name, permissions, access lists, extended attributes and, as far as this user may, the owner of
     * the file. A link is replaced by the copy. Fails with WriteFailed, also if the file is write-protected, or
     * somebody has written to it since.
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
