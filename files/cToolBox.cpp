#include "files/cToolBox.h"

#include "files/items/input_collection.h"
#include "files/items/rename_by_location.h"
#include "files/items/staging.h"

#include "platform/controls/panels.h"
#include "platform/desktop/workspace.h"

#include <QDir>

namespace {

QVariant listOrNull(const std::optional<QStringList> &paths)
{
    return paths ? QVariant(*paths) : QVariant::fromValue(nullptr);
}

QString storeStatus(bool isStored)
{
    return isStored ? QStringLiteral("successfull") : QStringLiteral("Failed");
}

} // namespace

cToolBox::cToolBox(QObject *parent) : QObject(parent) {}

QVariant cToolBox::hOpenDialogFiles(const QString &actionType)
{
    return listOrNull(files::collectInput(files::ActionFamily::Standard, actionType));
}

QVariant cToolBox::hOpenDialogFilesOC(const QString &actionType)
{
    return listOrNull(files::collectInput(files::ActionFamily::Ordering, actionType));
}

QString cToolBox::hStoreFiles(const QString &source, const QString &newName)
{
    return storeStatus(files::storeBeside(source, newName));
}

QString cToolBox::hStoreFiles2(const QString &source, const QString &destination)
{
    return storeStatus(files::storeAt(source, destination));
}

QString cToolBox::hStoreTempFile(const QString &source, const QString &fileName)
{
    return storeStatus(files::storeInStaging(source, fileName));
}

QString cToolBox::hGetTempDir()
{
    return files::stagingFolder();
}

QString cToolBox::hGetHomeDir()
{
    return QDir::homePath();
}

QString cToolBox::hChooseDirectory()
{
    platform::PanelRequest request;
    request.choosesFiles = false;
    request.choosesFolders = true;
    request.createsFolders = true;
    const platform::PanelAnswer answer = platform::runPanel(request);
    return answer.accepted && !answer.paths.isEmpty() ? answer.paths.last() : QString();
}

QVariant cToolBox::hGetFilesInDir(const QString &folder)
{
    const auto locations = files::locationsIn(folder);
    return locations ? QVariant(QVariantList(locations->begin(), locations->end())) : QVariant::fromValue(nullptr);
}

void cToolBox::hShowURL(const QString &location)
{
    platform::openLocation(files::locationFromText(location).value_or(QUrl()));
}

QUrl cToolBox::hNSStrToUrl(const QString &text)
{
    return files::locationOfOneSegment(text);
}

QString cToolBox::hGetMacOSVersion()
{
    return files::isLaterGeneration(files::frameworkVersion()) ? QStringLiteral("109+") : QStringLiteral("108");
}

void cToolBox::hCallShellScript(const QString &input, const QString &output)
{
    platform::runTool(QStringLiteral("/usr/bin/sips"), {QStringLiteral("-s"), QStringLiteral("format"),
                                                        QStringLiteral("pdf"), input, QStringLiteral("--out"), output});
}
