#include "platform/disk/item_identity.h"

#include "platform/disk/file_system.h"
#include "platform/foundation/paths.h"

#include <QDir>
#include <QHashFunctions>

#include <algorithm>

#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace platform {

QString identityOf(const struct stat &item)
{
    return QStringLiteral("%1:%2").arg(item.st_dev).arg(item.st_ino);
}

QString identityOf(const ItemState &item)
{
    return QStringLiteral("%1:%2").arg(makedev(uint(item.device >> 32), uint(item.device))).arg(item.inode);
}

bool isIdentity(QStringView text)
{
    const auto isNumber = [](QStringView part) {
        return !part.isEmpty() && std::all_of(part.begin(), part.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    };
    const qsizetype colon = text.indexOf(u':');
    return colon > 0 && isNumber(text.left(colon)) && isNumber(text.mid(colon + 1));
}

QString itemIdentity(const QString &path)
{
    struct stat item = {};
    const bool isThere = canBeAPath(path) && ::lstat(encodedPath(withoutTrailingSlashes(path)).constData(), &item) == 0;
    return isThere ? identityOf(item) : QString();
}

QString targetIdentity(const QString &path)
{
    struct stat item = {};
    return canBeAPath(path) && ::stat(encodedPath(path).constData(), &item) == 0 ? identityOf(item) : QString();
}

size_t qHash(const ItemNumber &item, size_t seed)
{
    return qHashMulti(seed, item.device, item.inode);
}

std::optional<TargetFacts> targetFacts(const QString &path)
{
    struct stat item = {};
    if (!canBeAPath(path) || ::stat(encodedPath(path).constData(), &item) != 0)
        return std::nullopt;
    constexpr qint64 nsPerSecond = 1'000'000'000;
    const auto ns = [](const timespec &time) { return qint64(time.tv_sec) * nsPerSecond + time.tv_nsec; };
    return TargetFacts{{item.st_dev, item.st_ino}, S_ISREG(item.st_mode), S_ISDIR(item.st_mode), item.st_nlink > 1,
                       qint64(item.st_size),       ns(item.st_mtim),      ns(item.st_ctim)};
}

QString folderIdentity(const QString &path)
{
    // Before "a/.." can be shortened, "a" must be known not to be a link: existing items are resolved with the
    // unchanged path.
    QString there = withoutTrailingSlashes(path);
    QString rest;
    while (!there.isEmpty()) {
        const QString known = targetIdentity(there);
        if (!known.isEmpty())
            return rest.isEmpty() ? known : known + QDir::cleanPath(rest);
        rest = u'/' + lastPathComponent(there) + rest;
        const QString above = parentFolder(there);
        there = above == there ? QString() : above;
    }
    return QDir::cleanPath(path);
}

} // namespace platform
