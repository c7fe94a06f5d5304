#pragma once

#include <QString>
#include <QVariant>

namespace platform {

/**
 * The number at the beginning of a text, in single precision: "90", " -12.5deg" is -12.5, "1e2" is 100.
 *
 * Leading white space is skipped, the decimal point is always ".", and anything after the number is ignored. 0 if there
 * is no number: for "abc", for empty text, and for words and notations that other parsers accept ("inf", "nan", "0x10"
 * is 0). Infinite if the number exceeds single precision, 0 if it is too small.
 */
float floatValue(const QString &text);

/** The number in a value, or at the beginning of its text; 0 for any other type and for none. */
float floatValue(const QVariant &value);

} // namespace platform
