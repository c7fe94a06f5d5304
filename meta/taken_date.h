#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace meta {

/** When a picture was taken, as far as that is stated. */
struct TakenDate
{
    QDate day;
    std::optional<QTime> time;
    QString subSeconds;             ///< digits of the fraction of a second; empty if unknown
    std::optional<int> zoneSeconds; ///< east of Greenwich

    /** "2026-11-22", "2026-11-22T14:05:09", "2026-11-22T14:05:09.25+01:00". */
    QString toText() const;
    /** None for other texts. Seconds may be missing, a space may replace the T, and Z may replace +00:00. */
    static std::optional<TakenDate> fromText(const QString &text);
    /** "2026:11:22 14:05:09", with the fraction of a second and the time zone, which EXIF keeps in separate tags. */
    static std::optional<TakenDate> fromExif(const QString &text, const QString &subSeconds, const QString &zone);
    /** "20261122" and "140509+0100", which may be empty. */
    static std::optional<TakenDate> fromIptc(const QString &day, const QString &time);

    QString exifText() const;
    QString exifZone() const; ///< "+01:00"; empty if unknown
    QString iptcDay() const;
    QString iptcTime() const; ///< empty if unknown

    /** So many seconds later, or earlier. */
    TakenDate shifted(qint64 seconds) const;
    /** Whether both mean the same moment, as far as both state it: what one does not state is not compared. */
    bool agreesWith(const TakenDate &other) const;
};

/** "+01:00", "-0330" or "Z" in seconds; none for other texts. */
std::optional<int> zoneFromText(const QString &text);

} // namespace meta
