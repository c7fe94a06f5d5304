#include "platform/file/replacement_file.h"

#include "platform/file/temporary_file.h"

#include <cerrno>

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

} // namespace platform
