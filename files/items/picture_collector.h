#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace files {

/** How a name that is not valid text is listed. */
enum class OddNames {
    AsText,  ///< with replacement characters, so that the file fails by name instead of being missed
    AsPaths, ///< as by platform::decodedPath(), so that the file can be opened
};

/** Which files a job accepts, and what is recorded about the others. Extensions in any case of letters. */
struct CollectRule
{
    QStringList extensions; ///< of the accepted files; "*" accepts every file, including those in packages
    QStringList companions; ///< of files that may accompany a picture
    QStringList listed; ///< of all files that are listed, even if another action accepts them; empty for those accepted
    OddNames oddNames = OddNames::AsText;
};

struct Collected
{
    QStringList paths;   ///< the accepted files
    QStringList listed;  ///< the listed files
    QStringList folders; ///< those of the given paths that are folders
    QStringList companions;
    QString example; ///< the name of a file that is neither accepted nor a companion
    int leftOut = 0; ///< how many files are not accepted
};

/**
 * Turns dropped or chosen files and folders into the list of files to process. Each folder is walked once, like
 * platform::walkFolder(): links to files count, links to folders do not, and no path is too long.
 *
 * The files of a folder come first, then its subfolders, each in natural order of their names.
 */
Collected collectFiles(const QStringList &paths, const CollectRule &rule);

} // namespace files
