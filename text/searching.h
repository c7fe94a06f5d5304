#pragma once

#include <QString>
#include <QStringList>

/** Looking for one text in another, unit by unit and by case if not said otherwise. */
namespace text {

/** The pieces between the separators, empty ones too; the whole text where the separator does not occur or is empty. */
QStringList pieces(const QString &text, const QString &separator);

/** Every occurrence replaced, from the left; unchanged if @p search is empty. */
QString replaced(const QString &text, const QString &search, const QString &replacement);

/** Whether @p search occurs in @p text in any case of its letters; an empty one always does. */
bool containsInAnyCase(const QString &text, const QString &search);

/** Without U+0020; tabs, line breaks and other spaces stay. */
QString withoutSpaces(const QString &text);

} // namespace text
