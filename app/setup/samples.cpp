#include "app/setup/samples.h"

#include "app/setup/interface_folder.h"
#include "files/items/make_folder.h"
#include "platform/disk/folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

namespace app {

QString samplesFolder()
{
    return QDir::cleanPath(window::interfaceFolderOf(QCoreApplication::applicationDirPath()) +
                           QStringLiteral("/../samples"));
}

platform::Result<QString> copySamples()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QString folder = pictures + QStringLiteral("/Quorlin Samples");
    if (platform::folderExists(folder))
        return folder;
    files::makeFolder(pictures);
    if (const auto copied = platform::copyItem(samplesFolder(), folder); !copied)
        return platform::failure(copied.error().code, copied.error().message);
    return folder;
}

} // namespace app
