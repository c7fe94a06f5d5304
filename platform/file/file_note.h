#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/**
 * A short text attached to a file as an extended attribute of the user; it is copied with the file as far as disks and
 * programs support such attributes. False if the disk does not.
 */
bool attachNote(const QString &path, const QByteArray &note);

/** The note of the file at @p path, a link not followed; empty if it has none. */
QByteArray attachedNote(const QString &path);

} // namespace platform
