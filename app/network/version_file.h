#pragma once

#include "platform/foundation/result.h"

#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace app {

/** Where the version file is, by the configured host (see app::updateHost()); an invalid address where there is none. */
QUrl versionFileAddress();

/** What a look at the version file came to. */
struct VersionAnswer
{
    std::optional<QStringList> fields; ///< of a newer build, see newerVersion()
    QString problem;                   ///< why nobody knows whether there is one; null where that is known
};

/**
 * Judges what was downloaded. A page of something else, such as that of a network that wants a sign-in first, is a problem:
 * it does not say that there is nothing newer. Raises like newerVersion().
 */
VersionAnswer versionAnswer(const platform::Result<QString> &text, int runningBuild);

/**
 * Reads a version file: fields between ";", of which field 1 is a build number and fields 0, 2 and 3 are texts for the user.
 *
 * @param text          the whole file; nothing is trimmed, so a line break at its end belongs to the last field
 * @param runningBuild  any number
 * @return fields 0, 2 and 3 where the file's build is greater, nothing otherwise. A field 1 without leading digits is 0
 *
 * Raises a RangeError where there is no field 1, and for a greater build where there is no field 2 or 3.
 */
std::optional<QStringList> newerVersion(const QString &text, int runningBuild);

} // namespace app
