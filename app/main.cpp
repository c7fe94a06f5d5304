#include "app/setup/command_line.h"
#include "app/setup/crash_file.h"
#include "app/window/start_up.h"

#include "platform/foundation/log.h"
#include "platform/imageio/load/library_versions.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>

namespace {

constexpr int allIsWell = 0;
constexpr int cannotStart = 1;
constexpr int badCommandLine = 2;

int answer(std::FILE *file, const QString &text, int status)
{
    std::fputs(qUtf8Printable(text), file);
    return status;
}

/** Options are answered without a window system; nothing if a window is wanted. */
std::optional<int> answerTo(const app::CommandLine &line)
{
    switch (line.wish) {
    case app::CommandLine::Wish::Help:
        return answer(stdout, app::usage(), allIsWell);
    case app::CommandLine::Wish::Version:
        return answer(stdout, QStringLiteral("Quorlin " QUORLIN_VERSION "\n") + platform::librariesText(), allIsWell);
    case app::CommandLine::Wish::Unknown:
        return answer(
            stderr,
            QStringLiteral("quorlin: there is no option %1; quorlin --help shows which there are.\n").arg(line.unknown),
            badCommandLine);
    case app::CommandLine::Wish::Window:
        break;
    }
    return std::nullopt;
}

QStringList s_heldMessages;
QString s_platform; ///< the window system that was asked for

/** The toolkit aborts if it finds no window system; the user gets a sentence instead. */
void holdMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    s_heldMessages.append(message);
    if (type != QtFatalMsg)
        return;
    const auto named = [](const char *variable) { return QString::fromLocal8Bit(qgetenv(variable)); };
    const QString sentence = app::noDisplaySentence(s_platform, named("WAYLAND_DISPLAY"), named("DISPLAY"));
    std::_Exit(answer(stderr, sentence + u'\n', cannotStart));
}

std::unique_ptr<QApplication> makeApplication(int &argc, char **argv)
{
    const QtMessageHandler before = qInstallMessageHandler(holdMessage);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(before);
    for (const QString &message : std::as_const(s_heldMessages))
        qWarning("%s", qUtf8Printable(message));
    s_heldMessages.clear();
    return application;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const app::CommandLine line = app::commandLineFrom(arguments);
    if (const auto status = answerTo(line))
        return *status;
    s_platform = line.platform.isEmpty() ? QString::fromLocal8Bit(qgetenv("QT_QPA_PLATFORM")) : line.platform;
    const auto application = makeApplication(argc, argv);
    // Messages of the services mean nothing to somebody who started the program from a terminal.
    platform::logToSystem("quorlin");
    app::keepCrashReports();
    window::StartUp startUp(*application);
    // The user-interface scripts first, then the application loop.
    if (!startUp.loadScripts(app::pathsAmong(QCoreApplication::arguments().mid(1)), line.opening)) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(startUp.problem()));
        return cannotStart;
    }
    return QApplication::exec();
}
