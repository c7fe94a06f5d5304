#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

namespace files {

/**
 * A date for use in names, local time, without spaces and colons: "16-Nov-2026T03-52-09". Months as abbreviated in
 * British English. Null for an invalid date.
 */
QString dateStamp(const QDateTime &date);

/** Whether a format code asks for a new stamp: 0, 1 and 2 do, as number or text. All three give the same format. */
bool asksForStamp(const QVariant &formatCode);

} // namespace files
