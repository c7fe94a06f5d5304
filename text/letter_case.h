#pragma once

#include <QString>

namespace text {

/**
 * Changes of case by Unicode's full mappings, the same in every locale: upper case of "ß" is "SS", lower case of "İ" is "i" and
 * a dot above, and a capital sigma at the end of a word becomes "ς". The length may change.
 */
enum class CaseChange { None, Lower, Upper, Capitalised };

/**
 * Capitalising treats only white space as a word boundary: the first letter of each word becomes title case and
 * everything else lower case: "o'NEIL (JOHN)" is "O'neil (John)". Other characters before the first letter are skipped:
 * "2nd" is "2Nd".
 */
QString changedCase(const QString &text, CaseChange change);

} // namespace text
