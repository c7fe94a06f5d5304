#pragma once

#include "platform/foundation/result.h"

#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace app {

/** Where the version file is, by the configured host (see app::updateHost()); an invalid address where there is none. */
QUrl versionFileAddress();

/** The result of checking the version file. */
struct VersionAnswer
{
    std::optional<QStringList> fields; ///< of a newer build, see newerVersion()
    QString problem;                   ///< why it is unknown whether there is one; null if it is known
};

/**
 * Judges what was downloaded. Another page, such as the sign-in page of a network, is a problem: it does not mean that
 * there is nothing newer. Raises like newerVersion().
 */
VersionAnswer versionAnswer(const platform::Result<QString> &text, int runningBuild);

/**
 * Reads a version file: fields between ";", of which field 1 is a build number and fields 0, 2 and 3 are texts for the user.
 *
 * @param text          the whole file; nothing is trimmed, so a line break at its end belongs to the last field
 * @param runningBuild  any number
 * @return fields 0, 2 and 3 if the file's build is greater, nothing otherwise. A field 1 without leading digits is 0
 *
 * Raises a RangeError if there is no field 1, and for a greater build also if there is no field 2 or 3.
 */
std::optional<QStringList> newerVersion(const QString &text, int runningBuild);

} // namespace app
