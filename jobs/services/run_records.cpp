#include "jobs/services/run_records.h"

#include "platform/foundation/paths.h"

#include <QDateTime>
#include <QDir>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace jobs {
namespace {

using platform::Descriptor;

bool isHeld(const Descriptor &file)
{
    return file.isOpen() && ::flock(file.number(), LOCK_EX | LOCK_NB) == 0;
}

bool writeAll(int file, const QByteArray &bytes)
{
    for (qsizetype written = 0; written < bytes.size();) {
        const ssize_t count = ::write(file, bytes.constData() + written, size_t(bytes.size() - written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return false;
        written += count;
    }
    return true;
}

} // namespace

RunRecords::~RunRecords()
{
    for (const QString &path : std::as_const(m_passing))
        end(path);
}

void RunRecords::endWithProgram(const QString &path)
{
    if (m_held.count(path) != 0)
        m_passing.append(path);
}

QString RunRecords::begin(const QString &folder)
{
    const QString name = QStringLiteral("%1-%2.jsonl").arg(QDateTime::currentMSecsSinceEpoch()).arg(::getpid());
    const QString path = QDir(folder).filePath(name);
    constexpr mode_t onlyMine = 0600;
    if (!QDir().mkpath(folder))
        return {};
    Descriptor file(
        ::open(platform::encodedPath(path).constData(), O_WRONLY | O_APPEND | O_CREAT | O_EXCL | O_CLOEXEC, onlyMine));
    if (!isHeld(file))
        return {};
    m_held.insert_or_assign(path, std::move(file));
    return path;
}

bool RunRecords::add(const QString &path, const QString &lines, bool isKept)
{
    const auto found = m_held.find(path);
    if (found == m_held.end())
        return false;
    const int file = found->second.number();
    return writeAll(file, lines.toUtf8()) && (!isKept || ::fdatasync(file) == 0);
}

void RunRecords::end(const QString &path)
{
    if (m_held.count(path) == 0)
        return;
    ::unlink(platform::encodedPath(path).constData());
    m_held.erase(path);
}

QStringList RunRecords::interrupted(const QString &folder)
{
    QStringList paths;
    const QDir records(folder);
    for (const QString &name : records.entryList({QStringLiteral("*.jsonl")}, QDir::Files, QDir::Name)) {
        const QString path = records.filePath(name);
        Descriptor file(::open(platform::encodedPath(path).constData(), O_WRONLY | O_APPEND | O_CLOEXEC | O_NOFOLLOW));
        if (m_held.count(path) != 0 || !isHeld(file))
            continue;
        m_held.insert_or_assign(path, std::move(file));
        paths.append(path);
    }
    return paths;
}

} // namespace jobs
