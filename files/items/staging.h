#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace files {

/** The folder "Temp" in the user's home folder; not created here. */
QString stagingFolder();

/**
 * Copies a file beside itself under another name; true on success. If the name is taken nothing is replaced: the answer
 * is false, and the copy stays under the name with "-temp" appended.
 */
bool storeBeside(const QString &source, const QString &name);

/** Copies to a free path; true on success. */
bool storeAt(const QString &source, const QString &destination);

/** Copies into the staging folder; false also if that folder is missing or the name is taken. */
bool storeInStaging(const QString &source, const QString &name);

/**
 * The locations of the direct contents of a folder, without hidden items, in the file system's own order. None if the
 * folder cannot be read.
 */
std::optional<QList<QUrl>> locationsIn(const QString &folder);

/**
 * The text as one segment of a location: everything except ASCII letters, digits and !$&'()*+,-.:;=[]_~ is
 * percent-encoded, including slashes. An empty location if that is invalid.
 */
QUrl locationOfOneSegment(const QString &text);

/** Whether a framework's version number is beyond generation 8: its whole part is above 855.11. */
bool isLaterGeneration(double frameworkVersion);

/** The framework's version number: $QUORLIN_FRAMEWORK_VERSION, else the user default FrameworkVersion, else 1151.16. */
double frameworkVersion();

} // namespace files
