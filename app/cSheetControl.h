#pragma once

#include "platform/foundation/sender.h"

#include <QObject>
#include <QPointer>

/** The sheets of the main window, and the support folder that the user chooses on one of them. Main thread only. */
class cSheetControl : public QObject
{
    Q_OBJECT
    /** The window that all sheets open on. */
    Q_PROPERTY(QObject *wwMainWindow READ mainWindow WRITE setMainWindow)
    Q_PROPERTY(QObject *wwPreferencesWindow READ preferencesWindow WRITE setPreferencesWindow)
    /** Shows the path of the support folder on the preferences sheet. */
    Q_PROPERTY(QObject *tfLibraryFilePath READ libraryFilePath WRITE setLibraryFilePath)

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

    QObject *mainWindow() const { return m_mainWindow; }
    void setMainWindow(QObject *window) { m_mainWindow = window; }
    QObject *preferencesWindow() const { return m_preferencesWindow; }
    void setPreferencesWindow(QObject *window) { m_preferencesWindow = window; }
    QObject *libraryFilePath() const { return m_libraryFilePath; }
    void setLibraryFilePath(QObject *field) { m_libraryFilePath = field; }

private:
    QPointer<QObject> m_mainWindow;
    QPointer<QObject> m_preferencesWindow;
    QPointer<QObject> m_libraryFilePath;
};
