#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace files {

/** The folder "Temp" in the user's home folder; not made here. */
QString stagingFolder();

/**
 * Copies a file beside itself under another name; true if that was done. Where the name is taken nothing is replaced: the
 * answer is false, and the copy stays under the name with "-temp" behind it.
 */
bool storeBeside(const QString &source, const QString &name);

/** Copies to a path that nothing may be at; true if that was done. */
bool storeAt(const QString &source, const QString &destination);

/** Copies into the staging folder; false also where that folder is missing or the name is taken. */
bool storeInStaging(const QString &source, const QString &name);

/**
 * The locations of what lies directly in a folder, hidden items left out, in the file system's own order. None where the
 * folder cannot be read.
 */
std::optional<QList<QUrl>> locationsIn(const QString &folder);

/**
 * The text as one segment of a location: all but ASCII letters, digits and !$&'()*+,-.:;=[]_~ is percent-encoded, slashes
 * too. An empty location where that is none.
 */
QUrl locationOfOneSegment(const QString &text);

/** Whether a framework's version number is beyond generation 8: its whole part is above 855.11. */
bool isLaterGeneration(double frameworkVersion);

/** The framework's version number: $QUORLIN_FRAMEWORK_VERSION, else the user default FrameworkVersion, else 1151.16. */
double frameworkVersion();

} // namespace files
