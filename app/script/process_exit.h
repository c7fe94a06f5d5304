#pragma once

#include <QJSValue>
#include <QObject>

namespace script {

class ScriptEngine;

/** Ends the process for a script that runs without a window. */
class ProcessExit : public QObject
{
    Q_OBJECT

public:
    explicit ProcessExit(ScriptEngine &scripts);
    Q_INVOKABLE void quit(const QJSValue &arguments);

private:
    ScriptEngine &m_scripts;
};

} // namespace script
