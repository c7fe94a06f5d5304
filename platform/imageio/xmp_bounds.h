#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/** True for an XMP packet of more properties than its reader, which compares each with each, can take in. */
bool isEndlessXmp(const QByteArray &packet);

/**
 * The bytes of a file as its metadata may be read: those of the file, or a copy in which blanks stand in the place of an
 * endless XMP packet.
 */
QByteArray withoutEndlessXmp(const QByteArray &file);

} // namespace platform
