#include "files/cNSFileHandling.h"

#include "files/items/date_stamp.h"
#include "files/items/make_folder.h"
#include "files/items/placing.h"
#include "files/items/rename_by_location.h"
#include "files/items/text_files.h"
#include "image/convert.h"

#include "platform/controls/controls.h"
#include "platform/desktop/custom_icon.h"
#include "platform/desktop/workspace.h"
#include "platform/disk/folders.h"
#include "platform/disk/item_facts.h"
#include "platform/disk/trash.h"
#include "platform/file/atomic_file.h"
#include "platform/foundation/human_texts.h"
#include "platform/foundation/locations.h"
#include "platform/foundation/paths.h"
#include "platform/foundation/raised.h"
#include "platform/plist/plist.h"

namespace {

QString okOrFailed(bool isDone)
{
    return isDone ? QStringLiteral("OK") : QStringLiteral("Failed");
}

QUrl locationFrom(const QVariant &value, qsizetype index)
{
    const bool isText = value.metaType() == QMetaType::fromType<QString>();
    const QUrl location = platform::locationOf(isText ? value.toString() : QString());
    if (!location.isValid() || location.isRelative())
        throw platform::Raised::typeError(
            QStringLiteral("Expected a location such as file:///a/b.jpg for locations[%1] but received %2")
                .arg(index)
                .arg(isText ? u'"' + value.toString() + u'"' : QStringLiteral("something else")));
    return location;
}

QList<QUrl> locationsFrom(const QVariantList &values)
{
    QList<QUrl> locations;
    for (const QVariant &value : values)
        locations.append(locationFrom(value, locations.size()));
    return locations;
}

} // namespace

cNSFileHandling::cNSFileHandling(QObject *parent) : QObject(parent) {}

QString cNSFileHandling::stampOr(const QDateTime &date, const QVariant &formatCode)
{
    if (files::asksForStamp(formatCode))
        dateString = files::dateStamp(date);
    return dateString.isNull() ? QStringLiteral("(null)") : dateString;
}

QString cNSFileHandling::hGetCreationDateFile(const QString &path, const QVariant &formatCode)
{
    return stampOr(platform::itemFacts(path).value_or(platform::ItemFacts()).created, formatCode);
}

QString cNSFileHandling::hGetModificationDateFile(const QString &path, const QVariant &formatCode)
{
    return stampOr(platform::itemFacts(path).value_or(platform::ItemFacts()).modified, formatCode);
}

QString cNSFileHandling::hCreateDirectory(const QString &path)
{
    switch (files::makeFolder(path)) {
    case files::FolderMade::Yes:
        return QStringLiteral("OK");
    case files::FolderMade::WasThere:
        return QStringLiteral("EXISTS");
    case files::FolderMade::No:
        return QStringLiteral("FAILED");
    }
    Q_UNREACHABLE();
}

void cNSFileHandling::hAddIconToFile(const QString &path, const platform::Picture &icon)
{
    (void)platform::setCustomIcon(path, icon);
}

QString cNSFileHandling::hDeleteFiles(const QVariantList &locations)
{
    for (const QUrl &location : locationsFrom(locations))
        if (location.isLocalFile() && location.host().isEmpty())
            (void)platform::removeItem(location.toLocalFile());
    return QStringLiteral("OK");
}

void cNSFileHandling::hShowInFinder(const platform::Sender &)
{
    platform::openItem(platform::textOf(tfDestinationFolder));
}

void cNSFileHandling::hRenameFile(const QString &path, const QString &newName)
{
    files::renameByLocation(path, newName);
}

QString cNSFileHandling::hCheckIfFileExist(const QString &path)
{
    return platform::itemExists(path) ? QStringLiteral("OK") : QStringLiteral("NO");
}

QString cNSFileHandling::getFileSize(const QString &path)
{
    if (const auto facts = platform::itemFacts(path))
        myFileSizeStr =
            facts->sizeInBytes == 0 ? QStringLiteral("Zero KB") : platform::byteCountText(facts->sizeInBytes);
    return myFileSizeStr;
}

QString cNSFileHandling::hMoveFileTo(const QString &source, const QString &destination)
{
    return okOrFailed(files::place(files::Placing::Move, source, destination));
}

QString cNSFileHandling::hCopyFileTo(const QString &source, const QString &destination)
{
    return okOrFailed(files::place(files::Placing::Copy, source, destination));
}

QString cNSFileHandling::hAliasFileTo(const QString &source, const QString &destination)
{
    return okOrFailed(files::place(files::Placing::Link, source, destination));
}

QString cNSFileHandling::hTrashFile(const QString &path)
{
    return okOrFailed(platform::moveToTrash(path).has_value());
}

QString cNSFileHandling::hGetFileType(const QString &path)
{
    return platform::typeOfItem(path);
}

void cNSFileHandling::hWritHTMLFile(const QString &path, const QString &text)
{
    (void)files::writeText(path, text);
}

void cNSFileHandling::hWriteTextFile(const QString &path, const QString &text)
{
    (void)files::writeText(path, text);
}

QVariant cNSFileHandling::hReadTextFileLbyL(const QString &path)
{
    const auto lines = files::readLines(path);
    return lines ? QVariant(*lines) : QVariant::fromValue(nullptr);
}

QVariant cNSFileHandling::readPlist(const QString &path, const QString &key)
{
    const auto file = platform::readFile(path);
    if (!file)
        return QVariant::fromValue(nullptr);
    const auto value = platform::propertyListValue(*file, key);
    return value && value->isValid() ? *value : QVariant::fromValue(nullptr);
}

void cNSFileHandling::writeToPlist(const QString &path, const QString &key, const platform::PropertyValue &value)
{
    const auto file = platform::readFile(path);
    if (!file)
        return;
    if (const auto changed = platform::withPropertyListValue(*file, key, value.value))
        (void)platform::replaceFile(path, *changed);
}

void cNSFileHandling::writeNSDataToFile(const QByteArray &data, const QString &path)
{
    if (!data.isNull())
        (void)platform::replaceFile(path, data);
}

QByteArray cNSFileHandling::readNSDataFromFile(const QString &path)
{
    const auto bytes = platform::readFile(path);
    if (!bytes)
        return QByteArray();
    return bytes->isNull() ? QByteArray("") : *bytes;
}

QVariantList cNSFileHandling::hConvertFileType(const QString &source, const QString &type, const QString &qualityCode,
                                               const QString &destination)
{
    saveURL = QUrl::fromLocalFile(destination);
    if (const auto target = image::targetTypeFor(type))
        (void)image::convertFile({source, *target, image::conversionQuality(qualityCode), destination});
    return {saveURL, type, platform::baseName(source)};
}
