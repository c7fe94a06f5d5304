#pragma once

#include <QString>
#include <QStringList>

namespace app {

/** What the program was started with. */
struct CommandLine
{
    enum class Wish { Window, Help, Version, Unknown };

    Wish wish = Wish::Window;
    QString unknown;  ///< the option that nobody knows
    QString platform; ///< the window system that an option names
    QString
        opening; ///< what the window opens with: "recipe" for a new one, "watch" for a folder to be watched; or empty
};

/**
 * Looks through the arguments after the program's name. Options stand before a "--", if there is one; those that the toolkit takes for
 * itself are no wishes of this program, and neither are paths. The first wish counts.
 */
CommandLine commandLineFrom(const QStringList &arguments);

/** The paths among the arguments that the toolkit has left: all but our own options and a "--" before them. */
QStringList pathsAmong(const QStringList &arguments);

/** What --help answers. */
QString usage();

/**
 * Why no window can be opened, in a sentence.
 *
 * @param platform  the window system that was asked for, empty for any
 * @param wayland, display  what the environment names as displays, empty for none
 */
QString noDisplaySentence(const QString &platform, const QString &wayland, const QString &display);

} // namespace app
