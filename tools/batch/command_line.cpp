#include "tools/batch/command_line.h"

#include <functional>
#include <map>

namespace {

constexpr int mostJobs = 256;

/** A whole number in a range; nothing for any other text. */
std::optional<int> numberIn(const QString &text, int least, int most)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= least && number <= most ? std::optional(number) : std::nullopt;
}

using TakeValue = std::function<QString(CommandLine &line, const QString &value)>;
using TakeFlag = std::function<void(CommandLine &line)>;

QString takeNumber(int &target, const QString &value, int least, int most)
{
    const std::optional<int> number = numberIn(value, least, most);
    target = number.value_or(target);
    return number ? QString()
                  : QStringLiteral("a whole number from %1 to %2, not \"%3\"").arg(least).arg(most).arg(value);
}

QString takeText(QString &target, const QString &value)
{
    target = value;
    return value.isEmpty() ? QStringLiteral("a name that is not empty") : QString();
}

QString takeShard(CommandLine &line, const QString &value)
{
    constexpr int mostShards = 1'000'000;
    const QStringList parts = value.split(u'/');
    const std::optional<int> shards = parts.size() == 2 ? numberIn(parts[1], 1, mostShards) : std::nullopt;
    const std::optional<int> shard = shards ? numberIn(parts[0], 1, *shards) : std::nullopt;
    line.shard = shard.value_or(1);
    line.shards = shards.value_or(1);
    return shard ? QString() : QStringLiteral("a part and their number such as 2/8, not \"%1\"").arg(value);
}

QString takeProgress(CommandLine &line, const QString &value)
{
    using Progress = CommandLine::Progress;
    static const std::map<QString, Progress> words = {{QStringLiteral("auto"), Progress::Auto},
                                                      {QStringLiteral("always"), Progress::Always},
                                                      {QStringLiteral("never"), Progress::Never}};
    const auto found = words.find(value);
    if (found == words.end())
        return QStringLiteral("auto, always or never, not \"%1\"").arg(value);
    line.progress = found->second;
    return {};
}

const std::map<QString, TakeValue> &values()
{
    constexpr int aDay = 86'400;
    constexpr int mostMegabytes = 1 << 20;
    static const std::map<QString, TakeValue> all = {
        {QStringLiteral("--preset"),
         [](CommandLine &line, const QString &value) { return takeText(line.preset, value); }},
        {QStringLiteral("--to"), [](CommandLine &line, const QString &value) { return takeText(line.to, value); }},
        {QStringLiteral("--from"), [](CommandLine &line, const QString &value) { return takeText(line.from, value); }},
        {QStringLiteral("--report"),
         [](CommandLine &line, const QString &value) { return takeText(line.report, value); }},
        {QStringLiteral("--plan"), [](CommandLine &line, const QString &value) { return takeText(line.plan, value); }},
        {QStringLiteral("--resume"),
         [](CommandLine &line, const QString &value) { return takeText(line.resume, value); }},
        {QStringLiteral("--jobs"),
         [](CommandLine &line, const QString &value) { return takeNumber(line.jobs, value, 1, mostJobs); }},
        {QStringLiteral("--timeout"),
         [](CommandLine &line, const QString &value) { return takeNumber(line.timeout, value, 1, aDay); }},
        {QStringLiteral("--memory"),
         [](CommandLine &line, const QString &value) { return takeNumber(line.memory, value, 1, mostMegabytes); }},
        {QStringLiteral("--shard"), takeShard},
        {QStringLiteral("--progress"), takeProgress},
    };
    return all;
}

const std::map<QString, TakeFlag> &flags()
{
    static const std::map<QString, TakeFlag> all = {
        {QStringLiteral("-0"), [](CommandLine &line) { line.isFromSeparatedByNul = true; }},
        {QStringLiteral("--keep-tree"), [](CommandLine &line) { line.keepsTree = true; }},
        {QStringLiteral("--watch"), [](CommandLine &line) { line.watches = true; }},
        {QStringLiteral("--dry-run"), [](CommandLine &line) { line.isDryRun = true; }},
        {QStringLiteral("--quiet"), [](CommandLine &line) { line.isQuiet = true; }},
        {QStringLiteral("--list-presets"), [](CommandLine &line) { line.asksForPresets = true; }},
        {QStringLiteral("--help"), [](CommandLine &line) { line.asksForHelp = true; }},
        {QStringLiteral("--version"), [](CommandLine &line) { line.asksForVersion = true; }},
    };
    return all;
}

