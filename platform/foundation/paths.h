#pragma once

#include <QString>

namespace platform {

/** The last component of a path: "/a/b.jpg" gives "b.jpg", "/a/b/" gives "b". */
QString lastPathComponent(const QString &path);

/**
 * The text behind the last dot of the last component; empty where there is no dot, nothing behind it, or nothing
 * before it: ".profile" has no extension.
 */
QString pathExtension(const QString &path);

/** The last component without its extension and the dot before it. */
QString baseName(const QString &path);

} // namespace platform
