#include "app/services/cSheetControl.h"

#include "app/setup/configuration.h"
#include "app/setup/support_folder.h"

#include "platform/controls/controls.h"
#include "platform/controls/panels.h"
#include "platform/controls/sheets.h"
#include "platform/desktop/strings_tables.h"
#include "platform/desktop/workspace.h"

#include <optional>

namespace {

/** One folder, which may be created in the panel; nothing if the user cancels. */
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

QString shown(const QString &text)
{
    return text.isNull() ? QStringLiteral("(null)") : text;
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

void cSheetControl::closePreferencesSheetObjC(platform::Sender)
{
    platform::endSheet(m_preferencesWindow, m_mainWindow);
}

void cSheetControl::hCallApplicationUpdate(const QString &label, const QString &version, const QString &notes)
{
    platform::setTextOf(m_newVersion, shown(label) + u' ' + shown(version));
    platform::setTextOf(m_whatsNew, platform::textOf(m_whatsNew) + notes);
    platform::beginSheet(m_mainWindow, m_versionWindow);
}

void cSheetControl::closeApplicationVersionSheetObjC(platform::Sender)
{
    platform::endSheet(m_versionWindow, m_mainWindow);
}

void cSheetControl::goToProductPage(platform::Sender)
{
    platform::openLocation(app::productPage());
    platform::endSheet(m_versionWindow, m_mainWindow);
}

void cSheetControl::hInfoWindow(const QString &, const QString &titleKey, const QString &messageKey)
{
    const QString title = hGetTranslation(titleKey, titleKey);
    const QString message = hGetTranslation(messageKey, messageKey);
    platform::beginSheet(m_mainWindow, m_infoSheet);
    platform::setTextOf(m_infoTitle, title);
    // As long as the title, not the text that is shown: what exceeds the text's end is not part of the range.
    platform::setTextOf(m_infoDescription, message + platform::textOf(m_infoDescription).mid(title.size()));
}

void cSheetControl::closeApplicationInfoSheetObjC(platform::Sender)
{
    platform::endSheet(m_infoSheet, m_mainWindow);
}

void cSheetControl::didEndSheet(QObject *sheet, int, platform::Sender)
{
    platform::orderOutSheet(sheet);
}

QString cSheetControl::hGetTranslation(const QString &key, const QString &defaultValue) const
{
    return platform::localizedText(key, defaultValue);
}

void cSheetControl::showInfo(const QString &titleKey, const QString &messageKey)
{
    hInfoWindow(QStringLiteral("My information"), titleKey, messageKey);
}

void cSheetControl::mySimulationMode(platform::Sender)
{
    showInfo(QStringLiteral("isSimulationMode"), QStringLiteral("isSimulationModeMessage"));
}

void cSheetControl::hTextWMPresetsInfo(platform::Sender)
{
    showInfo(QStringLiteral("isSave"), QStringLiteral("isSaveMessage"));
}

// Pictures and texts are saved in the same way, so this is the same sheet.
void cSheetControl::hImageWMPresetsInfo(platform::Sender sender)
{
    hTextWMPresetsInfo(sender);
}

void cSheetControl::hWMDestinationFolderInfo(platform::Sender)
{
    showInfo(QStringLiteral("isChooseFolder"), QStringLiteral("isChooseFolderMessage"));
}

void cSheetControl::hLibCheckboxInfo(platform::Sender)
{
    showInfo(QStringLiteral("fromLib"), QStringLiteral("fromLibMessage"));
}
