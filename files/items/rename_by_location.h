#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace files {

/**
 * A text read as a location: none if it contains a character that a location cannot contain (a space, an accented
 * letter ...).
 */
std::optional<QUrl> locationFromText(const QString &text);

/**
 * The path that a text names when it is read as a location, not as a path: percent-encoding is decoded, and what
 * follows "?" or "#" is ignored.
 *
 * None if locationFromText() gives none, and for a scheme other than "file", or a host.
 */
std::optional<QString> pathOfLocationText(const QString &text);

/**
 * Gives the item at @p path the name @p name in the same folder. Both paths are read as locations, see above; if one is
 * invalid, nothing happens. Replaces nothing; failures are silent.
 */
void renameByLocation(const QString &path, const QString &name);

} // namespace files
