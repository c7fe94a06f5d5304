#include "app/window/interface_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace window {

QString interfaceFolder()
{
    const QString said = qEnvironmentVariable("QUORLIN_INTERFACE");
    if (!said.isEmpty())
        return QDir(said).absolutePath();
    const QDir program(QCoreApplication::applicationDirPath());
    const QString installed = QDir::cleanPath(program.filePath(QStringLiteral("../share/quorlin/interface")));
    if (QFileInfo::exists(installed + QStringLiteral("/main.js")))
        return installed;
    return QStringLiteral(QUORLIN_SOURCE_INTERFACE);
}

} // namespace window
