#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/**
 * False for a packet with so many properties that taking it apart, which takes time by the square of their number, would hold
 * up whoever asks; lists may be long. Such a packet is carried as it is, and its properties are not known.
 */
bool isDigestibleXmp(const QByteArray &packet);

/**
 * False where a file of any type holds a packet that is not digestible, so that nobody may read it who takes apart all packets
 * on the way.
 */
bool holdsDigestibleXmp(const QByteArray &file);

} // namespace platform
