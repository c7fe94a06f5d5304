#include "platform/foundation/processors.h"

#include <QFile>

#include <algorithm>
#include <cmath>
#include <limits>

#include <sched.h>

namespace platform {
namespace {

constexpr double unlimited = std::numeric_limits<double>::infinity();

int processorsToRunOn()
{
    cpu_set_t few;
    if (::sched_getaffinity(0, sizeof few, &few) == 0)
        return CPU_COUNT(&few);
    constexpr int many = 1 << 14; // as many as any system supports
    cpu_set_t *set = CPU_ALLOC(many);
    const size_t size = CPU_ALLOC_SIZE(many);
    const int count = set && ::sched_getaffinity(0, size, set) == 0 ? CPU_COUNT_S(size, set) : 1;
    CPU_FREE(set);
    return count;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().simplified() : QByteArray();
}

/** A group's share of processor time, in processors. */
double share(double quota, double period)
{
    return quota > 0 && period > 0 ? quota / period : unlimited;
}

double unifiedShare(const QString &folder)
{
    const QList<QByteArray> words = contentOf(folder + QStringLiteral("cpu.max")).split(' ');
    return words.size() == 2 ? share(words[0].toDouble(), words[1].toDouble()) : unlimited; // "max" is no number
}

double dividedShare(const QString &folder)
{
    return share(contentOf(folder + QStringLiteral("cpu.cfs_quota_us")).toDouble(),
                 contentOf(folder + QStringLiteral("cpu.cfs_period_us")).toDouble());
}

/** A group counts with all its parents. */
double shareOfGroups(const QString &top, QString group, double (*shareOf)(const QString &folder))
{
    double least = shareOf(top + u'/');
    for (; group.size() > 1; group.truncate(std::max<qsizetype>(0, group.lastIndexOf(u'/'))))
        least = std::min(least, shareOf(top + group + u'/'));
    return least;
}

double shareOfAllGroups(const QString &root)
{
    double least = unlimited;
    QFile groups(root + QStringLiteral("proc/self/cgroup"));
    if (!groups.open(QIODevice::ReadOnly))
        return least;
    for (const QByteArray &line : groups.readAll().split('\n')) {
        const qsizetype first = line.indexOf(':');
        const qsizetype second = line.indexOf(':', first + 1);
        if (first < 0 || second < 0)
            continue;
        const QByteArray controllers = line.mid(first + 1, second - first - 1);
        const QString group = QFile::decodeName(line.mid(second + 1));
        const QString top = root + QStringLiteral("sys/fs/cgroup");
        if (controllers.isEmpty())
            least = std::min(least, shareOfGroups(top, group, unifiedShare));
        else if (controllers.split(',').contains("cpu"))
            for (const QString &mounted : {QString::fromLatin1(controllers), QStringLiteral("cpu")})
                least = std::min(least, shareOfGroups(top + u'/' + mounted, group, dividedShare));
    }
    return least;
}

} // namespace

int usableProcessors(const QString &root)
{
    const double processors = std::min<double>(processorsToRunOn(), std::ceil(shareOfAllGroups(root)));
    return std::max(1, int(processors));
}

} // namespace platform
