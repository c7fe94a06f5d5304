#include "platform/desktop/bookmarks.h"

#include <QDataStream>
#include <QFile>

#include <array>
#include <cerrno>
#include <cstring>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace platform {
namespace {

constexpr quint32 mark = 0x51424d31; // "QBM1"
constexpr qsizetype largestBookmark = 65536;
constexpr size_t largestHandle = 128;

/** Identifies an item even if another one later reuses its path and inode. */
struct Identity
{
    quint64 fileSystem = 0;
    quint64 number = 0;
    qint64 bornSeconds = 0; ///< 0 where the file system keeps no birth time
    quint32 bornNanoseconds = 0;
    QByteArray handle; ///< the file system's own handle of the item; empty if it has none

    bool operator==(const Identity &) const = default;
};

quint64 fileSystemOf(const QByteArray &path, quint64 device)
{
    struct statfs fileSystem = {};
    if (::statfs(path.constData(), &fileSystem) != 0)
        return device;
    quint64 identity = 0;
    static_assert(sizeof fileSystem.f_fsid == sizeof identity);
    std::memcpy(&identity, &fileSystem.f_fsid, sizeof identity);
    return identity ? identity : device;
}

QByteArray handleOf(const QByteArray &path)
{
    alignas(file_handle) std::array<char, sizeof(file_handle) + largestHandle> memory = {};
    auto *handle = reinterpret_cast<file_handle *>(memory.data());
    handle->handle_bytes = largestHandle;
    int mount = 0;
    if (::name_to_handle_at(AT_FDCWD, path.constData(), handle, &mount, AT_SYMLINK_FOLLOW) != 0)
        return {};
    return QByteArray(memory.data() + offsetof(file_handle, handle_type),
                      qsizetype(sizeof handle->handle_type + handle->handle_bytes));
}

std::optional<Identity> identityOf(const QByteArray &path)
{
    struct statx item = {};
    if (::statx(AT_FDCWD, path.constData(), 0, STATX_BASIC_STATS | STATX_BTIME, &item) != 0)
        return std::nullopt;
    Identity identity;
    identity.fileSystem = fileSystemOf(path, (quint64(item.stx_dev_major) << 32) | item.stx_dev_minor);
    identity.number = item.stx_ino;
    if (item.stx_mask & STATX_BTIME) {
        identity.bornSeconds = item.stx_btime.tv_sec;
        identity.bornNanoseconds = item.stx_btime.tv_nsec;
    }
    identity.handle = handleOf(path);
    return identity;
}

bool mayBeRead(const QByteArray &path)
{
    struct stat item = {};
    const bool isFolder = ::stat(path.constData(), &item) == 0 && S_ISDIR(item.st_mode);
    return ::access(path.constData(), isFolder ? R_OK | X_OK : R_OK) == 0;
}

QDataStream &operator<<(QDataStream &stream, const Identity &identity)
{
    return stream << identity.fileSystem << identity.number << identity.bornSeconds << identity.bornNanoseconds
                  << identity.handle;
}

QDataStream &operator>>(QDataStream &stream, Identity &identity)
{
    return stream >> identity.fileSystem >> identity.number >> identity.bornSeconds >> identity.bornNanoseconds >>
           identity.handle;
}

} // namespace

Result<QByteArray> makeBookmark(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    const std::optional<Identity> identity = path.startsWith(u'/') ? identityOf(name) : std::nullopt;
    if (!identity)
        return failure(ErrorCode::NotFound, QStringLiteral("Cannot bookmark %1: no such file").arg(path));
    if (!mayBeRead(name))
        return failure(ErrorCode::Unreadable, QStringLiteral("Cannot bookmark %1: it cannot be read").arg(path));
    QByteArray bookmark;
    QDataStream stream(&bookmark, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << mark << name << *identity;
    return bookmark;
}

Result<QString> resolveBookmark(const QByteArray &bookmark)
{
    QDataStream stream(bookmark);
    stream.setVersion(QDataStream::Qt_6_0);
    quint32 markRead = 0;
    QByteArray name;
    Identity known;
    if (bookmark.size() <= largestBookmark)
        stream >> markRead >> name >> known;
    if (markRead != mark || stream.status() != QDataStream::Ok || !stream.atEnd() || !name.startsWith('/'))
        return failure(ErrorCode::InvalidValue, QStringLiteral("This is no remembered place"));
    const QString path = QFile::decodeName(name);
    const std::optional<Identity> now = identityOf(name);
    if (!now || *now != known)
        return failure(ErrorCode::NotFound,
                       QStringLiteral("What was remembered as %1 is not there any more").arg(path));
    return path;
}

} // namespace platform
