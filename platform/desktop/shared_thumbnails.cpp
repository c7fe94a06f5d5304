#include "platform/desktop/shared_thumbnails.h"

#include "platform/file/atomic_file.h"
#include "platform/foundation/paths.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImage>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace platform {
namespace {

struct Kind
{
    const char *folder;
    int side;
};
constexpr Kind kinds[] = {{"normal", 128}, {"large", 256}, {"x-large", 512}};

QString cacheFolder()
{
    const QString said = qEnvironmentVariable("XDG_CACHE_HOME");
    return QDir::isAbsolutePath(said) ? said : QDir::homePath() + QStringLiteral("/.cache");
}

QString thumbnailFolder()
{
    return cacheFolder() + QStringLiteral("/thumbnails");
}

std::optional<qint64> changedAt(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return status.st_mtim.tv_sec;
}

QByteArray firstLine(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readLine().trimmed() : QByteArray();
}

/**
 * Whether a block device, given by its folder below /sys, is on anything encrypted: also indirectly, as an encrypted
 * disk under a logical volume.
 */
bool isPrivateBlock(const QString &folder, int depth = 0)
{
    constexpr int deepest = 8;
    const QString real = QFileInfo(folder).canonicalFilePath();
    if (real.isEmpty() || depth > deepest)
        return false;
    // A partition does not say that its disk is removable; the disk, its parent folder, does.
    if (firstLine(real + QStringLiteral("/removable")) == "1" ||
        firstLine(real + QStringLiteral("/../removable")) == "1")
        return true;
    if (real.contains(QLatin1String("/usb")) || real.contains(QLatin1String("/mmc_host/")))
        return true;
    if (firstLine(real + QStringLiteral("/dm/uuid")).startsWith("CRYPT-"))
        return true;
    const QDir slaves(real + QStringLiteral("/slaves"));
    const QStringList under = slaves.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    return std::any_of(under.begin(), under.end(),
                       [&](const QString &name) { return isPrivateBlock(slaves.filePath(name), depth + 1); });
}

QString numberText(quint64 device)
{
    return QStringLiteral("%1:%2").arg(gnu_dev_major(device)).arg(gnu_dev_minor(device));
}

struct Mounted
{
    QByteArray kind;
    QByteArray source;
};

/** The most recent mount of that device number. */
std::optional<Mounted> mountedAs(const QString &number, const QByteArray &mounts)
{
    std::optional<Mounted> found;
    for (const QByteArray &line : mounts.split('\n')) {
        const QList<QByteArray> words = line.split(' ');
        const qsizetype dash = words.indexOf("-");
        if (words.value(2) == number.toLatin1() && dash > 0 && dash + 2 < words.size())
            found = {words[dash + 1], words[dash + 2]};
    }
    return found;
}

/** A folder encrypted by the file system itself, although its disk is readable. */
bool isEncryptedFile(const QString &path)
{
    struct statx facts = {};
    return ::statx(AT_FDCWD, QFile::encodeName(path).constData(), AT_STATX_DONT_SYNC, STATX_BASIC_STATS, &facts) == 0 &&
           (facts.stx_attributes & STATX_ATTR_ENCRYPTED) != 0;
}

/** At its full size, in the pixel format that every reader of thumbnails supports. */
QImage statedImage(const SharedThumbnail &place, const QImage &image, QSize picture)
{
    QImage stated = image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    stated.setText(QStringLiteral("Thumb::URI"), QString::fromLatin1(place.uri));
    stated.setText(QStringLiteral("Thumb::MTime"), QString::number(place.modified));
    stated.setText(QStringLiteral("Thumb::Image::Width"), QString::number(picture.width()));
    stated.setText(QStringLiteral("Thumb::Image::Height"), QString::number(picture.height()));
    stated.setText(QStringLiteral("Software"), QStringLiteral("Quorlin"));
    return stated;
}

} // namespace

bool SharedThumbnail::isThere() const
{
    return QFile::exists(path);
}

// Escapes everything except the characters that GLib leaves as they are in a path: programs must agree on the name
// exactly.
QByteArray fileUri(const QString &path)
{
    return "file://" + QFile::encodeName(path).toPercentEncoding("/!$&'()*+,:=@");
}

