#pragma once

#include "platform/values/sender.h"

#include <QObject>
#include <QPointer>

/**
 * The sheets of the main window (preferences, new version, help on one thing), the support folder that the user chooses on one
 * of them, and texts by key. Outlets that were never set are ignored. Main thread only.
 */
class cSheetControl : public QObject
{
    Q_OBJECT
    /** The window that all sheets open on. */
    Q_PROPERTY(QObject *wwMainWindow MEMBER m_mainWindow)
    Q_PROPERTY(QObject *wwPreferencesWindow MEMBER m_preferencesWindow)
    Q_PROPERTY(QObject *wwApplicationVersionWindow MEMBER m_versionWindow)
    /** Shows the path of the support folder on the preferences sheet. */
    Q_PROPERTY(QObject *tfLibraryFilePath MEMBER m_libraryFilePath)
    Q_PROPERTY(QObject *tfNewApplicationVersion MEMBER m_newVersion)
    Q_PROPERTY(QObject *wwApplicationInfoSheet MEMBER m_infoSheet)
    Q_PROPERTY(QObject *tvInfoDescription MEMBER m_infoDescription)
    Q_PROPERTY(QObject *tfInfoTitle MEMBER m_infoTitle)
    Q_PROPERTY(QObject *tvWhatsNew MEMBER m_whatsNew)

public:
    Q_INVOKABLE explicit cSheetControl(QObject *parent = nullptr);

    /**
     * Asks for the folder in which the support files are set up, sets them up and shows its path. Patterns from an
     * earlier setup are replaced by those of the program. Nothing happens if the user cancels. Modal.
     */
    Q_INVOKABLE void chooseLibraryDestination(platform::Sender sender);

    /** The same at the first start: the panel explains its purpose, and existing patterns stay as they are. */
    Q_INVOKABLE void setLibraryDestination();

    /** Shows the path of the support folder, or says that it is gone, and opens the preferences sheet. */
    Q_INVOKABLE void hCallPreferencesWw(platform::Sender sender);
    Q_INVOKABLE void closePreferencesSheetObjC(platform::Sender sender);

    /**
     * Opens the new-version sheet with "LABEL VERSION" as its line. The notes are appended to those already shown, in
     * one change of the text.
     */
    Q_INVOKABLE void hCallApplicationUpdate(const QString &label, const QString &version, const QString &notes);
    Q_INVOKABLE void closeApplicationVersionSheetObjC(platform::Sender sender);

    /** Opens the product page (see app::productPage()) if one is configured, and closes the new-version sheet. */
    Q_INVOKABLE void goToProductPage(platform::Sender sender);

    /**
     * Opens the info sheet with the texts of two keys; a key without a text is shown itself.
     *
     * @param caption  unused: the sheet has a fixed caption
     *
     * The message replaces as many UTF-16 units at the beginning of the shown text as the title is long, or all of it
     * if it is shorter.
     */
    Q_INVOKABLE void hInfoWindow(const QString &caption, const QString &titleKey, const QString &messageKey);
    Q_INVOKABLE void closeApplicationInfoSheetObjC(platform::Sender sender);

    /** Closes @p sheet; code and context are ignored. */
    Q_INVOKABLE void didEndSheet(QObject *sheet, int returnCode, platform::Sender contextInfo);

    /** The text of a key in the main strings table; @p defaultValue, or without one the key, if there is none. */
    Q_INVOKABLE QString hGetTranslation(const QString &key, const QString &defaultValue) const;

    // The info sheet about one thing each.
    Q_INVOKABLE void mySimulationMode(platform::Sender sender);
    Q_INVOKABLE void hTextWMPresetsInfo(platform::Sender sender);
    Q_INVOKABLE void hImageWMPresetsInfo(platform::Sender sender);
    Q_INVOKABLE void hWMDestinationFolderInfo(platform::Sender sender);
    Q_INVOKABLE void hLibCheckboxInfo(platform::Sender sender);

private:
    void showInfo(const QString &titleKey, const QString &messageKey);

    QPointer<QObject> m_mainWindow;
    QPointer<QObject> m_preferencesWindow;
    QPointer<QObject> m_versionWindow;
    QPointer<QObject> m_libraryFilePath;
    QPointer<QObject> m_newVersion;
    QPointer<QObject> m_infoSheet;
    QPointer<QObject> m_infoDescription;
    QPointer<QObject> m_infoTitle;
    QPointer<QObject> m_whatsNew;
};
