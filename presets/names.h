#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/**
 * Names of tables and columns as callers give them. They are pasted into statements unchanged, so anything that is not
 * simply a name must be recognised here: the database itself cannot see a constant condition or a comment.
 */
namespace presets {

/**
 * The last part of one name, without its quotation marks: Presets for Presets, "Presets", [Presets], `Presets` or main.Presets.
 *
 * @param mostParts  2 for a table, 3 for a column
 * @return nothing for any other text: empty, two words, an expression, a comment, single quotes, a NUL
 */
std::optional<QString> oneName(const QString &text, int mostParts);

/** The columns of a list such as "StrField0, StrField1", including "*"; nothing if one is not a name. */
std::optional<QStringList> columnList(const QString &text);

/**
 * Whether @p text can be put between single quotes without ending them, or the statement, and unchanged: half a
 * surrogate pair would become another text in UTF-8.
 */
bool staysInsideQuotes(const QString &text);

/** Whether two names are the same to SQLite, which folds the letters A to Z only. */
bool isSameName(const QString &a, const QString &b);

} // namespace presets
