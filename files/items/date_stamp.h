#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

namespace files {

/**
 * A date for use inside names, local time, without spaces and colons: "16-Nov-2026T03-52-09". Months as British English
 * shortens them. Null for an invalid date.
 */
QString dateStamp(const QDateTime &date);

/** Whether a format code asks for a new stamp: 0, 1 and 2 do, as number or as text. All three give the same form. */
bool asksForStamp(const QVariant &formatCode);

} // namespace files
