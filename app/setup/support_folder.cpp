#include "app/setup/support_folder.h"

#include "app/setup/interface_folder.h"
#include "files/items/make_folder.h"
#include "platform/desktop/user_defaults.h"
#include "platform/disk/folders.h"
#include "platform/disk/trash.h"
#include "platform/file/regular_file.h"
#include "presets/Ztbookmarks.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QUrl>
#include <QVariant>

namespace app {
namespace {

const QString rootKey = QStringLiteral("SupportFilesDestination");
const QString patternsKey = QStringLiteral("PatternsDestination");
const QString watermarksKey = QStringLiteral("WatermarksDestination");

void rememberRoot(const QString &root)
{
    const QByteArray bookmark = Ztbookmarks().bookmarkForURL(QUrl::fromLocalFile(root));
    if (bookmark.isNull())
        platform::removeUserDefault(rootKey);
    else
        platform::setUserDefault(rootKey, bookmark);
}

bool areSame(const QString &one, const QString &other)
{
    QFile first(one);
    QFile second(other);
    return platform::openToRead(first) && platform::openToRead(second) && first.size() == second.size() &&
           first.readAll() == second.readAll();
}

// Whether a folder contains a file that differs from the supplied patterns.
bool hasOwnFiles(const QString &folder, const QString &supplied)
{
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        if (!areSame(file, supplied + QLatin1Char('/') + QDir(folder).relativeFilePath(file)))
            return true;
    }
    return false;
}

// What the user put there can be restored from the trash.
void removePatterns(const QString &folder, const QString &supplied)
{
    if (!hasOwnFiles(folder, supplied) || !platform::moveToTrash(folder))
        static_cast<void>(platform::removeItem(folder));
}

} // namespace

QString suppliedPatterns()
{
    return window::interfaceFolder() + QStringLiteral("/patterns");
}

void setUpSupportFolder(const QString &root, const QString &patterns, OldPatterns old)
{
    rememberRoot(root);
    const QString support = root + QStringLiteral("/Brelmark_SupportFiles");
    files::makeFolder(support);
    const QString patternsThere = support + QStringLiteral("/Patterns");
    platform::setUserDefault(patternsKey, patternsThere);
    if (old == OldPatterns::Replace && platform::folderExists(patterns))
        removePatterns(patternsThere, patterns);
    static_cast<void>(platform::copyItem(patterns, patternsThere));
    const QString watermarks = support + QStringLiteral("/Watermarks");
    files::makeFolder(watermarks);
    platform::setUserDefault(watermarksKey, watermarks);
}

bool isSupportFolderKnown()
{
    return platform::userDefault(rootKey).isValid();
}

platform::Result<QString> supportFolder()
{
    const QVariant kept = platform::userDefault(rootKey);
    const QUrl location =
        kept.typeId() == QMetaType::QByteArray ? Ztbookmarks().urlForBookmark(kept.toByteArray()) : QUrl();
    if (location.isEmpty())
        return platform::failure(platform::ErrorCode::NotFound, QStringLiteral("The support folder is gone"));
    return location.toLocalFile();
}

} // namespace app
