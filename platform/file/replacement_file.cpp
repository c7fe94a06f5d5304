#include "platform/file/replacement_file.h"

#include "platform/file/lent_file.h"
#include "platform/file/temporary_file.h"
#include "platform/foundation/paths.h"

#include <QCoreApplication>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace platform {

ReplacementFile::ReplacementFile(const QString &path) : m_path(path), m_file(std::make_unique<TemporaryFile>(path))
{
    if (!m_file->isOpen())
        m_problem = errno;
}

ReplacementFile::~ReplacementFile() = default;

bool ReplacementFile::write(qint64 at, const char *bytes, qint64 count)
{
    if (m_problem == 0 && !m_file->writeAt(at, bytes, count))
        m_problem = errno;
    return m_problem == 0;
}

Result<void> ReplacementFile::takePlace()
{
    if (m_problem == 0 && (!m_file->takePermissions() || !m_file->takePlace()))
        m_problem = errno;
    return m_problem == 0 ? Result<void>() : writeFailure(m_path, m_problem);
}

namespace {

/** Write protection is intentional. Preserves errno. */
bool isProtected(const QString &path)
{
    const int before = errno;
    const bool mayWrite = ::faccessat(AT_FDCWD, encodedPath(path).constData(), W_OK, AT_EACCESS) == 0;
    errno = before;
    return !mayWrite;
}

tl::unexpected<Error> protectedFile(const QString &path)
{
    return failure(ErrorCode::WriteFailed,
                   QCoreApplication::translate("platform", "Cannot write %1: %2")
                       .arg(path, QCoreApplication::translate("platform", "the file is write-protected")));
}

} // namespace

EditedFile::EditedFile(const QString &path, LentFile file)
    : m_path(path), m_file(std::make_unique<LentFile>(std::move(file))), m_copy(std::make_unique<TemporaryFile>(path))
{
}

EditedFile::~EditedFile() = default;

Result<std::unique_ptr<EditedFile>> EditedFile::of(const QString &path)
{
    Result<LentFile> file = LentFile::open(path);
    if (!file)
        return tl::unexpected<Error>(file.error());
    std::unique_ptr<EditedFile> edited(new EditedFile(path, std::move(*file)));
    if (!edited->m_copy->isOpen() && isProtected(path))
        return protectedFile(path);
    if (!edited->m_copy->isOpen() || ::fstat(edited->m_file->descriptor(), &edited->m_before) != 0)
        return writeFailure(path, errno);
    return edited;
}

Descriptor EditedFile::lendFile() const
{
    return Descriptor(::fcntl(m_file->descriptor(), F_DUPFD_CLOEXEC, 0));
}

Descriptor EditedFile::lendCopy() const
{
    return Descriptor(::open(encodedPath(m_copy->openPath()).constData(), O_WRONLY | O_CLOEXEC));
}

Descriptor EditedFile::lendCopyToRead() const
{
    return Descriptor(::open(encodedPath(m_copy->openPath()).constData(), O_RDONLY | O_CLOEXEC));
}

Result<void> EditedFile::takePlace()
{
    if (isProtected(m_path))
        return protectedFile(m_path);
    if (!m_copy->takeAttributesOf(m_file->descriptor()))
        return writeFailure(m_path, errno);
    return m_copy->takePlace([this] { return isUnchanged(m_path, m_file->descriptor(), m_before); })
               ? Result<void>()
               : writeFailure(m_path, errno);
}

} // namespace platform
