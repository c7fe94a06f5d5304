#pragma once

#include <QString>

namespace platform {

/**
 * The type identifier of what is at @p path: "public.folder" for a folder or a link to one, for anything else that of its
 * extension (type_identifiers.h). Null where nothing is there, or a link to nothing.
 */
QString typeOfItem(const QString &path);

/**
 * Opens the item at @p path as a file manager would: a folder in the file browser, a document in its application. Nothing
 * happens where nothing is there or nobody opens it; does not wait.
 */
void openItem(const QString &path);

} // namespace platform
