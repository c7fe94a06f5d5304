#pragma once

#include <QByteArray>
#include <QSysInfo>

namespace platform {

/**
 * The text of an EXIF user comment.
 *
 * @param value  the tag's bytes: an 8-byte mark (ASCII, JIS, UNICODE, or zeros for an undefined set) and the text
 * @param order  byte order of the file, for UNICODE text without a byte order mark; text that is clearly written in
 *               the other order, as by some cameras, is read in that one
 *
 * Without a known mark all bytes are text. Text ends at a NUL. Spaces alone are no comment but room reserved by
 * cameras, except under the mark UNICODE, which nobody uses for that.
 */
QString decodeUserComment(const QByteArray &value, QSysInfo::Endian order);

/**
 * The bytes of a user comment: plain ASCII under the ASCII mark, other text and spaces alone as UTF-16 in @p order
 * under UNICODE, with a byte order mark if a guessing reader would guess wrong.
 */
QByteArray encodeUserComment(const QString &text, QSysInfo::Endian order);

/** The 16-bit units of @p text in @p order, without a byte order mark. */
QByteArray utf16Bytes(const QString &text, QSysInfo::Endian order);

/** Text of an unstated character set: UTF-8 if it is valid as such, else Latin-1. */
QString decodeUnmarkedText(const QByteArray &bytes);

} // namespace platform
