#pragma once

#include "app/script/ScriptEngine.h"

#include <QStringList>
#include <QTemporaryDir>

/** Runs pieces of script as modules in a separate folder and collects what they report. */
class ScriptRun
{
public:
    ScriptRun();

    /**
     * Runs @p body, from line 2 on, as a module that has imported everything there is and made an EchoService called echo.
     * What it hands to report(value) is in reports afterwards as JSON; reportError(function) adds the value of the
     * function, or "NAME: MESSAGE" of what it throws. False if the module itself failed.
     */
    bool run(const QString &body);

    /** Writes @p text to a file of the folder and runs it as a module. */
    bool runFile(const QString &name, const QString &text);
    void write(const QString &name, const QString &text) const;
    QString pathOf(const QString &name) const { return m_folder.filePath(name); }

    /** The value of one expression as JSON, or the error it throws as "NAME: MESSAGE". */
    QString valueOf(const QString &expression);

    script::ScriptEngine &engine() { return m_engine; }
    QStringList reports;
    QStringList uncaught; ///< errors that had nowhere to go
    QString error;        ///< of the last module, empty if there was none
    QString lastFile;     ///< the path of the last module

private:
    QTemporaryDir m_folder;
    script::ScriptEngine m_engine;
    int m_count = 0;
};
