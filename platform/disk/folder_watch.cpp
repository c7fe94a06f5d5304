#include "platform/disk/folder_watch.h"

#include "platform/disk/folder_walk.h"
#include "platform/disk/folders.h"
#include "platform/foundation/paths.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/statfs.h>

namespace platform {
namespace {

constexpr uint32_t asked = IN_CLOSE_WRITE | IN_MOVED_TO | IN_CREATE | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR |
                           IN_DONT_FOLLOW | IN_EXCL_UNLINK;

bool isEntered(const QString &name)
{
    return !name.startsWith(u'.') && !isPackageName(encodedPath(name).toStdString());
}

} // namespace

Result<FolderWatch> FolderWatch::start(const QStringList &folders)
{
    FolderWatch watch(Descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)));
    watch.m_named = folders;
    for (const QString &folder : folders) {
        if (watch.m_inotify.isOpen() && watch.addAll(folder, nullptr))
            continue;
        const bool isFull = errno == ENOSPC || errno == EMFILE;
        const QString sentence =
            isFull ? QStringLiteral(
                         "The system watches no more than %1 folders (fs.inotify.max_user_watches); %2 has more "
                         "below it")
                         .arg(mostWatches())
                         .arg(folder)
                   : QStringLiteral("Cannot watch %1: %2").arg(folder, QString::fromLocal8Bit(std::strerror(errno)));
        return failure(isFull ? ErrorCode::TooLarge : ErrorCode::NotFound, sentence);
    }
    return watch;
}

bool FolderWatch::add(const QString &folder)
{
    const int number = ::inotify_add_watch(m_inotify.number(), encodedPath(folder).constData(), asked);
    if (number >= 0)
        m_folders.insert(number, folder); // a folder that was moved keeps its number and has another path now
    return number >= 0;
}

/** A folder and everything below it. One that has disappeared is skipped. @p files gets the files in them. */
bool FolderWatch::addAll(const QString &folder, QStringList *files)
{
    if (!add(folder))
        return files && errno == ENOENT;
    int problem = 0;
    FolderWalkOptions options;
    options.packageContents = PackageContents::Skip;
    walkFolder(folder, options, [&](const FolderItem &item) {
        const QString path = decodedPath(QByteArrayView(item.path.data(), qsizetype(item.path.size())));
        if (item.isFolder && !add(path) && errno != ENOENT && errno != EACCES)
            problem = errno;
        else if (!item.isFolder && files)
            files->append(path);
        return Descend::Yes;
    });
    errno = problem;
    return problem == 0;
}

void FolderWatch::take(const char *bytes, News &news)
{
    inotify_event event = {};
    std::memcpy(&event, bytes, sizeof event);
    if ((event.mask & IN_Q_OVERFLOW) != 0) {
        news.isMissing = true;
        return;
    }
    const QString folder = m_folders.value(event.wd);
    if ((event.mask & (IN_DELETE_SELF | IN_MOVE_SELF | IN_IGNORED)) != 0) {
        const bool isNamed = m_named.contains(folder);
        if (isNamed && !news.lost.contains(folder))
            news.lost.append(folder);
        if ((event.mask & IN_IGNORED) != 0)
            m_folders.remove(event.wd);
        return;
    }
    if (folder.isEmpty() || event.len == 0)
        return;
    const QString name = decodedPath(bytes + sizeof event);
    const QString path = joinedPath(folder, name);
    if ((event.mask & IN_ISDIR) == 0) {
        if ((event.mask & (IN_CLOSE_WRITE | IN_MOVED_TO)) != 0)
            news.files.append(path);
    } else if (isEntered(name) && !addAll(path, &news.files)) {
        news.isFull = news.isFull || errno == ENOSPC;
    }
}

FolderWatch::News FolderWatch::read()
{
    News news;
    constexpr size_t room = 1 << 16;
    std::array<char, room> bytes; // NOLINT: filled by the system
    for (;;) {
        const ssize_t count = ::read(m_inotify.number(), bytes.data(), room);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return news;
        for (ssize_t at = 0; at < count;) {
            inotify_event event = {};
            std::memcpy(&event, bytes.data() + at, sizeof event);
            take(bytes.data() + at, news);
            at += ssize_t(sizeof event) + event.len;
        }
    }
}

bool isOfNetwork(const QString &folder)
{
    // NFS, CIFS, SMB 2, SMB, 9P, Ceph, AFS (of two makers), Coda, NCP, programs (FUSE), Lustre, GPFS, OCFS2, GFS2
    constexpr std::array<quint32, 15> marks = {0x6969,     0xff534d42, 0xfe534d42, 0x517b,     0x01021997,
                                               0x00c36400, 0x5346414f, 0x6b414653, 0x73757245, 0x564c,
                                               0x65735546, 0x0bd00bd0, 0x47504653, 0x7461636f, 0x01161970};
    struct statfs disk = {};
    return ::statfs(encodedPath(folder).constData(), &disk) == 0 &&
           std::find(marks.begin(), marks.end(), quint32(disk.f_type)) != marks.end();
}

bool isBeingWritten(const QString &path)
{
    const Descriptor file(::open(encodedPath(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isOpen())
        return false;
    // A read lease is granted only while nobody writes; it ends with the descriptor.
    return ::fcntl(file.number(), F_SETLEASE, F_RDLCK) != 0 && errno == EAGAIN;
}

int mostWatches()
{
    QFile file(QStringLiteral("/proc/sys/fs/inotify/max_user_watches"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed().toInt() : 0;
}

} // namespace platform
