#include "image/recipe/recipe_reader.h"
#include "jobs/batch.h"
#include "jobs/presets/preset_recipe.h"
#include "platform/disk/item_identity.h"
#include "platform/file/atomic_file.h"
#include "tools/batch/command_line.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {

enum Exit { Done = 0, SomeFailed = 1, BadRequest = 2, Stopped = 3 };

volatile std::sig_atomic_t stopped = 0;

/** The first signal ends the batch in order, the second one at once. */
void stop(int signal)
{
    stopped = 1;
    std::signal(signal, SIG_DFL);
}

int refuse(const QString &sentence)
{
    std::fprintf(stderr, "quorlin-batch: %s\n", qUtf8Printable(sentence));
    return BadRequest;
}

/** Names in a file or on standard input, one a line or separated by NUL. */
std::optional<QStringList> namesFrom(const CommandLine &line)
{
    QFile file(line.from);
    const bool isOpen =
        line.from == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen)
        return std::nullopt;
    QStringList names;
    for (QByteArray name : file.readAll().split(line.isFromSeparatedByNul ? '\0' : '\n')) {
        if (!line.isFromSeparatedByNul && name.endsWith('\r'))
            name.chop(1);
        if (!name.isEmpty())
            names.append(QFile::decodeName(name));
    }
    return names;
}

/** Says on standard error how far the batch has come. */
class Progress
{
public:
    Progress(const CommandLine &line, int lines) : m_lines(lines), m_isQuiet(line.isQuiet)
    {
        const bool isTerminal = ::isatty(STDERR_FILENO) == 1;
        m_isShown = line.progress == CommandLine::Progress::Always ||
                    (line.progress == CommandLine::Progress::Auto && isTerminal && !line.isQuiet);
        m_timer.start();
    }

    void take(const jobs::ReportLine &line)
    {
        ++m_done;
        const bool isFailure = line.status == jobs::LineStatus::Failed || line.status == jobs::LineStatus::NotSupported;
        m_failed += isFailure;
        if (isFailure) {
            clear();
            std::fprintf(stderr, "%s: %s\n", qUtf8Printable(line.input), qUtf8Printable(line.reason));
        }
        if (m_isShown)
            show();
    }

    void finish(const jobs::Summary &summary, bool isPlan)
    {
        clear();
        if (!m_isQuiet)
            std::fprintf(stderr, "%d %s, %d failed, %d not supported, %d skipped\n", summary.ok,
                         isPlan ? "planned" : "done", summary.failed, summary.notSupported, summary.skipped);
    }

private:
    void show()
    {
        constexpr qint64 milliseconds = 1000;
        const qint64 left = m_timer.elapsed() * (m_lines - m_done) / qMax(m_done, 1) / milliseconds;
        std::fprintf(stderr, "\r\033[K%d of %d, %lld s left, %d failed", m_done, m_lines, static_cast<long long>(left),
                     m_failed);
        std::fflush(stderr);
        m_isDirty = true;
    }

    void clear()
    {
        if (m_isDirty)
            std::fputs("\r\033[K", stderr);
        m_isDirty = false;
    }

    QElapsedTimer m_timer;
    int m_lines;
    int m_done = 0;
    int m_failed = 0;
    bool m_isQuiet;
    bool m_isShown = false;
    bool m_isDirty = false;
};

/** What was asked for, read and checked: nothing has been written yet. */
struct Request
{
    image::Recipe recipe;
    QList<jobs::Input> inputs;
    jobs::BatchOptions options;
    QString problem;
};

Request readReports(Request request, const CommandLine &line)
{
    if (!line.plan.isEmpty()) {
        request.options.plan = jobs::EarlierReport::read(line.plan);
        if (!request.options.plan)
            request.problem = QStringLiteral("%1 cannot be read").arg(line.plan);
        else if (request.options.plan->firstRecipe() != request.options.recipe)
            request.problem = QStringLiteral("%1 is the plan of another recipe").arg(line.plan);
    }
    if (!line.resume.isEmpty()) {
        request.options.resumed = jobs::EarlierReport::read(line.resume);
        if (!request.options.resumed)
            request.problem = QStringLiteral("%1 cannot be read").arg(line.resume);
    }
    return request;
}

/** The bytes of the recipe's file, or of the one that a preset would be. */
platform::Result<QByteArray> recipeFile(const CommandLine &line)
{
    if (line.preset.isEmpty())
        return platform::readFile(QDir::current().absoluteFilePath(line.recipe));
    const std::optional<jobs::Preset> preset = jobs::presetNamed(line.preset);
    if (preset)
        return jobs::recipeOf(*preset);
    return platform::failure(platform::ErrorCode::NotFound,
                             QStringLiteral("there is no preset \"%1\"; see --list-presets").arg(line.preset));
}

