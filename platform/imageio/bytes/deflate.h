#pragma once

// Private to the platform.

#include <QByteArray>

namespace platform {

/** The bytes as one zlib stream, quickly rather than as small as can be. Empty where memory fails. */
QByteArray deflated(const QByteArray &bytes);

/** The checksum of PNG chunks, going on from that of the bytes before. */
quint32 crc32Of(const QByteArray &bytes, quint32 before = 0);

} // namespace platform
