#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace text {

/** One byte a character; nothing if a character is outside ASCII. */
std::optional<QByteArray> asciiBytes(const QString &text);

/**
 * The data that a base64 text stands for.
 *
 * Characters outside the alphabet (line breaks, blanks, the signs of the alphabet for addresses) are passed over. Nothing if
 * what remains is not whole groups of four, or "=" stands anywhere but in the last two places.
 */
std::optional<QByteArray> dataFromBase64(const QString &text);

/** The text after a way through UTF-8: the same, but for halves of surrogate pairs, each of which becomes "?". */
QString throughUtf8(const QString &text);

} // namespace text
