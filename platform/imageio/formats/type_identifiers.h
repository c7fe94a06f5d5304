#pragma once

#include <QString>
#include <QStringList>

namespace platform {

/**
 * The uniform type identifier of a file name extension, in any case of letters: "JPG" gives "public.jpeg".
 *
 * An unknown extension gets a dynamic identifier, "dyn." and the extension in lower case.
 */
QString typeIdentifierForExtension(const QString &extension);

/** The type identifier of the extension of @p path; see typeIdentifierForExtension(). */
QString typeIdentifierForPath(const QString &path);

/** All extensions that mean what @p extension means, itself first: "jpeg" gives "jpeg", "jpg", "jpe". */
QStringList extensionsOfSameType(const QString &extension);

} // namespace platform
