#pragma once

#include <QString>

/** Names of files and folders, as texts; no disk is asked. */
namespace platform {

/** What a disk takes as the name of one item, in bytes of UTF-8. */
inline constexpr qsizetype longestNameBytes = 255;

/**
 * What two names have in common that many disks take for one: the same letters whatever their case and however their accents
 * are written. They count as the same everywhere: a result never gets a name that another disk would take for that of a second file.
 */
QString nameKey(const QString &name);

/** The beginning of a text that has at most so many bytes of UTF-8; no character is cut in two. Half a surrogate pair counts three. */
QString shortened(const QString &text, qsizetype mostBytes);

enum class NameOf { File, Folder };

/** "photo.jpg", 3 gives "photo (3).jpg". The name of a folder has no extension: "Trip 1.5", 2 gives "Trip 1.5 (2)". */
QString numberedName(const QString &name, int number, NameOf what);

/**
 * The same, never longer than a disk takes: a name that would be too long with the number loses the end of its base, or its own
 * end where the extension alone is too long. Not for names that belong together: theirs are not cut at the same place.
 */
QString fittingNumberedName(const QString &name, int number, NameOf what);

} // namespace platform
