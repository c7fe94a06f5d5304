#pragma once

#include <QString>

/** Names of files and folders, as texts; no disk is accessed. */
namespace platform {

/** The longest name of one item on a disk, in bytes of UTF-8. */
inline constexpr qsizetype longestNameBytes = 255;

/**
 * What two names share that many disks treat as the same: the same letters regardless of case and of how accents are
 * encoded. They count as equal everywhere: a result never gets a name that another disk would confuse with that of a
 * second file.
 */
QString nameKey(const QString &name);

/**
 * The beginning of a text, at most so many bytes of UTF-8; no character is cut in two. Half a surrogate pair counts as
 * three.
 */
QString shortened(const QString &text, qsizetype mostBytes);

enum class NameOf { File, Folder };

/** "photo.jpg", 3 gives "photo (3).jpg". The name of a folder has no extension: "Trip 1.5", 2 gives "Trip 1.5 (2)". */
QString numberedName(const QString &name, int number, NameOf what);

/**
 * The same, but never longer than a disk allows: if the name would be too long with the number, its base is shortened,
 * or its end if the extension alone is too long. Not for names that belong together: they would be cut at different
 * positions.
 */
QString fittingNumberedName(const QString &name, int number, NameOf what);

} // namespace platform
