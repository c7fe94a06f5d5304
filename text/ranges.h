#pragma once

#include <QString>

#include <optional>

/**
 * Parts of a text by position. Positions and counts are in UTF-16 code units, from 0; a character beyond the basic
 * plane counts as two, and may be cut in half. Every function returns nothing for a position, count or range that is
 * not in the text.
 */
namespace text {

enum class Side { Left, Right };

/** @p text without its first or last @p count units. Empty text stays as it is, whatever the count. */
std::optional<QString> stripped(const QString &text, Side side, int count);

/** @p length units from @p start. Nothing is clamped. */
std::optional<QString> section(const QString &text, int start, int length);

/** @p target with @p insertion at @p position; at the length it is appended. */
std::optional<QString> inserted(const QString &target, const QString &insertion, int position);

} // namespace text
