#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/**
 * The path that the system knows by these bytes, as text. Each byte that is not valid UTF-8 becomes one character,
 * U+DC00 plus the byte, which nothing else maps to: encodedPath() returns the same bytes.
 */
QString decodedPath(QByteArrayView bytes);

/**
 * A path as the system knows it. It works for every path from decodedPath(), whereas the toolkit's own functions do so
 * for valid texts only. Also for sentences that name such a path, before they are written to a terminal.
 */
QByteArray encodedPath(const QString &path);

/** The last component of a path: "/a/b.jpg" gives "b.jpg", "/a/b/" gives "b". */
QString lastPathComponent(const QString &path);

/**
 * The text after the last dot of the last component; empty if there is no dot, nothing after it, or nothing before it:
 * ".profile" has no extension.
 */
QString pathExtension(const QString &path);

/** The last component without its extension and the dot before it. */
QString baseName(const QString &path);

/** @p path without trailing slashes; "/" stays. With a trailing slash a link would be followed. */
QString withoutTrailingSlashes(const QString &path);

/**
 * False for an empty text, and for one with a null character or an unpaired surrogate that decodedPath() does not
 * produce: the system would cut off such a path there, or read it as that of another item.
 */
bool canBeAPath(const QString &path);

/** The path relative to the working directory, unless it is absolute; without "." and "..". */
QString absolutePath(const QString &path);

/** The path of the folder that the last component is in: "/a/b/" gives "/a", "/a" and "/" give "/", "a" gives "". */
QString parentFolder(const QString &path);

/** @p name in @p folder, with one slash between them; the folder itself if the name is empty. */
QString joinedPath(const QString &folder, const QString &name);

/**
 * The folder in which programs keep their data for one user: $XDG_DATA_HOME if that is an absolute path, else
 * .local/share in the user's home folder. Without a trailing "/"; not created here.
 */
QString applicationSupportFolder();

} // namespace platform
