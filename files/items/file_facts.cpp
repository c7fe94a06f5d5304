#include "files/items/file_facts.h"

#include "image/services/format_words.h"
#include "platform/disk/item_facts.h"
#include "platform/foundation/human_texts.h"
#include "platform/foundation/paths.h"
#include "platform/imageio/source/picture_facts.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

#include <sys/stat.h>
#include <sys/statvfs.h>

namespace files {

namespace {

QString dateText(const QDateTime &date)
{
    return date.isValid() ? date.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss")) : QStringLiteral("");
}

QString textOf(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

std::function<DiskSpace(const QString &path)> spaceSource; // NOLINT: one for the process, as the file systems are

} // namespace

void setDiskSpaceSource(std::function<DiskSpace(const QString &path)> source)
{
    spaceSource = std::move(source);
}

QVariant fileFacts(const QString &path)
{
    return fileFacts(path, [](const QString &file) { return platform::pictureFacts(file); });
}

QVariant fileFacts(const QString &path, const std::function<platform::PictureFacts(const QString &path)> &pictureFacts)
{
    const QFileInfo info(path);
    const bool isGoodLink = info.isSymLink() && info.exists();
    const auto item = platform::itemFacts(isGoodLink ? info.canonicalFilePath() : path);
    if (!item)
        return QVariant::fromValue(nullptr);
    const bool isFolder = info.isDir();
    const platform::PictureFacts picture = isFolder ? platform::PictureFacts() : pictureFacts(path);
    const QString type = isFolder                           ? QStringLiteral("public.folder")
                         : picture.typeIdentifier.isEmpty() ? image::typeOfName(path)
                                                            : picture.typeIdentifier;
    return QVariantMap{{QStringLiteral("taken"), dateText(picture.taken)},
                       {QStringLiteral("camera"), textOf(picture.camera)},
                       {QStringLiteral("lens"), textOf(picture.lens)},
                       {QStringLiteral("created"), dateText(item->created)},
                       {QStringLiteral("changed"), dateText(item->modified)},
                       {QStringLiteral("bytes"), double(item->sizeInBytes)},
                       {QStringLiteral("size"), platform::byteCountText(item->sizeInBytes)},
                       {QStringLiteral("width"), std::max(0, picture.pixels.width())},
                       {QStringLiteral("height"), std::max(0, picture.pixels.height())},
                       {QStringLiteral("type"), textOf(image::typeWord(type))},
                       {QStringLiteral("isFolder"), isFolder}};
}

DiskSpace diskSpace(const QString &path)
{
    if (spaceSource)
        return spaceSource(path);
    DiskSpace space;
    QString there = path;
    while (!QFileInfo::exists(there) && there.contains(QLatin1Char('/')))
        there.truncate(there.lastIndexOf(QLatin1Char('/')));
    const QByteArray name = platform::encodedPath(there.isEmpty() ? QStringLiteral("/") : there);
    struct statvfs system = {};
    if (::statvfs(name.constData(), &system) == 0)
        space.freeBytes = qint64(system.f_bavail) * qint64(system.f_frsize);
    struct stat item = {};
    if (::stat(name.constData(), &item) == 0)
        space.disk = qint64(item.st_dev);
    return space;
}

} // namespace files
