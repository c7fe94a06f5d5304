#pragma once

// Private to the platform.

#include <QByteArray>

namespace platform {

/** The bytes as one zlib stream, fast rather than as small as possible. Empty if memory fails. */
QByteArray deflated(const QByteArray &bytes);

/** Appends that stream to @p out, without another copy of it in memory; false if memory fails. */
bool appendDeflated(QByteArray &out, const QByteArray &bytes);

/** The checksum of PNG chunks, continued from that of the preceding bytes. */
quint32 crc32Of(const QByteArray &bytes, quint32 before = 0);

} // namespace platform
