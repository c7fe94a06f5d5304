#include "app/script/ScriptEngine.h"
#include "app/script/runner_globals.h"
#include "app/script/script_output.h"
#include "app/window/script_modules.h"

#include "platform/foundation/log.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <cstdio>

namespace {

constexpr int ranToItsEnd = 0;
constexpr int uncaughtError = 1;
constexpr int badCommandLine = 2;

const char usage[] = "Usage: quorlin-script FILE.js [ARG...]\n"
                     "Runs one script module with the service classes of Quorlin.\n";

/** Without a display the windowless platform will do; a platform that the caller named wins. */
void choosePlatform()
{
    const bool hasDisplay = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (!hasDisplay && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

int runScript(const QString &file, const QStringList &arguments)
{
    script::ScriptEngine scripts;
    int status = ranToItsEnd;
    QObject::connect(&scripts, &script::ScriptEngine::uncaughtError, &scripts, [&status](const QString &message) {
        platform::logLine(message);
        status = uncaughtError;
    });
    script::addRunnerGlobals(scripts, arguments);
    window::addFilesModule(scripts);
    const auto module = scripts.importFile(file);
    if (!module)
        scripts.reportUncaught(module.error().message);
    scripts.drain();
    return status;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 2 && qstrcmp(argv[1], "--help") == 0) {
        std::fputs(usage, stdout);
        return ranToItsEnd;
    }
    if (argc < 2 || argv[1][0] == '-') {
        std::fputs(usage, stderr);
        return badCommandLine;
    }
    const QString file = QString::fromLocal8Bit(argv[1]);
    if (!QFileInfo(file).isFile()) {
        platform::logLine(QStringLiteral("Cannot read %1: there is no such file").arg(file));
        return badCommandLine;
    }
    choosePlatform();
    script::installScriptOutput();
    // Qt takes its own options out of the list; the script gets what the caller wrote.
    QStringList arguments;
    for (int i = 2; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    int applicationArgumentCount = 1;
    QGuiApplication application(applicationArgumentCount, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quorlin"));
    return runScript(file, arguments);
}
