#include "app/window/file_desk.h"

#include "app/window/file_facts.h"
#include "app/window/formats.h"
#include "app/window/line_file.h"
#include "app/window/picture_collector.h"
#include "app/window/staging.h"

#include "platform/disk/item_identity.h"
#include "platform/file/atomic_file.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/human_texts.h"
#include "platform/foundation/raised.h"
#include "platform/imageio/comments/user_comment_writer.h"
#include "platform/imageio/exif/orientation_mark.h"
#include "platform/imageio/jpeg/jpeg_header.h"
#include "platform/imageio/source/image_source.h"
#include "presets/unusable_database.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

#include <cmath>

namespace window {

namespace {

const QVariant nothing = QVariant::fromValue(nullptr);

} // namespace

FileDesk::FileDesk(QObject *parent) : QObject(parent) {}

QString FileDesk::home() const
{
    return QDir::homePath();
}

QString FileDesk::dataFolder() const
{
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/quorlin");
    QDir().mkpath(folder);
    return folder;
}

QVariantMap FileDesk::info(const QString &path) const
{
    const QFileInfo info(path);
    return {{QStringLiteral("exists"), info.exists() || info.isSymLink()},
            {QStringLiteral("isFolder"), info.isDir()},
            {QStringLiteral("isLink"), info.isSymLink()},
            {QStringLiteral("bytes"), double(fileBytes(path))},
            {QStringLiteral("writable"), info.isWritable()}};
}

QVariantMap FileDesk::space(const QString &path) const
{
    const DiskSpace space = diskSpace(path);
    return {{QStringLiteral("free"), double(space.freeBytes)}, {QStringLiteral("disk"), double(space.disk)}};
}

QString FileDesk::absolute(const QString &path) const
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString FileDesk::identity(const QString &path) const
{
    return platform::itemIdentity(path);
}

QString FileDesk::folderIdentity(const QString &folder) const
{
    return platform::folderIdentity(folder);
}

QVariantMap FileDesk::owners(const QStringList &paths) const
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

QStringList FileDesk::names(const QString &folder) const
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                  QDir::Unsorted);
}

QStringList FileDesk::folders(const QString &folder) const
{
    return QDir(folder).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Unsorted);
}

QVariantMap FileDesk::collect(const QStringList &paths, const QStringList &extensions, const QStringList &companions,
                              const QStringList &listed) const
{
    const Collected found = collectFiles(paths, {extensions, companions, listed});
    return {{QStringLiteral("paths"), found.paths},           {QStringLiteral("listed"), found.listed},
            {QStringLiteral("folders"), found.folders},       {QStringLiteral("leftOut"), found.leftOut},
            {QStringLiteral("companions"), found.companions}, {QStringLiteral("example"), found.example}};
}

QString FileDesk::makeFolder(const QString &folder) const
{
    if (QDir().mkpath(folder))
        return {};
    return tr("The folder %1 cannot be made").arg(QDir::toNativeSeparators(folder));
}

void FileDesk::removeEmptyFolder(const QString &folder) const
{
    QDir().rmdir(folder);
}

QVariant FileDesk::makeStaging(const QString &folder) const
{
    const QString made = window::makeStaging(folder);
    return made.isEmpty() ? nothing : QVariant(made);
}

void FileDesk::removeStaging(const QString &staging) const
{
    window::removeStaging(staging);
}

void FileDesk::sweep(const QString &folder) const
{
    window::sweepStagings(folder);
}

QVariantMap FileDesk::place(const QString &from, const QString &to, const QString &replaced) const
{
    if (!replaced.isEmpty() && !platform::isIdentity(replaced))
        throw platform::Raised::typeError(
            QStringLiteral("Expected an identity or empty text for replaced but received \"%1\"").arg(replaced));
    const PlaceResult result = replaced.isEmpty() ? placeFile(from, to) : placeFileInsteadOf(from, to, replaced);
    const QString status = result.outcome == PlaceOutcome::Placed  ? QStringLiteral("OK")
                           : result.outcome == PlaceOutcome::Taken ? QStringLiteral("Taken")
                                                                   : QStringLiteral("Failed");
    return {{QStringLiteral("status"), status}, {QStringLiteral("message"), result.message}};
}

QVariant FileDesk::storedSize(const QString &path) const
{
    const auto source = platform::ImageSource::open(path);
    if (!source)
        return nothing;
    return QVariantMap{{QStringLiteral("width"), source->storedSize().width()},
                       {QStringLiteral("height"), source->storedSize().height()}};
}

