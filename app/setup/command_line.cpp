#include "app/setup/command_line.h"

#include <algorithm>
#include <iterator>

namespace app {
namespace {

enum class Takes { Nothing, Value };

/** Options of the toolkit, which removes them from the arguments, with one or two dashes. */
struct ToolkitOption
{
    const char *name;
    Takes takes;
};

// The first of them names the window system.
const ToolkitOption toolkitOptions[] = {
    {"platform", Takes::Value},
    {"platformpluginpath", Takes::Value},
    {"platformtheme", Takes::Value},
    {"plugin", Takes::Value},
    {"display", Takes::Value},
    {"geometry", Takes::Value},
    {"icon", Takes::Value},
    {"title", Takes::Value},
    {"qwindowgeometry", Takes::Value},
    {"qwindowicon", Takes::Value},
    {"qwindowtitle", Takes::Value},
    {"session", Takes::Value},
    {"style", Takes::Value},
    {"stylesheet", Takes::Value},
    {"reverse", Takes::Nothing},
    {"widgetcount", Takes::Nothing},
};

const QString endOfOptions = QStringLiteral("--");

/** The toolkit option that an argument is; null if it is none. */
const ToolkitOption *toolkitOption(const QString &argument)
{
    const QString name = argument.mid(argument.startsWith(endOfOptions) ? 2 : 1).section(u'=', 0, 0);
    const auto found = std::find_if(std::begin(toolkitOptions), std::end(toolkitOptions),
                                    [&](const ToolkitOption &option) { return name == QLatin1String(option.name); });
    return found == std::end(toolkitOptions) ? nullptr : found;
}

/** What the window opens with for one of our options; empty if it is none. */
QString openingOf(const QString &argument)
{
    if (argument == QStringLiteral("--new-recipe"))
        return QStringLiteral("recipe");
    return argument == QStringLiteral("--watch-folder") ? QStringLiteral("watch") : QString();
}

} // namespace

CommandLine commandLineFrom(const QStringList &arguments)
{
    CommandLine line;
    for (qsizetype i = 0; i < arguments.size() && arguments[i] != endOfOptions; ++i) {
        const QString &argument = arguments[i];
        if (!argument.startsWith(u'-'))
            continue;
        if (argument == QStringLiteral("--help") || argument == QStringLiteral("-h"))
            return {CommandLine::Wish::Help, {}, {}, {}};
        if (argument == QStringLiteral("--version"))
            return {CommandLine::Wish::Version, {}, {}, {}};
        if (!openingOf(argument).isEmpty()) {
            line.opening = openingOf(argument);
            continue;
        }
        const ToolkitOption *option = toolkitOption(argument);
        if (!option)
            return {CommandLine::Wish::Unknown, argument, {}, {}};
        if (option->takes == Takes::Nothing || argument.contains(u'='))
            continue;
        ++i;
        if (option == toolkitOptions)
            line.platform = arguments.value(i);
    }
    return line;
}

QStringList pathsAmong(const QStringList &arguments)
{
    const qsizetype end = arguments.indexOf(endOfOptions);
    QStringList paths;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const bool isOption = (end < 0 || i < end) && !openingOf(arguments[i]).isEmpty();
        if (i != end && !isOption)
            paths.append(arguments[i]);
    }
    return paths;
}

QString usage()
{
    return QStringLiteral(
        "Usage: quorlin [FILE|FOLDER|RECIPE...]\n"
        "Opens the window of Quorlin with these pictures in its list. A recipe is shown and not run.\n"
        "\n"
        "  --new-recipe    opens with the action Recipe\n"
        "  --watch-folder  asks for a folder to watch\n"
        "  --help          shows this text\n"
        "  --version       shows the version, and those of the libraries in use\n"
        "  --              what follows are paths, even where they begin with a dash\n");
}

QString noDisplaySentence(const QString &platform, const QString &wayland, const QString &display)
{
    const QString cannot = QStringLiteral("Quorlin cannot open its window: ");
    if (!platform.isEmpty())
        return cannot + QStringLiteral("the window system \"%1\" that was asked for does not start.").arg(platform);
    if (wayland.isEmpty() && display.isEmpty())
        return cannot + QStringLiteral("there is no display. Neither WAYLAND_DISPLAY nor DISPLAY is set.");
    QStringList named;
    if (!wayland.isEmpty())
        named.append(QStringLiteral("WAYLAND_DISPLAY=%1").arg(wayland));
    if (!display.isEmpty())
        named.append(QStringLiteral("DISPLAY=%1").arg(display));
    return cannot + QStringLiteral("no display answers at %1.").arg(named.join(QStringLiteral(" or ")));
}

} // namespace app
