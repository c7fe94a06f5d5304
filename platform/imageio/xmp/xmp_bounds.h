#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/**
 * False for a packet with so many properties that parsing it, which takes quadratic time, would block the caller; lists
 * may be long. Such a packet is copied as it is, and its properties are not known.
 */
bool isDigestibleXmp(const QByteArray &packet);

/**
 * False if a file of any type contains an indigestible packet, so that no reader that parses all packets may be used.
 */
bool holdsDigestibleXmp(const QByteArray &file);

} // namespace platform
