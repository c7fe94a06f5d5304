#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace app {

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
