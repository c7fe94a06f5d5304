#pragma once

#include <QString>

namespace text {

/**
 * Text in ASCII: accented Latin letters become their base letters, everything else outside ASCII "?".
 *
 * A letter with its accents is one, however it is stored: "é" and "e" with a combining accent are "e", a kana with its
 * sound mark is one "?". Letters with a stroke and the dotless i have a base letter too: "Łódź" is "Lodz". "ß", "æ" and
 * wide forms have none. A character beyond the basic plane is one "?".
 */
QString foldedToAscii(const QString &text);

} // namespace text
