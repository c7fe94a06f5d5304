#pragma once

#include <QStringList>
#include <QUrl>

namespace platform {

/**
 * The type identifier of what is at @p path: "public.folder" for a folder or a link to one, for anything else that of its
 * extension (type_identifiers.h). Null if nothing is there, or a dangling link.
 */
QString typeOfItem(const QString &path);

/**
 * Opens the item at @p path as a file manager would: a folder in the file browser, a document in its application. Does
 * nothing if the item does not exist or no program opens it; does not wait.
 */
void openItem(const QString &path);

/** Opens a URL in the program for its kind, a web address in the browser. Does nothing without one; does not wait. */
void openLocation(const QUrl &location);

/** Runs a program by its path and waits until it ends; its output is discarded. Does nothing if it does not exist. */
void runTool(const QString &program, const QStringList &arguments);

} // namespace platform
