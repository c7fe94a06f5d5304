#include "app/cSheetControl.h"

#include "app/support_folder.h"

#include "platform/desktop/controls.h"
#include "platform/desktop/panels.h"
#include "platform/desktop/sheets.h"

#include <optional>

namespace {

/** One folder, which may be made in the panel; nothing if the user cancels. */
std::optional<QString> chosenFolder(const QString &message)
{
    platform::PanelRequest request;
    request.choosesFiles = false;
    request.choosesFolders = true;
    request.createsFolders = true;
    request.message = message;
    const platform::PanelAnswer answer = platform::runPanel(request);
    if (!answer.accepted || answer.paths.isEmpty())
        return std::nullopt;
    return answer.paths.last();
}

void chooseFor(QObject *pathField, const QString &message, app::OldPatterns old)
{
    const std::optional<QString> folder = chosenFolder(message);
    if (!folder)
        return;
    platform::setTextOf(pathField, *folder);
    app::setUpSupportFolder(*folder, app::suppliedPatterns(), old);
}

} // namespace

cSheetControl::cSheetControl(QObject *parent) : QObject(parent) {}

void cSheetControl::chooseLibraryDestination(platform::Sender)
{
    chooseFor(m_libraryFilePath, QString(), app::OldPatterns::Replace);
}

void cSheetControl::setLibraryDestination()
{
    chooseFor(m_libraryFilePath, QStringLiteral("*** FIRST: Choose a root support folder please: ***"),
              app::OldPatterns::Keep);
}

void cSheetControl::hCallPreferencesWw(platform::Sender)
{
    if (app::isSupportFolderKnown())
        platform::setTextOf(m_libraryFilePath,
                            app::supportFolder().value_or(QStringLiteral(
                                "Oeps! Your previous defined folder has gone!?\rSelect a new location please.")));
    platform::beginSheet(m_mainWindow, m_preferencesWindow);
}