/** Reads one option, with its argument if it needs one; answers what is wrong. */
QString takeOption(CommandLine &line, const QString &argument, QStringList &rest)
{
    const qsizetype equals = argument.startsWith(QLatin1String("--")) ? argument.indexOf(u'=') : -1;
    const QString name = equals < 0 ? argument : argument.left(equals);
    if (const auto flag = flags().find(name); flag != flags().end()) {
        if (equals >= 0)
            return QStringLiteral("%1 takes no value").arg(name);
        flag->second(line);
        return {};
    }
    const auto option = values().find(name);
    if (option == values().end())
        return QStringLiteral("there is no option %1").arg(name);
    if (equals < 0 && rest.isEmpty())
        return QStringLiteral("%1 needs a value").arg(name);
    const QString problem = option->second(line, equals < 0 ? rest.takeFirst() : argument.mid(equals + 1));
    return problem.isEmpty() ? QString() : name + QLatin1String(": ") + problem;
}

/** What options mean together. */
QString contradictionIn(const CommandLine &line)
{
    if (line.keepsTree && line.to.isEmpty())
        return QStringLiteral("--keep-tree needs --to");
    if (line.isFromSeparatedByNul && line.from.isEmpty())
        return QStringLiteral("-0 needs --from");
    if (line.watches && (!line.from.isEmpty() || !line.plan.isEmpty()))
        return QStringLiteral("--watch cannot stand beside %1")
            .arg(line.from.isEmpty() ? QStringLiteral("--plan") : QStringLiteral("--from"));
    if (line.recipe.isEmpty() && line.preset.isEmpty())
        return QStringLiteral("the recipe is missing");
    if (line.inputs.isEmpty() && line.from.isEmpty())
        return QStringLiteral("there is no input");
    return {};
}

} // namespace

CommandLine readCommandLine(const QStringList &arguments)
{
    CommandLine line;
    QStringList rest = arguments;
    QStringList names;
    bool isOver = false; // after -- everything is a name
    while (!rest.isEmpty()) {
        const QString argument = rest.takeFirst();
        if (!isOver && argument == QLatin1String("--")) {
            isOver = true;
        } else if (!isOver && argument.startsWith(u'-') && argument.size() > 1) {
            const QString problem = takeOption(line, argument, rest);
            if (line.problem.isEmpty())
                line.problem = problem;
        } else {
            names.append(argument);
        }
    }
    if (!names.isEmpty() && line.preset.isEmpty())
        line.recipe = names.takeFirst();
    line.inputs = names;
    const bool asks = line.asksForHelp || line.asksForVersion || line.asksForPresets;
    if (line.problem.isEmpty() && !asks)
        line.problem = contradictionIn(line);
    return line;
}

QString helpText()
{
    return QStringLiteral("quorlin-batch [OPTION...] RECIPE INPUT...\n"
                          "quorlin-batch --preset \"Resize/Web 1600\" [OPTION...] INPUT...\n"
                          "Carries out a recipe over pictures, and over folders with everything below.\n"
                          "  --to DIR         base folder of results; without it that of each picture\n"
                          "  --keep-tree      build the tree of each input folder again below DIR\n"
                          "  --from FILE      further inputs, one a line; - is standard input\n"
                          "  -0               these are separated by NUL\n"
                          "  --jobs N         worker processes, 1 to 256; default: as many as fit\n"
                          "  --dry-run        plan only: nothing is written but the report\n"
                          "  --report FILE    a line of JSON an output, then a summary; -: standard output\n"
                          "  --plan REPORT    take the outputs' paths from the report of a dry run\n"
                          "  --resume REPORT  leave out what that report has as done\n"
                          "  --shard I/N      do the I-th of N parts of the inputs\n"
                          "  --timeout S      seconds for one picture; default 300\n"
                          "  --memory MB      resident memory of one worker; default 2048\n"
                          "  --watch          go on with the pictures that arrive in the input folders\n"
                          "  --progress WHEN  auto, always or never\n"
                          "  --quiet          say nothing but failures\n"
                          "  --list-presets   the names that --preset takes\n"
                          "  --help, --version\n"
                          "Exit status: 0 all done, skipped or planned; 1 some failed or not supported;\n"
                          "2 a bad command line or recipe, nothing was written; 3 stopped by a signal.\n");
}
