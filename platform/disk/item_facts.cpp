#include "platform/disk/item_facts.h"

#include "platform/disk/folders.h"
#include "platform/foundation/paths.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace platform {
namespace {

QDateTime dateOf(const struct statx_timestamp &stamp)
{
    constexpr qint64 msPerSecond = 1000;
    constexpr qint64 nsPerMs = 1000000;
    return QDateTime::fromMSecsSinceEpoch(stamp.tv_sec * msPerSecond + qint64(stamp.tv_nsec) / nsPerMs);
}

} // namespace

Result<ItemFacts> itemFacts(const QString &path)
{
    struct statx found = {};
    const QByteArray name = encodedPath(withoutTrailingSlashes(path));
    if (!isTaken(path) ||
        ::statx(AT_FDCWD, name.constData(), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS | STATX_BTIME, &found) != 0)
        return failure(ErrorCode::NotFound, QStringLiteral("Cannot find %1").arg(path));
    const bool isBirthKnown = (found.stx_mask & STATX_BTIME) != 0;
    return ItemFacts{qint64(found.stx_size), dateOf(isBirthKnown ? found.stx_btime : found.stx_mtime),
                     dateOf(found.stx_mtime)};
}

} // namespace platform
