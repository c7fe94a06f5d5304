#include "app/setup/interface_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace window {

namespace {

// On a machine with other users anybody may create a folder at the path of the build, so only a program inside its
// build looks there and in its source.
bool isInItsBuild(const QString &programFolder)
{
    const QString build = QFileInfo(QStringLiteral(QUORLIN_BUILD_FOLDER)).canonicalFilePath();
    return !build.isEmpty() && QFileInfo(programFolder).canonicalFilePath().startsWith(build + u'/');
}

} // namespace

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
    return isInItsBuild(programFolder) ? QStringLiteral(QUORLIN_SOURCE_FOLDER "/interface") : installed;
}

QString translationFile(const QString &language)
{
    const QString name = QStringLiteral("/texts/quorlin_%1.qm").arg(language);
    const QString installed = interfaceFolder() + name;
    const bool isBuilt = !QFileInfo::exists(installed) && isInItsBuild(QCoreApplication::applicationDirPath());
    return isBuilt ? QStringLiteral(QUORLIN_BUILD_FOLDER) + name : installed;
}

} // namespace window
