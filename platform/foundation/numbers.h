#pragma once

#include <QString>
#include <QVariant>

namespace platform {

/**
 * The number at the beginning of a text, in single precision: "90", " -12.5deg" is -12.5, "1e2" is 100.
 *
 * White space in front is passed over, the decimal point is always ".", and what no longer belongs to the number is
 * not looked at. 0 where no number begins: for "abc", for empty text, and for words and notations that other readers
 * take ("inf", "nan", "0x10" is 0). Infinite where the number is beyond single precision, 0 where it is too small.
 */
float floatValue(const QString &text);

/** The number, or the number in the text, that a value holds; 0 for any other kind of value and for none. */
float floatValue(const QVariant &value);

} // namespace platform