QVariant FileDesk::jpegBlock(const QString &path) const
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

QString FileDesk::markUpright(const QString &path) const
{
    const auto marked = platform::markUpright(path);
    return marked ? QString() : marked.error().message;
}

QVariantMap FileDesk::picture(const QString &path) const
{
    const auto source = platform::ImageSource::open(path);
    const QSize size = source ? source->uprightSize() : QSize(0, 0);
    return {{QStringLiteral("path"), path},
            {QStringLiteral("name"), QFileInfo(path).fileName()},
            {QStringLiteral("width"), size.width()},
            {QStringLiteral("height"), size.height()},
            {QStringLiteral("orientation"), source ? source->orientation() : 1},
            {QStringLiteral("type"), typeWord(source ? source->typeIdentifier() : typeOfName(path))},
            {QStringLiteral("bytes"), double(fileBytes(path))}};
}

QVariant FileDesk::facts(const QString &path) const
{
    return fileFacts(path);
}

QString FileDesk::profileName(const QString &path) const
{
    const auto properties =
        platform::ImageSource::open(path).and_then([](const auto &source) { return source.properties(); });
    return properties.value_or(QVariantMap()).value(QStringLiteral("ProfileName")).toString();
}

QString FileDesk::writeComment(const QString &path, const QString &comment) const
{
    const auto written = platform::writeUserComment(path, comment);
    return written ? QString() : written.error().message;
}

QStringList FileDesk::lostMetadata(const QString &from, const QString &to) const
{
    const auto groupsOf = [](const QString &path) {
        return platform::ImageSource::open(path)
            .and_then([](const auto &source) { return source.metadata(); })
            .value_or(platform::Metadata())
            .toProperties();
    };
    const QVariantMap had = groupsOf(from);
    const QVariantMap has = groupsOf(to);
    QStringList lost;
    for (const auto &[group, word] :
         {std::pair("{Exif}", "EXIF"), {"{GPS}", "GPS"}, {"{IPTC}", "IPTC"}, {"{XMP}", "XMP"}})
        if (had.contains(QString::fromLatin1(group)) && !has.contains(QString::fromLatin1(group)))
            lost.append(QString::fromLatin1(word));
    return lost;
}

QVariantMap FileDesk::readComment(const QString &path) const
{
    const auto comment = platform::readUserComment(path);
    return {{QStringLiteral("comment"), comment.value_or(QStringLiteral(""))},
            {QStringLiteral("problem"), comment ? QStringLiteral("") : comment.error().message}};
}

int FileDesk::pagesLostToComment(const QString &path) const
{
    return platform::pagesLostToUserComment(path);
}

bool FileDesk::holdsComment(const QString &path) const
{
    return platform::canHoldUserComment(path);
}

QString FileDesk::writeText(const QString &path, const QString &text) const
{
    const auto written = platform::replaceFile(path, text.toUtf8());
    return written ? QString() : written.error().message;
}

QString FileDesk::appendLines(const QString &path, const QString &lines) const
{
    const auto added = window::appendLines(path, lines.toUtf8());
    return added ? QString() : added.error().message;
}

QString FileDesk::keepNewestLines(const QString &path, int most, int limit) const
{
    const auto kept = window::keepNewestLines(path, most, limit);
    return kept ? QString() : kept.error().message;
}

QVariant FileDesk::readText(const QString &path) const
{
    const auto bytes = platform::readFile(path);
    return bytes ? QVariant(QString::fromUtf8(*bytes)) : nothing;
}

QString FileDesk::setAsideUnusableDatabase(const QString &path) const
{
    return presets::setAsideUnusableDatabase(path);
}

QString FileDesk::byteText(double bytes) const
{
    constexpr double mostBytes = 9007199254740992.0;
    if (!(std::abs(bytes) <= mostBytes))
        throw platform::Raised::typeError(
            QStringLiteral("Expected a number of bytes for bytes but received %1").arg(bytes));
    return platform::localByteCountText(qint64(bytes));
}

QString FileDesk::dateText(const QString &date) const
{
    const QDateTime read = QDateTime::fromString(date, Qt::ISODate);
    return read.isValid() ? QLocale().toString(read, QLocale::ShortFormat) : QString();
}

} // namespace window
