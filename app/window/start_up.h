#pragma once

#include "app/window/long_wait_note.h"

#include <QString>
#include <QStringList>

#include <memory>

class QApplication;

namespace app {
class Translations;
}

namespace script {
class ScriptEngine;
}

namespace window {

class Shell;
class Theme;

/** Everything before the application loop: theme, panels, script engine, and the scripts themselves. */
class StartUp
{
public:
    explicit StartUp(QApplication &application);
    ~StartUp();

    /**
     * Loads main.js of the interface folder, which opens the main window.
     *
     * @param arguments  files and folders that the program was started with
     * @param opening  "recipe", "watch", or nothing: what the window opens with
     * @return false if a script failed to load; the user has been told then, with file and line
     */
    bool loadScripts(const QStringList &arguments, const QString &opening = QString());

    /** Why loadScripts() failed; empty if it did not. */
    QString problem() const { return m_problem; }
    Shell &shell() { return *m_shell; }
    script::ScriptEngine &scripts() { return *m_scripts; }

private:
    void useLanguage();

    QString m_problem;
    std::unique_ptr<app::Translations> m_translations;
    LongWaitNote m_longWait;
    std::unique_ptr<Theme> m_theme;
    std::unique_ptr<Shell> m_shell;
    std::unique_ptr<script::ScriptEngine> m_scripts;
};

/** Tells the user, in a separate window, that a script could not be loaded. Waits until it is closed. */
void tellFatalProblem(const QString &problem);

} // namespace window
