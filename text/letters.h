#pragma once

#include <QString>

namespace text {

/** Letters are the letters and marks of every script; numbers are its digits and other numerals. */
enum class Kept { Letters, LettersAndNumbers };

/** @p text without characters of any other kind, which are simply removed. */
QString onlyLetters(const QString &text, Kept kept);

} // namespace text
