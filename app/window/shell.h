#pragma once

#include "app/jobs/job_driver.h"
#include "app/seam/function.h"
#include "app/services/ZtFFullScreen.h"
#include "app/window/desktop_signs.h"
#include "app/window/forms/sheet_host.h"
#include "app/window/forms/ui_form.h"
#include "app/window/look/theme.h"
#include "app/window/main_frame.h"
#include "app/window/pictures/drop_target.h"
#include "app/window/preview/compare_preview.h"
#include "app/window/preview/size_estimate.h"
#include "app/window/save_choice.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>
#include <QWidget>

#include <memory>

namespace window {

/** What a user-interface script cannot do by itself: windows from .ui files, timers, jobs, dialogs, the desktop. */
class Shell : public QObject
{
    Q_OBJECT
    Q_PROPERTY(window::Theme *theme READ theme CONSTANT)
    Q_PROPERTY(window::DesktopSigns *desktop READ desktop CONSTANT)
    Q_PROPERTY(QString version READ version CONSTANT)
    Q_PROPERTY(QStringList arguments READ arguments CONSTANT)
    Q_PROPERTY(QString opening READ opening CONSTANT)
    Q_PROPERTY(QString interfaceFolder READ interfaceFolder CONSTANT)
    /** False once a change of the settings could not be saved. */
    Q_PROPERTY(bool keepsSettings READ keepsSettings)
    /** Whether the main window fills the screen. */
    Q_PROPERTY(bool fullScreen READ isFullScreen)

public:
    /** @param interfaceFolder  the folder of main.js; .ui files are named relative to it */
    Shell(const QString &interfaceFolder, Theme &theme, QObject *parent = nullptr);
    ~Shell() override;
    Q_DISABLE_COPY_MOVE(Shell)

    Theme *theme() const { return &m_theme; }
    /** What the desktop is told about jobs. */
    DesktopSigns *desktop() { return &m_desktop; }
    bool keepsSettings() const;
    QString version() const { return QStringLiteral(QUORLIN_VERSION); }

    /** The folder of main.js, without "/" at its end. */
    QString interfaceFolder() const { return m_folder; }
    /** Files and folders that the program was started with. */
    QStringList arguments() const { return m_arguments; }
    QString opening() const { return m_opening; }
    void setArguments(const QStringList &arguments, const QString &opening)
    {
        m_arguments = arguments;
        m_opening = opening;
    }

    /** A window from a file such as "windows/main/main.ui"; throws an Error that names the file if it cannot be loaded.
     */
    Q_INVOKABLE window::Form *loadForm(const QString &file);
    /** Gives the fields of the forms one left edge; see Form::alignFields(). */
    Q_INVOKABLE void alignFields(const QObjectList &forms);
    /** Covers the window of the form while files are dragged over it. */
    Q_INVOKABLE window::DropTarget *dropTarget(window::Form *form);
    /** A picture view that covers the window of the form; hidden at first. */
    Q_INVOKABLE window::ComparePreview *largePreview(window::Form *form);
    /** Lays a widget over all of its window and gives it the focus. */
    Q_INVOKABLE void cover(QWidget *widget);
    /** The window of the form as services that open sheets know it; see SheetHost. */
    Q_INVOKABLE window::SheetHost *sheetHost(window::Form *form);

    Q_INVOKABLE window::ScriptTimer *timer(const script::Function &handler);
    Q_INVOKABLE window::JobDriver *job();
    Q_INVOKABLE window::SizeEstimate *sizeEstimate();
    Q_INVOKABLE window::SaveChoice *saveChoice();

    /**
     * Asks the user and waits for the answer.
     *
     * @param question  {title, text, detail, buttons: [text, ...], initial (index), escape (index), check (text)}; any
     *                  other key, or another type of value, is a TypeError
     * @return {button (index), checked}
     */
    Q_INVOKABLE QVariantMap ask(const QVariantMap &question);
    /** The folder that was chosen, or null. */
    Q_INVOKABLE QVariant chooseFolder(const QString &title, const QString &start);
    /** The same with parts of a form below the folders. */
    Q_INVOKABLE QVariant chooseFolderWith(const QString &title, const QString &start, window::Form *form);
    /** The paths of the chosen files, which have one of the extensions; without extensions, any files. */
    Q_INVOKABLE QStringList chooseFiles(const QString &title, const QString &folder, const QStringList &extensions);
    /** The path of the chosen file, which has one of the extensions, or null. */
    Q_INVOKABLE QVariant chooseFile(const QString &title, const QString &folder, const QStringList &extensions);
    /** The path of a file to write, or null. */
    Q_INVOKABLE QVariant chooseNewFile(const QString &title, const QString &folder, const QString &name,
                                       const QString &extension);
    /** Shows a folder in the file manager; false if there is none. */
    Q_INVOKABLE bool openFolder(const QString &folder);
    /** Opens a file with the desktop's program for its type; false if there is none. */
    Q_INVOKABLE bool openFile(const QString &path);
    /** A temporary folder that is removed when the program ends; empty if none can be made. */
    Q_INVOKABLE QString temporaryFolder();
    /** Shows a file in its folder; see window::showInFolder(). */
    Q_INVOKABLE void showInFolder(const QString &path);
    /** Local paths on the clipboard: copied files, or lines of text that are paths. */
    Q_INVOKABLE QStringList clipboardPaths() const;
    /** Puts a text on the clipboard. */
    Q_INVOKABLE void copyText(const QString &text);
    Q_INVOKABLE void quit();

    /** The main window of the program, once a script has made one. */
    Form *mainForm() const { return m_mainForm; }
    /** Sets which form is the main window, so that it can fill the screen. */
    Q_INVOKABLE void setMainForm(window::Form *form);
    /** The window fills the screen, without its menu bar, or returns to its former place. */
    Q_INVOKABLE void toggleFullScreen();
    bool isFullScreen() const { return m_fullScreen.property("fullscreenState").toInt() != 0; }

    /** Deletes all loaded windows. */
    void closeAll();

Q_SIGNALS:
    /** A change of the settings could not be saved; emitted once in the life of the program. */
    void settingsNotKept();

private:
    QString m_folder;
    Theme &m_theme;
    DesktopSigns m_desktop;
    QStringList m_arguments;
    QString m_opening;
    QList<QPointer<QWidget>> m_windows;
    Form *m_mainForm = nullptr;
    ZtFFullScreen m_fullScreen;
    std::unique_ptr<MainFrame> m_mainFrame;
    std::unique_ptr<QTemporaryDir> m_temporary;
};

} // namespace window
