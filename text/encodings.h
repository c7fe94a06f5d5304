#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace text {

/** One byte a character; nothing if a character is outside ASCII. */
std::optional<QByteArray> asciiBytes(const QString &text);

/**
 * The data that a base64 text encodes.
 *
 * Characters outside the alphabet (line breaks, spaces, the URL-safe alphabet) are skipped. Nothing if what remains is
 * not whole groups of four, or if "=" occurs anywhere but in the last two places.
 */
std::optional<QByteArray> dataFromBase64(const QString &text);

/** The text after a round trip through UTF-8: unchanged, except that each unpaired surrogate becomes "?". */
QString throughUtf8(const QString &text);

} // namespace text
