#pragma once

#include <QStringList>
#include <QUrl>

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

/** Opens a location in the program for its kind, a web address in the browser. Nothing happens without one; does not wait. */
void openLocation(const QUrl &location);

/** Runs a program by its path and waits until it ends; its output is dropped. Nothing happens where it is not there. */
void runTool(const QString &program, const QStringList &arguments);

} // namespace platform
