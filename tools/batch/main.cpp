#include "jobs/batch.h"
#include "jobs/output_places.h"
#include "jobs/presets/preset_recipe.h"
#include "jobs/presets/supplied_files.h"
#include "platform/foundation/paths.h"
#include "platform/imageio/load/library_versions.h"
#include "tools/batch/command_line.h"
#include "tools/batch/progress.h"
#include "tools/batch/request.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

enum Exit { Done = 0, SomeFailed = 1, BadRequest = 2, Stopped = 3 };

volatile std::sig_atomic_t stopped = 0;

/** The first signal ends the batch in order, the second one, whichever it is, at once; where nobody listens, the third one. */
void stop(int)
{
    constexpr int impatient = 3;
    stopped = stopped + 1;
    if (stopped == impatient)
        ::_exit(Stopped);
}

int refuse(const QString &sentence)
{
    say(QStringLiteral("quorlin-batch: %1\n").arg(sentence));
    return BadRequest;
}

/** What takes longer than it might, once at the beginning. */
void sayWhatIsReadFirst(const Request &request, const CommandLine &line)
{
    if (!line.isQuiet && !line.from.isEmpty() && jobs::replacesAnything(request.recipe))
        say(QStringLiteral(
            "quorlin-batch: the recipe replaces files, so all inputs are read before the first is done\n"));
    if (!line.isQuiet && line.shards > 1 && line.plan.isEmpty() && jobs::namesNeedPictures(request.recipe))
        say(QStringLiteral("quorlin-batch: the names need what is known of each picture, so this part looks at all of "
                           "them; --plan saves that\n"));
}

int carryOut(Request &request, const CommandLine &line)
{
    jobs::ReportFile report;
    const auto start = addsToReport(line) ? jobs::ReportFile::Start::Added : jobs::ReportFile::Start::Empty;
    if (const QString problem = report.open(line.report, start); !problem.isEmpty())
        return refuse(QStringLiteral("%1: %2").arg(line.report, problem));
    Progress progress(line);
    sayWhatIsReadFirst(request, line);
    bool isWritten = true;
    const auto tellNews = [&request] {
        if (const QString news = request.inputs->news(); !news.isEmpty())
            say(QStringLiteral("quorlin-batch: %1\n").arg(news));
    };
    const jobs::Summary summary = jobs::runBatch(
        request.recipe, *request.inputs, request.options, *request.crew,
        [&](const jobs::ReportLine &each) {
            const int lines = int(request.inputs->known() * request.recipe.outputs.size()) / line.shards;
            progress.expect(lines, request.inputs->areOpen());
            progress.take(each);
            isWritten = report.add(jobs::jsonLine(each, request.options.recipe)) && isWritten;
            return isWritten;
        },
        [&] {
            tellNews();
            return stopped == 0 ? jobs::Stop::No : stopped == 1 ? jobs::Stop::Soon : jobs::Stop::Now;
        });
    tellNews();
    isWritten = report.add(jobs::jsonLine(summary)) && isWritten;
    progress.finish(summary, line.isDryRun);
    if (const QString problem = request.inputs->problem(); !problem.isEmpty()) {
        say(QStringLiteral("quorlin-batch: %1\n").arg(problem));
        return SomeFailed;
    }
    if (!isWritten) {
        say(QStringLiteral("quorlin-batch: %1 can no longer be written\n").arg(line.report));
        return SomeFailed;
    }
    if (stopped)
        return Stopped;
    return summary.failed + summary.notSupported > 0 ? SomeFailed : Done;
}

/** A descriptor that nobody opened must not become the number of a file opened later. */
void openStandardStreams()
{
    for (int descriptor = 0; descriptor <= STDERR_FILENO; ++descriptor)
        if (::fcntl(descriptor, F_GETFD) < 0)
            (void)::open("/dev/null", descriptor == 0 ? O_RDONLY : O_WRONLY);
}

/** Writes to standard output. */
int answer(const QByteArray &text)
{
    const bool isWritten = std::fputs(text.constData(), stdout) >= 0 && std::fflush(stdout) == 0;
    if (!isWritten)
        say(QStringLiteral("quorlin-batch: standard output cannot be written\n"));
    return isWritten ? Done : SomeFailed;
}

/** With what keeps a worker from doing harm, as it has found it on the kernel that runs. */
QByteArray versionText()
{
    QByteArray text = "quorlin-batch " QUORLIN_VERSION "\n" + platform::librariesText().toUtf8();
    const auto active = jobs::confinementOf(jobs::workerProgram());
    if (!active)
        return text + "workers: none can be started\n";
    const auto line = [&text](const char *what, bool isActive) {
        text += QByteArrayLiteral("workers: ") + what + (isActive ? ": active\n" : ": not on this system\n");
    };
    line("no new privileges", active->hasNoNewPrivileges);
    line("file access rules (Landlock)", active->hasFileRules);
    line("system call filter (seccomp)", active->hasCallRules);
    return text;
}

QByteArray presetNames()
{
    QByteArray names;
    for (const jobs::Preset &preset : jobs::allPresets())
        if (jobs::recipeOf(preset))
            names += platform::encodedPath(preset.action + u'/' + preset.name) + '\n';
    for (const jobs::SuppliedRecipe &recipe : jobs::suppliedRecipes())
        names += "Recipe/" + recipe.name.toUtf8() + '\n';
    return names;
}

QStringList argumentsFrom(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(platform::decodedPath(argv[i]));
    return arguments;
}

} // namespace

int main(int argc, char **argv)
{
    const bool hasInput = ::fcntl(STDIN_FILENO, F_GETFD) >= 0;
    const bool hasOutput = ::fcntl(STDOUT_FILENO, F_GETFD) >= 0;
    openStandardStreams();
    QCoreApplication application(argc, argv);
    const CommandLine line = readCommandLine(argumentsFrom(argc, argv));
    if (!line.problem.isEmpty())
        return refuse(line.problem + QStringLiteral("; see quorlin-batch --help"));
    if (!hasOutput &&
        (line.report == QLatin1String("-") || line.asksForHelp || line.asksForVersion || line.asksForPresets))
        return refuse(QStringLiteral("standard output is closed"));
    if (!hasInput && line.from == QLatin1String("-"))
        return refuse(QStringLiteral("standard input is closed"));
    if (line.asksForHelp || line.asksForVersion)
        return answer(line.asksForHelp ? helpText().toUtf8() : versionText());
    if (line.asksForPresets)
        return answer(presetNames());
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, stop);
    for (const int signal : {SIGPIPE, SIGXFSZ}) // write errors are reported by the call that writes
        std::signal(signal, SIG_IGN);
    Request request = requestFrom(line);
    return request.problem.isEmpty() ? carryOut(request, line) : refuse(request.problem);
}
