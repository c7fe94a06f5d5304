#pragma once

#include "app/window/pictures/picture_table.h"
#include "app/window/shell.h"
#include "app/window/start_up.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QTemporaryDir>

#include <functional>
#include <optional>

/**
 * The program with its main window, as a person would work it: finds controls by name, waits for what the window does.
 * Settings and logs go to a separate folder.
 */
class WindowDriver
{
public:
    /**
     * @param home  where settings and logs are, to be found again by another process; by default a folder that is
     * removed with the driver
     */
    explicit WindowDriver(QApplication &application, const QString &home = QString());
    ~WindowDriver();

    /** The program with the interface of the clone. */
    static std::unique_ptr<WindowDriver> started(const QString &home = QString());
    /** The same, with one action chosen. */
    static std::unique_ptr<WindowDriver> showing(const char *action);
    /** A folder of the person's own for what the program is given; made on first use. */
    QString inputFolder() const;

    /** Ends the program and starts it again, with the same settings. */
    /** @param opening  what the desktop asked for: "recipe", "watch" or nothing */
    void startAgain(const QString &opening = QString());

    QMainWindow &window();
    window::StartUp &startUp() { return *m_startUp; }
    window::PictureTable &pictures() { return *control<window::PictureTable>("pictures"); }

    /** The control of that name, the visible one if several panes have one; ends the test if there is none. */
    template<typename T> T *control(const char *name)
    {
        const QList<T *> found = window().findChildren<T *>(QString::fromLatin1(name));
        if (found.isEmpty())
            qFatal("no control %s", name);
        for (T *each : found)
            if (isShown(each))
                return each;
        return found.constFirst();
    }

    /** Chooses an action in the sidebar. */
    void show(const char *action);

    /** Clicks as soon as the button can be clicked, like a person: a plan is shown row by row before it can be started. */
    void click(const char *button);
    void trigger(const char *action);
    /** Chooses an entry of a combo box by the value behind it, as a person would. */
    void choose(const char *box, const QString &value);
    /** Triggers an entry of the menu beside the presets. */
    void choosePresetEntry(const char *text);
    QString text(const char *label) { return control<QLabel>(label)->text(); }
    /** The cell of the list in row @p row, in the order of adding. */
    QString cell(int row, int column);

    /** Drops files and folders onto the window. */
    void drop(const QStringList &paths);
    /** Lets the window work until the condition holds; false after @p timeoutMs. */
    bool waitFor(const std::function<bool()> &condition, int timeoutMs = 20000);
    /** Waits until a run has ended and its summary is shown; returns the summary. */
    QString waitForSummary();

    /** Clicks a button of the next message box, by its text. */
    static void answerNextQuestion(const QString &button);
    /** Answers every panel from now on with these paths, until the program starts again. */
    static void answerPanels(const QStringList &paths);

    QString folder() const { return m_folder; }

private:
    static bool isShown(const QObject *object);

    QApplication &m_application;
    std::optional<QTemporaryDir> m_home;
    QString m_folder;
    std::unique_ptr<window::StartUp> m_startUp;
};
