#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform {

/**
 * Bytes as text; nothing unless all of them are valid UTF-8.
 *
 * Overlong forms, surrogates, codes above U+10FFFF and an incomplete last character are invalid. A byte-order mark is
 * kept as U+FEFF, so that the text converts back to the same bytes. No bytes give empty text.
 */
std::optional<QString> textFromUtf8(const QByteArray &bytes);

} // namespace platform