Request requestFrom(const CommandLine &line)
{
    Request request;
    const auto file = recipeFile(line);
    if (!file) {
        request.problem = file.error().message;
        return request;
    }
    const auto recipe = image::readRecipe(*file, QFileInfo(line.recipe).absolutePath());
    if (!recipe) {
        request.problem =
            QStringLiteral("%1: %2").arg(line.preset.isEmpty() ? line.recipe : line.preset, recipe.error().message);
        return request;
    }
    request.recipe = *recipe;
    request.options.recipe = jobs::recipeName(*file);
    QStringList names = line.inputs;
    if (!line.from.isEmpty()) {
        const std::optional<QStringList> more = namesFrom(line);
        if (!more) {
            request.problem = QStringLiteral("%1 cannot be read").arg(line.from);
            return request;
        }
        names += *more;
    }
    request.inputs = jobs::inputsFrom(names);
    if (!line.to.isEmpty())
        request.options.destination = {QDir::cleanPath(QDir::current().absoluteFilePath(line.to)), line.keepsTree};
    request.options.isDryRun = line.isDryRun;
    request.options.shard = line.shard;
    request.options.shards = line.shards;
    return readReports(std::move(request), line);
}

bool isSameFile(const QString &one, const QString &other)
{
    return !one.isEmpty() && QFileInfo(one).absoluteFilePath() == QFileInfo(other).absoluteFilePath();
}

/** Whether the report would be written over something that is read. */
bool wouldLoseAFile(const Request &request, const CommandLine &line)
{
    const QString report = platform::targetIdentity(QDir::current().absoluteFilePath(line.report));
    if (line.report.isEmpty() || line.report == QLatin1String("-") || report.isEmpty())
        return false;
    QStringList read = {line.recipe, line.plan, line.from};
    for (const jobs::Input &input : request.inputs)
        read.append(input.path);
    read.removeAll(QString());
    return std::any_of(read.begin(), read.end(), [&report](const QString &path) {
        return platform::targetIdentity(QDir::current().absoluteFilePath(path)) == report;
    });
}

int carryOut(const Request &request, const CommandLine &line)
{
    if (wouldLoseAFile(request, line))
        return refuse(QStringLiteral("%1 is read, so it cannot be the report").arg(line.report));
    jobs::ReportFile report;
    const auto start =
        isSameFile(line.resume, line.report) ? jobs::ReportFile::Start::Added : jobs::ReportFile::Start::Empty;
    if (const QString problem = report.open(line.report, start); !problem.isEmpty())
        return refuse(QStringLiteral("%1: %2").arg(line.report, problem));
    Progress progress(line, int(request.inputs.size() * request.recipe.outputs.size()) / line.shards);
    bool isWritten = true;
    const jobs::Summary summary = jobs::runBatch(
        request.recipe, request.inputs, request.options,
        [&](const jobs::ReportLine &each) {
            progress.take(each);
            isWritten = report.add(jobs::jsonLine(each, request.options.recipe)) && isWritten;
            return isWritten;
        },
        [] { return stopped != 0; });
    isWritten = report.add(jobs::jsonLine(summary)) && isWritten;
    progress.finish(summary, line.isDryRun);
    if (!isWritten) {
        std::fprintf(stderr, "quorlin-batch: %s can no longer be written\n", qUtf8Printable(line.report));
        return SomeFailed;
    }
    if (stopped)
        return Stopped;
    return summary.failed + summary.notSupported > 0 ? SomeFailed : Done;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const CommandLine line = readCommandLine(QCoreApplication::arguments().mid(1));
    if (!line.problem.isEmpty())
        return refuse(line.problem + QStringLiteral("; see quorlin-batch --help"));
    if (line.asksForHelp || line.asksForVersion) {
        const QString text = line.asksForHelp ? helpText() : QStringLiteral("quorlin-batch " QUORLIN_VERSION "\n");
        std::fputs(qUtf8Printable(text), stdout);
        return Done;
    }
    if (line.asksForPresets) {
        for (const jobs::Preset &preset : jobs::allPresets())
            if (jobs::recipeOf(preset))
                std::printf("%s/%s\n", qUtf8Printable(preset.action), qUtf8Printable(preset.name));
        return Done;
    }
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, stop);
    std::signal(SIGPIPE, SIG_IGN);
    const Request request = requestFrom(line);
    return request.problem.isEmpty() ? carryOut(request, line) : refuse(request.problem);
}
