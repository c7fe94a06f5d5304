#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace files {

/** A text read as a location: none where it holds a character that no location can hold (a space, an accented letter ...). */
std::optional<QUrl> locationFromText(const QString &text);

/**
 * The path that a text names when it is read as a location, not as a path: what is percent-encoded is decoded, and what
 * follows "?" or "#" does not count.
 *
 * None where locationFromText() gives none, and with a scheme other than "file", or with a host.
 */
std::optional<QString> pathOfLocationText(const QString &text);

/**
 * Gives the item at @p path the name @p name in the same folder. Both paths are read as locations, see above; where one is
 * none, nothing happens. Replaces nothing; failures are silent.
 */
void renameByLocation(const QString &path, const QString &name);

} // namespace files
