#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace files {

/** How a name that is no valid text is listed. */
enum class OddNames {
    AsText,  ///< with replacement characters, so that the file fails by name instead of being missed
    AsPaths, ///< as platform::decodedPath() has it, so that the file can be opened
};

/** Which files a job takes, and what else is noted of those it passes over. Extensions in any case of letters. */
struct CollectRule
{
    QStringList extensions; ///< of the files that are taken; "*" takes every file, those in packages too
    QStringList companions; ///< of files that may accompany a picture
    QStringList listed; ///< of all files that come into the list, if another action takes them; empty for those taken
    OddNames oddNames = OddNames::AsText;
};

struct Collected
{
    QStringList paths;   ///< what is taken
    QStringList listed;  ///< what comes into the list
    QStringList folders; ///< those of the given paths that are folders
    QStringList companions;
    QString example; ///< the name of a file that is neither taken nor a companion
    int leftOut = 0; ///< how many files are not taken
};

/**
 * Turns files and folders, as they were dropped or chosen, into the list of files to work on. Each folder is walked once, as
 * platform::walkFolder() does: links to files count, links to folders do not, and no path is too long.
 *
 * The files of a folder come first, then its folders, each in natural order of their names.
 */
Collected collectFiles(const QStringList &paths, const CollectRule &rule);

} // namespace files