std::optional<SharedThumbnail> sharedThumbnail(const QString &path, QSize pixels, QSize wanted)
{
    const QString folder = thumbnailFolder();
    const QString real = QFileInfo(path).canonicalFilePath();
    const std::optional<qint64> changed = changedAt(path);
    if (pixels.isEmpty() || !changed || real.startsWith(folder + u'/') || !path.startsWith(u'/'))
        return std::nullopt;
    for (const Kind &kind : kinds) {
        const QSize box(kind.side, kind.side);
        const QSize fitted = pixels.scaled(pixels.boundedTo(box) == pixels ? pixels : box, Qt::KeepAspectRatio);
        if (fitted.width() < wanted.width() || fitted.height() < wanted.height())
            continue;
        const QByteArray uri = fileUri(path);
        const QByteArray name = QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex();
        return SharedThumbnail{folder + u'/' + QLatin1String(kind.folder) + u'/' + QLatin1String(name) +
                                   QStringLiteral(".png"),
                               uri, *changed, kind.side};
    }
    return std::nullopt;
}

bool isPrivateDisk(quint64 device, const QByteArray &mounts, const QString &system)
{
    const QString number = numberText(device);
    if (isPrivateBlock(system + QStringLiteral("/dev/block/") + number))
        return true;
    const std::optional<Mounted> mounted = mountedAs(number, mounts);
    if (!mounted)
        return false;
    // What a file system in user space hides is unknown; ZFS encrypts by folder and does not say where.
    if (mounted->kind.startsWith("fuse.") || mounted->kind == "ecryptfs" || mounted->kind == "zfs")
        return true;
    struct stat status = {};
    const bool isBlock =
        mounted->source.startsWith('/') && ::stat(mounted->source.constData(), &status) == 0 && S_ISBLK(status.st_mode);
    return isBlock && isPrivateBlock(system + QStringLiteral("/dev/block/") + numberText(status.st_rdev));
}

bool mayBeThumbnailed(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0 || isEncryptedFile(path))
        return false;
    // Disks are checked once: while one is in use, another one gets a different number.
    static QHash<quint64, bool> known;
    const auto found = known.constFind(status.st_dev);
    if (found != known.constEnd())
        return !*found;
    QFile mounts(QStringLiteral("/proc/self/mountinfo"));
    const QByteArray text = mounts.open(QIODevice::ReadOnly) ? mounts.readAll() : QByteArray();
    const bool isPrivate = isPrivateDisk(status.st_dev, text, QStringLiteral("/sys"));
    known.insert(status.st_dev, isPrivate);
    return !isPrivate;
}

Result<void> writeSharedThumbnail(const SharedThumbnail &place, const QString &path, const QImage &image, QSize picture)
{
    if (changedAt(path) != place.modified)
        return failure(ErrorCode::NotFound, path);
    const QString folder = parentFolder(place.path);
    // The folders are private to the user: a thumbnail shows what is in a picture.
    for (const QString &each : {cacheFolder(), thumbnailFolder(), folder})
        if (::mkdir(QFile::encodeName(each).constData(), S_IRWXU) != 0 && errno != EEXIST)
            return failure(ErrorCode::WriteFailed, each);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !statedImage(place, image, picture).save(&buffer, "PNG"))
        return failure(ErrorCode::WriteFailed, place.path);
    QByteArray unfinished = QFile::encodeName(folder + QStringLiteral("/.quorlin-XXXXXX"));
    const int descriptor = ::mkostemp(unfinished.data(), O_CLOEXEC); // readable by its owner alone
    if (descriptor < 0)
        return failure(ErrorCode::WriteFailed, place.path);
    const bool isWritten = ::write(descriptor, bytes.constData(), size_t(bytes.size())) == bytes.size();
    const bool isClosed = ::close(descriptor) == 0;
    if (isWritten && isClosed && ::rename(unfinished.constData(), QFile::encodeName(place.path).constData()) == 0)
        return {};
    ::unlink(unfinished.constData());
    return failure(ErrorCode::WriteFailed, place.path);
}

} // namespace platform
