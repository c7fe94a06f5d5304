#pragma once

#include <QString>

/** Values, such as the name of a camera, turned into names or parts of names. */
namespace text {

/** A value as a part of the name of one file: a slash or a null character, which no name can hold, becomes "-". */
QString asPartOfName(const QString &value);

/**
 * A value as the name of one folder, or a part of one: path separators and characters that other disks reject become
 * "-"; surrounding dots and spaces are removed; empty if nothing is left. At most 180 bytes of UTF-8.
 */
QString asFolderName(const QString &value);

} // namespace text
