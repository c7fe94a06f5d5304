#include "files/services/file_service.h"

#include "files/finishing/put_in_place.h"
#include "files/finishing/unfinished_folder.h"
#include "files/items/file_facts.h"
#include "files/items/line_file.h"
#include "files/items/picture_collector.h"

#include "image/services/format_words.h"
#include "platform/disk/disk_file_system.h"
#include "platform/disk/item_identity.h"
#include "platform/disk/trash.h"
#include "platform/file/atomic_file.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/human_texts.h"
#include "platform/foundation/raised.h"
#include "platform/imageio/comments/user_comment_writer.h"
#include "platform/imageio/exif/orientation_mark.h"
#include "platform/imageio/jpeg/jpeg_header.h"
#include "platform/imageio/source/image_source.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>

namespace files {

namespace {

const QVariant nothing = QVariant::fromValue(nullptr);

} // namespace

FileService::FileService(QObject *parent) : QObject(parent) {}

QString FileService::home() const
{
    return QDir::homePath();
}

QString FileService::dataFolder() const
{
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/quorlin");
    QDir().mkpath(folder);
    return folder;
}

QVariantMap FileService::info(const QString &path) const
{
    const QFileInfo info(path);
    return {{QStringLiteral("exists"), info.exists() || info.isSymLink()},
            {QStringLiteral("isFolder"), info.isDir()},
            {QStringLiteral("isLink"), info.isSymLink()},
            {QStringLiteral("bytes"), double(image::fileBytes(path))},
            {QStringLiteral("writable"), info.isWritable()}};
}

QVariantMap FileService::space(const QString &path) const
{
    const DiskSpace space = diskSpace(path);
    return {{QStringLiteral("free"), double(space.freeBytes)}, {QStringLiteral("disk"), double(space.disk)}};
}

QVariantMap FileService::trashSpace(const QString &path) const
{
    return space(platform::trashPlaceFor(path));
}

QString FileService::absolute(const QString &path) const
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString FileService::identity(const QString &path) const
{
    return platform::itemIdentity(path);
}

QString FileService::folderIdentity(const QString &folder) const
{
    return platform::folderIdentity(folder);
}

QVariantMap FileService::owners(const QStringList &paths) const
{
    QVariantMap owners;
    for (const QString &path : paths) {
        const QString item = platform::itemIdentity(path);
        const QString target = platform::targetIdentity(path);
        for (const QString &identity : item == target ? QStringList{item} : QStringList{item, target}) {
            if (identity.isEmpty())
                continue;
            QStringList known = owners.value(identity).toStringList();
            known.append(path);
            owners.insert(identity, known);
        }
    }
    return owners;
}

QStringList FileService::names(const QString &folder) const
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                  QDir::Unsorted);
}

QStringList FileService::namesEndingIn(const QString &folder, const QStringList &endings) const
{
    QStringList found = names(folder);
    found.removeIf([&endings](const QString &name) {
        return std::none_of(endings.begin(), endings.end(), [&name](const QString &ending) {
            return name.size() > ending.size() && name.endsWith(ending, Qt::CaseInsensitive);
        });
    });
    return found;
}

QStringList FileService::folders(const QString &folder) const
{
    return QDir(folder).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Unsorted);
}

QVariantMap FileService::collect(const QStringList &paths, const QStringList &extensions, const QStringList &companions,
                                 const QStringList &listed) const
{
    const Collected found = collectFiles(paths, {extensions, companions, listed});
    return {{QStringLiteral("paths"), found.paths},           {QStringLiteral("listed"), found.listed},
            {QStringLiteral("folders"), found.folders},       {QStringLiteral("leftOut"), found.leftOut},
            {QStringLiteral("companions"), found.companions}, {QStringLiteral("example"), found.example}};
}

QString FileService::makeFolder(const QString &folder) const
{
    if (QDir().mkpath(folder))
        return {};
    return tr("The folder %1 cannot be created").arg(QDir::toNativeSeparators(folder));
}

void FileService::removeEmptyFolder(const QString &folder) const
{
    QDir().rmdir(folder);
}

QVariant FileService::makeStaging(const QString &folder) const
{
    const QString made = files::makeStaging(folder);
    return made.isEmpty() ? nothing : QVariant(made);
}

void FileService::removeStaging(const QString &staging) const
{
    files::removeStaging(staging);
}

void FileService::sweep(const QString &folder) const
{
    files::sweepStagings(folder);
}

QVariantMap FileService::place(const QString &from, const QString &to, const QString &replaced) const
{
    if (!replaced.isEmpty() && !platform::isIdentity(replaced))
        throw platform::Raised::typeError(
            QStringLiteral("Expected an identity or empty text for replaced but received \"%1\"").arg(replaced));
    platform::DiskFileSystem disk;
    const PlaceResult result =
        replaced.isEmpty() ? placeFile(disk, from, to) : placeFileInsteadOf(disk, from, to, replaced);
    const QString status = result.outcome == PlaceOutcome::Placed  ? QStringLiteral("OK")
                           : result.outcome == PlaceOutcome::Taken ? QStringLiteral("Taken")
                                                                   : QStringLiteral("Failed");
    return {{QStringLiteral("status"), status}, {QStringLiteral("message"), result.message}};
}

QString FileService::realFolder(const QString &folder) const
{
    const QFileInfo info(folder);
    return info.isDir() ? info.canonicalFilePath() : QString();
}

