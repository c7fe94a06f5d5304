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
    constexpr mode_t onlyMine = 0600;
    constexpr int tries = 10;
    constexpr int flags = O_WRONLY | O_APPEND | O_CREAT | O_EXCL | O_CLOEXEC;
    if (!platform::canBeAPath(folder) || !QDir().mkpath(folder))
        return {};
    for (int i = 0; i < tries; ++i) {
        const QString name =
            QStringLiteral("%1-%2-%3.jsonl").arg(QDateTime::currentMSecsSinceEpoch()).arg(::getpid()).arg(i);
        const QString path = QDir(folder).filePath(name);
        Descriptor file(::open(platform::encodedPath(path).constData(), flags, onlyMine));
        // A window that starts looks for records of ended ones, and may hold a new one before this one does.
        if (!isHeld(file))
            continue;
        m_held.insert_or_assign(path, std::move(file));
        return path;
    }
    return {};
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
