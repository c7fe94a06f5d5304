#pragma once

#include <QString>
#include <QStringList>

namespace app {

/** What the program was started with. */
struct CommandLine
{
    enum class Wish { Window, Help, Version, Unknown };

    Wish wish = Wish::Window;
    QString unknown;  ///< the unknown option
    QString platform; ///< the window system that an option asks for
    QString
        opening; ///< what the window opens with: "recipe" for a new one, "watch" for a folder to be watched; or empty
};

/**
 * Scans the arguments after the program's name. Options end at a "--", if there is one; toolkit options and paths are
 * ignored. The first request counts.
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
