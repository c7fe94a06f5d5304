#pragma once

#include "platform/values/sender.h"

#include <QObject>
#include <QPointer>

/**
 * The sheets of the main window (preferences, new version, help on one thing), the support folder that the user chooses on one
 * of them, and texts by key. Outlets that were never set are passed over. Main thread only.
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
     * Asks for the folder that the support files go below, sets them up there and shows its path. Patterns that are there from
     * an earlier time are replaced by those of the program. Nothing happens if the user cancels. Modal.
     */
    Q_INVOKABLE void chooseLibraryDestination(platform::Sender sender);

    /** The same at the first start: the panel says what it is for, and patterns that are there stay as they are. */
    Q_INVOKABLE void setLibraryDestination();

    /** Shows the path of the support folder, or that it is gone, and opens the preferences sheet. */
    Q_INVOKABLE void hCallPreferencesWw(platform::Sender sender);
    Q_INVOKABLE void closePreferencesSheetObjC(platform::Sender sender);

    /**
     * Opens the new-version sheet with "LABEL VERSION" as its line. The notes go behind those that are there already, in one
     * change of the text.
     */
    Q_INVOKABLE void hCallApplicationUpdate(const QString &label, const QString &version, const QString &notes);
    Q_INVOKABLE void closeApplicationVersionSheetObjC(platform::Sender sender);

    /** Opens the product page (see app::productPage()), where one is configured, and closes the new-version sheet. */
    Q_INVOKABLE void goToProductPage(platform::Sender sender);

    /**
     * Opens the info sheet with the texts of two keys; a key without a text stands for itself.
     *
     * @param caption  not used: the sheet's caption is its own
     *
     * The message takes the place of as many UTF-16 units at the beginning of the text that is shown as the title is long, of
     * all where that text is shorter.
     */
    Q_INVOKABLE void hInfoWindow(const QString &caption, const QString &titleKey, const QString &messageKey);
    Q_INVOKABLE void closeApplicationInfoSheetObjC(platform::Sender sender);

    /** Takes @p sheet off the screen; code and context are not looked at. */
    Q_INVOKABLE void didEndSheet(QObject *sheet, int returnCode, platform::Sender contextInfo);

    /** The text of a key in the main strings table; @p defaultValue, or without one the key, where there is none. */
    Q_INVOKABLE QString hGetTranslation(const QString &key, const QString &defaultValue) const;

    // The info sheet on one thing each.
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
