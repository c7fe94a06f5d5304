#pragma once

#include <QString>

/** Values, such as the name of a camera, as names of items or as parts of them. */
namespace text {

/** A value as a part of the name of one file: a slash or a null character, which no name can hold, becomes "-". */
QString asPartOfName(const QString &value);

/**
 * A value as the name of one folder, or a part of one: signs that part folders, or that other disks refuse, become "-"; dots and
 * blanks around it go; empty where nothing is left. At most 180 bytes of UTF-8.
 */
QString asFolderName(const QString &value);

} // namespace text
