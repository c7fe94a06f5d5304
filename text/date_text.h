#pragma once

#include <QDateTime>
#include <QLocale>
#include <QTimeZone>

namespace text {

/**
 * A moment in the usual notation: the locale's short date, a comma, its full time with the zone's name: "21/11/2026,
 * 08:30:05 Greenwich Mean Time". Empty for an invalid date.
 *
 * @param zone  the time zone used
 */
QString dateText(const QDateTime &date, const QLocale &locale, const QTimeZone &zone);

} // namespace text
