#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform {

/**
 * Bytes as text; nothing if they are not valid UTF-8 from the first to the last.
 *
 * Overlong forms, surrogates, codes above U+10FFFF and a character cut short at the end are not valid. A byte-order mark is
 * kept as U+FEFF, so that the text gives the same bytes again. No bytes are empty text.
 */
std::optional<QString> textFromUtf8(const QByteArray &bytes);

} // namespace platform
