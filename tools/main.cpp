#include "app/modules/file_modules.h"
#include "app/script/ScriptEngine.h"
#include "app/script/runner_globals.h"
#include "app/script/script_output.h"
#include "app/setup/translations.h"

#include "platform/foundation/log.h"
#include "platform/imageio/load/library_versions.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <array>
#include <cstdio>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int ranToItsEnd = 0;
constexpr int uncaughtError = 1;
constexpr int badCommandLine = 2;

const char usage[] = "Usage: quorlin-script FILE.js [ARG...]\n"
                     "Runs one script module with the service classes of Quorlin.\n"
                     "\n"
                     "  --help     shows this text\n"
                     "  --version  shows the version\n";

/** Whether somebody listens where the environment says: the variable outlives the session that set it. */
bool isWaylandThere()
{
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    const QByteArray path = name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name;
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (name.isEmpty() || size_t(path.size()) >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool answers =
        socket >= 0 && ::connect(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    if (socket >= 0)
        ::close(socket);
    return answers;
}

/**
 * The option that names the platform: without a display, or with one that does not answer, the windowless one will do. A
 * platform that the caller named wins, and the environment of programs that a script starts stays as it is.
 */
QByteArray platformOption()
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return {};
    QByteArray platforms;
    if (isWaylandThere())
        platforms += "wayland;";
    if (!qEnvironmentVariableIsEmpty("DISPLAY"))
        platforms += "xcb;";
    return platforms + "offscreen";
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
    script::addFileModules(scripts);
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
    if (argc == 2 && qstrcmp(argv[1], "--version") == 0) {
        const QString text = QStringLiteral("quorlin-script " QUORLIN_VERSION "\n") + platform::librariesText();
        std::fputs(qUtf8Printable(text), stdout);
        return ranToItsEnd;
    }
    if (argc < 2 || argv[1][0] == '-') {
        std::fputs(usage, stderr);
        return badCommandLine;
    }
    const QString file = QString::fromLocal8Bit(argv[1]);
    if (!QFileInfo(file).isFile()) {
        platform::logLine(QStringLiteral("Cannot read %1: no such file").arg(file));
        return badCommandLine;
    }
    script::installScriptOutput();
    // Qt takes its own options out of the list; the script gets what the caller wrote.
    QStringList arguments;
    for (int i = 2; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    QByteArray platform = platformOption();
    QByteArray option = "-platform";
    std::array<char *, 4> applicationArguments = {argv[0], option.data(), platform.data(), nullptr};
    int count = platform.isEmpty() ? 1 : 3;
    QGuiApplication application(count, applicationArguments.data());
    QCoreApplication::setApplicationName(QStringLiteral("quorlin"));
    const app::Translations english(QStringLiteral("en"));
    return runScript(file, arguments);
}
