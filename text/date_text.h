#pragma once

#include <QDateTime>
#include <QLocale>
#include <QTimeZone>

namespace text {

/**
 * A moment as people write it: the locale's short date, a comma, its full time with the zone's name: "21/11/2026, 08:30:05
 * Greenwich Mean Time". Empty for an invalid date.
 *
 * @param zone  the zone that the moment is told in
 */
QString dateText(const QDateTime &date, const QLocale &locale, const QTimeZone &zone);

} // namespace text
