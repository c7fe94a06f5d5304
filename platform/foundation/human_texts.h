#pragma once

#include <QDateTime>
#include <QString>

class QDateTime;

namespace platform {

/**
 * A count of bytes as people read it, in decimal units: "0 bytes", "1 byte", "999 bytes", "12 KB", "2.4 MB", "1.25 GB".
 *
 * Kilobytes have no decimals, megabytes one, larger units two; zeros at the end of the decimals are left out, and what would
 * round to 1,000 of a unit is 1 of the next. Halves are rounded up. Counts below 0 are 0.
 *
 * English everywhere: for names of files and for answers of services.
 */
QString byteCountText(qint64 bytes);

/** The same for the reader: in the words of the installed translation and with the decimal sign of the default locale. */
QString localByteCountText(qint64 bytes);

/** The form of dates of the program's locale, with all four digits of the year: "dd/MM/yyyy". */
QString localDateForm();

/** A date with its time in that form: "14/08/2026 10:20"; empty where it is not valid. */
QString localDateText(const QDateTime &date);

/** Date and time in the medium style of British English, in local time: "16 Nov 2026, 03:52:09". Null for an invalid date. */
QString mediumDateText(const QDateTime &date);

} // namespace platform
