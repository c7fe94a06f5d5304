#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/**
 * The path that the system knows by these bytes, as text. Bytes that are no UTF-8 become one sign each, U+DC00 and the byte, which
 * nothing else stands for: encodedPath() gives the same bytes again.
 */
QString decodedPath(QByteArrayView bytes);

/**
 * A path as the system knows it. Every path that comes from decodedPath() reaches its item in this way; the toolkit's own
 * functions do so for valid texts alone. Also for sentences that name such a path, before they are written to a terminal.
 */
QByteArray encodedPath(const QString &path);

/** The last component of a path: "/a/b.jpg" gives "b.jpg", "/a/b/" gives "b". */
QString lastPathComponent(const QString &path);

/**
 * The text behind the last dot of the last component; empty where there is no dot, nothing behind it, or nothing
 * before it: ".profile" has no extension.
 */
QString pathExtension(const QString &path);

/** The last component without its extension and the dot before it. */
QString baseName(const QString &path);

/** @p path without the slashes at its end; "/" stays. What ends in a slash would lead through a link, not to it. */
QString withoutTrailingSlashes(const QString &path);

/**
 * False for an empty text, and for one with a null character or half a surrogate pair that decodedPath() has no byte for: the
 * system would read such a path only up to there, or as that of another item.
 */
bool canBeAPath(const QString &path);

/** A path in the folder that the process works in, unless it is absolute; without "." and "..". */
QString absolutePath(const QString &path);

/** The path of the folder that the last component is in: "/a/b/" gives "/a", "/a" and "/" give "/", "a" gives "". */
QString parentFolder(const QString &path);

/** @p name in @p folder, with one slash between them; the folder itself where the name is empty. */
QString joinedPath(const QString &folder, const QString &name);

/**
 * The folder in which programs keep their data for one user: $XDG_DATA_HOME where that is an absolute path, else
 * .local/share in the user's home folder. Without "/" at its end; not made here.
 */
QString applicationSupportFolder();

} // namespace platform
