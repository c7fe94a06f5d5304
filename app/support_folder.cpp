#include "app/support_folder.h"

#include "app/window/interface_folder.h"
#include "files/make_folder.h"
#include "platform/desktop/user_defaults.h"
#include "platform/foundation/folders.h"
#include "presets/Ztbookmarks.h"

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
        static_cast<void>(platform::removeItem(patternsThere));
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
