#pragma once

#include <QString>
#include <QStringList>

/** Searching for one text in another, unit by unit and case-sensitively unless stated otherwise. */
namespace text {

/**
 * The pieces between the separators, including empty ones; the whole text if the separator does not occur or is empty.
 */
QStringList pieces(const QString &text, const QString &separator);

/** Every occurrence replaced, from the left; unchanged if @p search is empty. */
QString replaced(const QString &text, const QString &search, const QString &replacement);

/** Whether @p search occurs in @p text, ignoring case; an empty one always does. */
bool containsInAnyCase(const QString &text, const QString &search);

/** Without U+0020; tabs, line breaks and other spaces stay. */
QString withoutSpaces(const QString &text);

} // namespace text
