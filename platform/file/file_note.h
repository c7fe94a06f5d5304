#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/**
 * A short text that stands beside the content of a file, as an extended attribute of the user; it goes where the file goes, as
 * far as disks and programs carry such attributes. False where the disk has no place for it.
 */
bool attachNote(const QString &path, const QByteArray &note);

/** The note of the file at @p path, a link not followed; empty where it has none. */
QByteArray attachedNote(const QString &path);

} // namespace platform
