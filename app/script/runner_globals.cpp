#include "app/script/runner_globals.h"

#include "app/script/ScriptEngine.h"
#include "app/script/process_exit.h"
#include "app/seam/seam.h"

#include "platform/foundation/raised.h"

#include <QJSEngine>

#include <cstdio>
#include <unistd.h>

namespace script {

ProcessExit::ProcessExit(ScriptEngine &scripts) : QObject(&scripts), m_scripts(scripts) {}

void ProcessExit::quit(const QJSValue &arguments)
{
    m_scripts.seam().guarded([&] {
        const int received = arguments.property(QStringLiteral("length")).toInt();
        const QJSValue code = received == 0 ? QJSValue(0) : arguments.property(0);
        if (received > 1)
            throw platform::Raised::typeError(QStringLiteral("quit takes 1 argument but received %1").arg(received));
        const int status = m_scripts.seam()
                               .values()
                               .toNative(code, Kind::Whole, QMetaType::fromType<int>(), QStringLiteral("code"))
                               .toInt();
        if (status < 0 || status > 255)
            throw platform::Raised::rangeError(
                QStringLiteral("Expected a whole number from 0 to 255 for code but received %1").arg(status));
        // No script code may run after this, not even a finally block, and every file is complete already.
        std::fflush(nullptr);
        ::_exit(status);
        return QJSValue();
    });
}

void addRunnerGlobals(ScriptEngine &scripts, const QStringList &arguments)
{
    QJSEngine &engine = scripts.engine();
    const QJSValue freeze = engine.evaluate(QStringLiteral("Object.freeze"));
    const QJSValue wrap =
        engine.evaluate(QStringLiteral("(function (host) { return function quit(...values) { host.quit(values); }; })"),
                        QStringLiteral("quorlin:facade"));
    const QJSValue list = scripts.seam().values().toScript(arguments);
    engine.globalObject().setProperty(QStringLiteral("scriptArguments"), freeze.call({list}));
    engine.globalObject().setProperty(QStringLiteral("quit"), wrap.call({engine.newQObject(new ProcessExit(scripts))}));
}

} // namespace script
