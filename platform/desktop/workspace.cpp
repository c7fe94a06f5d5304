#include "platform/desktop/workspace.h"

#include "platform/disk/folders.h"
#include "platform/imageio/formats/type_identifiers.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>

namespace platform {
namespace {

/** Without a display Qt knows no desktop and says so on standard error; the desktop's opener may still exist. */
bool hasDesktop()
{
    const QString name = QGuiApplication::platformName();
    return name != QStringLiteral("offscreen") && name != QStringLiteral("minimal");
}

void openWithoutDesktop(const QUrl &location)
{
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (!opener.isEmpty())
        QProcess::startDetached(opener, {QString::fromLatin1(location.toEncoded())});
}

} // namespace

QString typeOfItem(const QString &path)
{
    if (!itemExists(path))
        return {};
    return folderExists(path) ? QStringLiteral("public.folder") : typeIdentifierForPath(path);
}

void openItem(const QString &path)
{
    if (itemExists(path))
        openLocation(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
}

void openLocation(const QUrl &location)
{
    if (location.scheme().isEmpty())
        return;
    if (hasDesktop())
        QDesktopServices::openUrl(location);
    else
        openWithoutDesktop(location);
}

void runTool(const QString &program, const QStringList &arguments)
{
    if (!QFileInfo(program).isExecutable())
        return;
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    process.waitForFinished(-1);
}

} // namespace platform
