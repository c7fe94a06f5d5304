#include "app/window/panels/dialog_panels.h"

#include "app/window/panels/panel_files.h"
#include "app/window/panels/print_dialog.h"
#include "app/window/panels/save_dialog.h"

#include "platform/desktop/user_defaults.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QPointer>
#include <QStandardPaths>

namespace window {

namespace {

const QString lastFolderKey = QStringLiteral("LastPanelFolder");

} // namespace

QString panelFilter(const QStringList &types)
{
    QStringList patterns;
    for (const QString &type : types) {
        patterns.append(QStringLiteral("*.") + type.toLower());
        patterns.append(QStringLiteral("*.") + type.toUpper());
    }
    patterns.removeDuplicates();
    return QFileDialog::tr("Supported files") + QStringLiteral(" (%1)").arg(patterns.join(QLatin1Char(' ')));
}

namespace {

void prepareOpen(QFileDialog &dialog, const platform::PanelRequest &request)
{
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setOption(QFileDialog::HideNameFilterDetails); // all the patterns would fit nowhere
    if (request.choosesFolders && !request.choosesFiles) {
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
        dialog.setLabelText(QFileDialog::FileName, QCoreApplication::translate("window::DialogPanels", "Folder:"));
    } else {
        dialog.setFileMode(request.choosesSeveral ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    }
    if (request.types && !request.types->isEmpty() && request.choosesFiles)
        dialog.setNameFilter(panelFilter(*request.types));
}

/** Hides the row that says which types of files are shown: a panel for folders shows none. */
void hideTypesOfFolders(const QFileDialog &dialog, const platform::PanelRequest &request)
{
    for (const char *name : {"fileTypeLabel", "fileTypeCombo"})
        if (auto *part = dialog.findChild<QWidget *>(QString::fromLatin1(name)); part && !request.choosesFiles)
            part->hide();
}

/** Puts a view under the files of a dialog, which must be the toolkit's own, and hands it back afterwards. */
class ViewBelow
{
public:
    ViewBelow(QFileDialog &dialog, QWidget *view) : m_view(view)
    {
        if (!view)
            return;
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
        auto *buttons = dialog.findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
        auto *name = dialog.findChild<QWidget *>(QStringLiteral("fileNameEdit"));
        constexpr int nameRow = 2; // of the toolkit's own layout
        grid->removeWidget(buttons);
        grid->removeWidget(name);
        grid->addWidget(name, nameRow, 1, 1, -1);
        grid->setColumnStretch(1, 1);
        grid->addWidget(view, grid->rowCount(), 0, 1, -1);
        view->show();
        buttons->setOrientation(Qt::Horizontal);
        grid->addWidget(buttons, grid->rowCount(), 0, 1, -1);
        constexpr QSize roomy(760, 560);
        dialog.resize(roomy);
    }
    ~ViewBelow()
    {
        if (m_view)
            m_view->setParent(nullptr);
    }
    Q_DISABLE_COPY_MOVE(ViewBelow)

private:
    QPointer<QWidget> m_view;
};

/** The first of these that exists: the requested folder, the folder of the last panel, pictures, home. */
QString startFolder(const platform::PanelRequest &request)
{
    const QString last = request.folder.isEmpty() ? platform::userDefault(lastFolderKey).toString() : QString();
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    for (const QString &folder : {request.folder, last, pictures})
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return folder;
    return QDir::homePath();
}

/** Shows the panel; false if it is cancelled. */
bool isAccepted(QFileDialog &dialog, const platform::PanelRequest &request)
{
    dialog.setDirectory(startFolder(request));
    if (dialog.exec() != QDialog::Accepted)
        return false;
    platform::setUserDefault(lastFolderKey, dialog.directory().absolutePath());
    return true;
}

platform::PanelAnswer runSave(const platform::PanelRequest &request)
{
    SaveDialog dialog(request, QApplication::activeWindow());
    if (!isAccepted(dialog, request))
        return {};
    return {true, {dialog.chosenPath()}, dialog.tags()};
}

} // namespace

platform::PanelAnswer DialogPanels::run(const platform::PanelRequest &request)
{
    if (request.kind == platform::PanelKind::Print)
        return runPrintDialog(request);
    if (request.kind == platform::PanelKind::Save)
        return runSave(request);
    QFileDialog dialog(QApplication::activeWindow());
    if (!request.message.isEmpty())
        dialog.setWindowTitle(request.message);
    if (!request.createsFolders && request.choosesFiles)
        dialog.setOption(QFileDialog::ReadOnly);
    prepareOpen(dialog, request);
    const ViewBelow view(dialog, qobject_cast<QWidget *>(request.accessory.data()));
    showFilesInOwnForm(dialog);
    hideTypesOfFolders(dialog, request);
    if (!isAccepted(dialog, request))
        return {};
    return {true, dialog.selectedFiles(), {}};
}

} // namespace window