void FileService::copyPermissions(const QString &from, const QString &to) const
{
    platform::DiskFileSystem disk;
    const auto item = disk.look(from);
    if (item && item->kind == platform::ItemKind::File)
        disk.copyPermissions(from, to);
}

QVariant FileService::storedSize(const QString &path) const
{
    const auto source = platform::ImageSource::open(path);
    if (!source)
        return nothing;
    return QVariantMap{{QStringLiteral("width"), source->storedSize().width()},
                       {QStringLiteral("height"), source->storedSize().height()}};
}

QVariant FileService::jpegBlock(const QString &path) const
{
    QFile file(path);
    const auto header = platform::openToRead(file) ? platform::readJpegHeader(file) : std::nullopt;
    if (!header)
        return nothing;
    constexpr int side = 8;
    const bool isSampled = header->componentCount > 1;
    return QVariantMap{{QStringLiteral("width"), isSampled ? side * header->quantisation.horizontalSampling : side},
                       {QStringLiteral("height"), isSampled ? side * header->quantisation.verticalSampling : side}};
}

QString FileService::markUpright(const QString &path) const
{
    const auto marked = platform::markUpright(path);
    return marked ? QString() : marked.error().message;
}

QVariantMap FileService::picture(const QString &path) const
{
    const auto source = platform::ImageSource::open(path);
    return source ? pictureValues(path, source->uprightSize(), source->orientation(), source->typeIdentifier())
                  : pictureValues(path, {}, 1, {});
}

QVariantMap pictureValues(const QString &path, QSize pixels, int orientation, const QString &type)
{
    return {{QStringLiteral("path"), path},
            {QStringLiteral("name"), QFileInfo(path).fileName()},
            {QStringLiteral("width"), std::max(0, pixels.width())},
            {QStringLiteral("height"), std::max(0, pixels.height())},
            {QStringLiteral("orientation"), orientation},
            {QStringLiteral("type"), image::typeWord(type.isEmpty() ? image::typeOfName(path) : type)},
            {QStringLiteral("bytes"), double(image::fileBytes(path))}};
}

QVariant FileService::facts(const QString &path) const
{
    return fileFacts(path);
}

QString FileService::profileName(const QString &path) const
{
    const auto properties =
        platform::ImageSource::open(path).and_then([](const auto &source) { return source.properties(); });
    return properties.value_or(QVariantMap()).value(QStringLiteral("ProfileName")).toString();
}

QString FileService::writeComment(const QString &path, const QString &comment) const
{
    const auto written = platform::writeUserComment(path, comment);
    return written ? QString() : written.error().message;
}

QVariantMap FileService::lostMetadata(const QString &from, const QString &to) const
{
    const auto metadataOf = [](const QString &path) {
        return platform::ImageSource::open(path).and_then([](const auto &source) { return source.metadata(); });
    };
    const auto old = metadataOf(from);
    const auto made = metadataOf(to);
    if (!old || !made)
        return lostBetween({}, {}, (old ? made : old).error().message);
    return lostBetween(old->toProperties(), made->toProperties(), QStringLiteral(""));
}

QVariantMap lostBetween(const QVariantMap &had, const QVariantMap &has, const QString &problem)
{
    QStringList lost;
    for (const auto &[group, word] :
         {std::pair("{Exif}", "EXIF"), {"{GPS}", "GPS"}, {"{IPTC}", "IPTC"}, {"{XMP}", "XMP"}})
        if (problem.isEmpty() && had.contains(QString::fromLatin1(group)) && !has.contains(QString::fromLatin1(group)))
            lost.append(QString::fromLatin1(word));
    return {{QStringLiteral("lost"), lost}, {QStringLiteral("problem"), problem}};
}

QVariantMap FileService::readComment(const QString &path) const
{
    const auto comment = platform::readUserComment(path);
    return {{QStringLiteral("comment"), comment.value_or(QStringLiteral(""))},
            {QStringLiteral("problem"), comment ? QStringLiteral("") : comment.error().message}};
}

int FileService::pagesLostToComment(const QString &path) const
{
    return platform::pagesLostToUserComment(path);
}

bool FileService::holdsComment(const QString &path) const
{
    return platform::canHoldUserComment(path);
}

QString FileService::writeText(const QString &path, const QString &text) const
{
    const auto written = platform::replaceFile(path, text.toUtf8());
    return written ? QString() : written.error().message;
}

QString FileService::appendLines(const QString &path, const QString &lines) const
{
    const auto added = files::appendLines(path, lines.toUtf8());
    return added ? QString() : added.error().message;
}

QString FileService::keepNewestLines(const QString &path, int most, int limit) const
{
    const auto kept = files::keepNewestLines(path, most, limit);
    return kept ? QString() : kept.error().message;
}

QVariant FileService::readText(const QString &path) const
{
    const auto bytes = platform::readFile(path);
    return bytes ? QVariant(QString::fromUtf8(*bytes)) : nothing;
}

QString FileService::byteText(double bytes) const
{
    constexpr double mostBytes = 9007199254740992.0;
    if (!(std::abs(bytes) <= mostBytes))
        throw platform::Raised::typeError(
            QStringLiteral("Expected a number of bytes for bytes but received %1").arg(bytes));
    return platform::localByteCountText(qint64(bytes));
}

QString FileService::dateText(const QString &date) const
{
    const QDateTime read = QDateTime::fromString(date, Qt::ISODate);
    return platform::localDateText(read);
}

} // namespace files
