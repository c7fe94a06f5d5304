#include "app/setup/interface_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace window {

QString interfaceFolder()
{
    const QString said = qEnvironmentVariable("QUORLIN_INTERFACE");
    if (!said.isEmpty())
        return QDir(said).absolutePath();
    return interfaceFolderOf(QCoreApplication::applicationDirPath());
}

QString interfaceFolderOf(const QString &programFolder)
{
    const QDir program(programFolder);
    const QString installed = QDir::cleanPath(program.filePath(QStringLiteral("../share/quorlin/interface")));
    if (QFileInfo::exists(installed + QStringLiteral("/main.js")))
        return installed;
    // Anybody may make the folder of a build on another machine, so only a program within its build looks into its source.
    const QString build = QFileInfo(QStringLiteral(QUORLIN_BUILD_FOLDER)).canonicalFilePath();
    const bool isInBuild = !build.isEmpty() && QFileInfo(program.path()).canonicalFilePath().startsWith(build + u'/');
    return isInBuild ? QStringLiteral(QUORLIN_SOURCE_INTERFACE) : installed;
}

} // namespace window
