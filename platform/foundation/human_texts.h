#pragma once

#include <QDateTime>
#include <QString>

class QDateTime;

namespace platform {

/**
 * A count of bytes as people read it, in decimal units: "0 bytes", "1 byte", "999 bytes", "12 KB", "2.4 MB", "1.25 GB".
 *
 * Kilobytes have no decimals, megabytes one, larger units two; trailing zeros of the decimals are left out, and 1,000
 * of a unit after rounding becomes 1 of the next. Halves are rounded up. Counts below 0 are 0.
 *
 * Always English: for names of files and for answers of services.
 */
QString byteCountText(qint64 bytes);

/** The same for the reader: in the words of the installed translation and with the decimal sign of the default locale. */
QString localByteCountText(qint64 bytes);

/** The date format of the program's locale, with all four digits of the year: "dd/MM/yyyy". */
QString localDateForm();

/** A date with its time in that format: "14/08/2026 10:20"; empty if it is not valid. */
QString localDateText(const QDateTime &date);

/** Date and time in the medium style of British English, in local time: "16 Nov 2026, 03:52:09". Null for an invalid date. */
QString mediumDateText(const QDateTime &date);

} // namespace platform
