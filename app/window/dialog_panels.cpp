#include "app/window/dialog_panels.h"

#include "app/window/print_dialog.h"
#include "platform/desktop/user_defaults.h"

#include <QApplication>
#include <QFileDialog>

namespace window {

namespace {

const QString lastFolderKey = QStringLiteral("LastPanelFolder");

QString filterFor(const QStringList &types)
{
    QStringList patterns;
    for (const QString &type : types) {
        patterns.append(QStringLiteral("*.") + type.toLower());
        patterns.append(QStringLiteral("*.") + type.toUpper());
    }
    patterns.removeDuplicates();
    return QFileDialog::tr("Files that can be chosen") + QStringLiteral(" (%1)").arg(patterns.join(QLatin1Char(' ')));
}

void prepareOpen(QFileDialog &dialog, const platform::PanelRequest &request)
{
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    if (request.choosesFolders && !request.choosesFiles) {
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
    } else {
        dialog.setFileMode(request.choosesSeveral ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    }
    if (request.types && !request.types->isEmpty() && request.choosesFiles)
        dialog.setNameFilter(filterFor(*request.types));
}

void prepareSave(QFileDialog &dialog, const platform::PanelRequest &request)
{
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.selectFile(request.name);
    if (request.types && !request.types->isEmpty()) {
        dialog.setNameFilter(filterFor(*request.types));
        dialog.setDefaultSuffix(request.types->constFirst());
    }
}

} // namespace

platform::PanelAnswer DialogPanels::run(const platform::PanelRequest &request)
{
    if (request.kind == platform::PanelKind::Print)
        return runPrintDialog(request);
    QFileDialog dialog(QApplication::activeWindow());
    const QString last = platform::userDefault(lastFolderKey).toString();
    dialog.setDirectory(!request.folder.isEmpty() ? request.folder : !last.isEmpty() ? last : QDir::homePath());
    if (!request.message.isEmpty())
        dialog.setWindowTitle(request.message);
    if (!request.createsFolders && request.kind == platform::PanelKind::Open && request.choosesFiles)
        dialog.setOption(QFileDialog::ReadOnly);
    if (request.kind == platform::PanelKind::Save)
        prepareSave(dialog, request);
    else
        prepareOpen(dialog, request);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    platform::setUserDefault(lastFolderKey, dialog.directory().absolutePath());
    return {true, dialog.selectedFiles(), {}};
}

} // namespace window
