#pragma once

#include <QString>

namespace platform {

/**
 * The uniform type identifier of a file name extension, in any case of letters: "JPG" gives "public.jpeg".
 *
 * An unknown extension gets a dynamic identifier, "dyn." and the extension in lower case.
 */
QString typeIdentifierForExtension(const QString &extension);

/** The type identifier of the extension of @p path; see typeIdentifierForExtension(). */
QString typeIdentifierForPath(const QString &path);

} // namespace platform
