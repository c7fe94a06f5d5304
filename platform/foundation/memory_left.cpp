#include "platform/foundation/memory_left.h"

#include "platform/foundation/human_texts.h"
#include "platform/foundation/log.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <limits>
#include <malloc.h>
#include <optional>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>

namespace platform {
namespace {

constexpr qint64 unlimited = std::numeric_limits<qint64>::max();
constexpr qint64 bytesPerKilobyte = 1024;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** The number after the first word @p name of a line; none if there is no such line. */
std::optional<qint64> numberOf(const QByteArray &lines, const char *name)
{
    for (const QByteArray &line : lines.split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words.size() > 1 && words[0] == name)
            return words[1].toLongLong();
    }
    return std::nullopt;
}

qint64 leftOnMachine(const QString &root)
{
    const auto available = numberOf(contentOf(root + QStringLiteral("proc/meminfo")), "MemAvailable:");
    return available ? *available * bytesPerKilobyte : unlimited;
}

/** What the files of one control group say is left; the two versions of cgroups name them differently. */
struct GroupFiles
{
    QString folder; ///< below "sys/fs/cgroup"
    QString limit;
    QString used;
    const char *cache; ///< in "memory.stat": reclaimable
};

const GroupFiles &unified()
{
    static const GroupFiles files = {QString(), QStringLiteral("memory.max"), QStringLiteral("memory.current"),
                                     "inactive_file"};
    return files;
}

const GroupFiles &divided()
{
    static const GroupFiles files = {QStringLiteral("/memory"), QStringLiteral("memory.limit_in_bytes"),
                                     QStringLiteral("memory.usage_in_bytes"), "total_inactive_file"};
    return files;
}

qint64 leftInGroup(const QString &folder, const GroupFiles &files)
{
    bool isLimited = false;
    bool isUsed = false;
    const qint64 limit = contentOf(folder + files.limit).trimmed().toLongLong(&isLimited);
    const qint64 used = contentOf(folder + files.used).trimmed().toLongLong(&isUsed);
    if (!isLimited || !isUsed)
        return unlimited;
    const qint64 cache = numberOf(contentOf(folder + QStringLiteral("memory.stat")), files.cache).value_or(0);
    return std::max<qint64>(0, limit - used + std::min(cache, used));
}

/** A group counts with all its parents; a container sees its own as the topmost, whatever its name outside. */
qint64 leftInGroups(const QString &root, QString group, const GroupFiles &files)
{
    const QString top = root + QStringLiteral("sys/fs/cgroup") + files.folder;
    qint64 left = leftInGroup(top + u'/', files);
    for (; group.size() > 1; group.truncate(std::max<qsizetype>(0, group.lastIndexOf(u'/'))))
        left = std::min(left, leftInGroup(top + group + u'/', files));
    return left;
}

qint64 leftInAllGroups(const QString &root)
{
    qint64 left = unlimited;
    for (const QByteArray &line : contentOf(root + QStringLiteral("proc/self/cgroup")).split('\n')) {
        const qsizetype first = line.indexOf(':');
        const qsizetype second = line.indexOf(':', first + 1);
        if (first < 0 || second < 0)
            continue;
        const QByteArray controllers = line.mid(first + 1, second - first - 1);
        const QString group = QFile::decodeName(line.mid(second + 1));
        if (controllers.isEmpty())
            left = std::min(left, leftInGroups(root, group, unified()));
        else if (controllers.split(',').contains("memory"))
            left = std::min(left, leftInGroups(root, group, divided()));
    }
    return left;
}

qint64 leftOfAddresses(const QString &root)
{
    rlimit limit = {};
    if (::getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return unlimited;
    const qint64 pages = contentOf(root + QStringLiteral("proc/self/statm")).split(' ').value(0).toLongLong();
    return std::max<qint64>(0, qint64(limit.rlim_cur) - pages * ::sysconf(_SC_PAGESIZE));
}

/** Views ask at every repaint, so the answer is refreshed once a second. */
void tell(const QString &name, const QString &sentence)
{
    constexpr qint64 milliseconds = 1000;
    thread_local QString lastName;
    thread_local QElapsedTimer since;
    if (name == lastName && since.isValid() && !since.hasExpired(milliseconds))
        return;
    lastName = name;
    since.start();
    logLine(sentence);
}

QString &lastRefusal()
{
    thread_local QString words;
    return words;
}

} // namespace

qint64 memoryLeft(const QString &root, qint64 addresses)
{
    const qint64 ofAddresses = std::max<qint64>(0, leftOfAddresses(root) - addresses);
    return std::min({leftOnMachine(root), leftInAllGroups(root), ofAddresses});
}

QString memorySentence(const QString &name, qint64 need, qint64 left)
{
    return QCoreApplication::translate("platform", "%1 needs about %2 of memory, %3 is free")
        .arg(name, localByteCountText(need), localByteCountText(left));
}

QString takeMemoryRefusal()
{
    return std::exchange(lastRefusal(), QString());
}

Result<void> memoryIsLeftFor(qint64 need, const QString &name, qint64 addresses)
{
    constexpr qint64 besides = 64LL << 20; // kept from earlier pictures for the next ones
    const QString root = QStringLiteral("/");
    const qint64 all = need + besides;
    qint64 left = memoryLeft(root, addresses);
    if (all <= left)
        return {};
#ifdef __GLIBC__
    ::malloc_trim(0); // kept from earlier pictures for the next ones
    left = memoryLeft(root, addresses);
    if (all <= left)
        return {};
#endif
    const QString sentence = memorySentence(name, all, left);
    lastRefusal() = QCoreApplication::translate("platform", "needs about %1 of memory, %2 is free")
                        .arg(localByteCountText(all), localByteCountText(left));
    tell(name, sentence);
    return failure(ErrorCode::TooLarge, sentence);
}

#ifdef __GLIBC__
namespace {

/**
 * Keeps the memory of one picture for the next. Otherwise the system would reclaim every large buffer and hand it out
 * again page by page, which takes as much time as writing the file.
 */
void keepMemoryForNextPicture()
{
    constexpr int noBufferIsLargeEnough = 1 << 30;
    constexpr int mostKept = 256 << 20;
    mallopt(M_MMAP_THRESHOLD, noBufferIsLargeEnough);
    mallopt(M_TRIM_THRESHOLD, mostKept);
}

/**
 * A separate heap for each thread reserves 64 MB of address space and more. If that is limited, the remainder for
 * pixels would depend on the number of threads, and libraries that end the process when allocation fails would do so.
 */
void shareOneHeapWhereAddressesAreShort()
{
    rlimit limit = {};
    if (::getrlimit(RLIMIT_AS, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY)
        mallopt(M_ARENA_MAX, 1);
}

} // namespace
#endif

void prepareHeapForPictures()
{
#ifdef __GLIBC__
    static const bool isReady = [] {
        shareOneHeapWhereAddressesAreShort();
        keepMemoryForNextPicture();
        return true;
    }();
    static_cast<void>(isReady);
#endif
}

} // namespace platform
