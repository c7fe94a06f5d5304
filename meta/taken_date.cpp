#include "meta/taken_date.h"

#include <QRegularExpression>

#include <cstdlib>

namespace meta {
namespace {

constexpr int minute = 60;
constexpr int hour = 60 * minute;

QString zoneText(int seconds, const char *between)
{
    const int size = std::abs(seconds);
    return QStringLiteral("%1%2%3%4")
        .arg(QChar(seconds < 0 ? u'-' : u'+'))
        .arg(size / hour, 2, 10, QChar(u'0'))
        .arg(QString::fromLatin1(between))
        .arg(size % hour / minute, 2, 10, QChar(u'0'));
}

std::optional<TakenDate> made(const QDate &day, const QString &time, const QString &subSeconds, const QString &zone)
{
    if (!day.isValid() || day.year() < 1 || day.year() > 9999)
        return std::nullopt;
    TakenDate date{day, std::nullopt, {}, std::nullopt};
    if (time.isEmpty())
        return date;
    const QTime parsed =
        QTime::fromString(time.size() == 5 ? time + QStringLiteral(":00") : time, QStringLiteral("HH:mm:ss"));
    if (!parsed.isValid())
        return std::nullopt;
    date.time = parsed;
    date.subSeconds = subSeconds.trimmed();
    date.zoneSeconds = zoneFromText(zone);
    return date;
}

} // namespace

std::optional<int> zoneFromText(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([+-])(\\d\\d):?(\\d\\d)$"));
    constexpr int mostHours = 14;
    if (text == QLatin1String("Z"))
        return 0;
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch() || match.captured(2).toInt() > mostHours || match.captured(3).toInt() >= minute)
        return std::nullopt;
    const int size = match.captured(2).toInt() * hour + match.captured(3).toInt() * minute;
    return match.captured(1) == QLatin1String("-") ? -size : size;
}

std::optional<TakenDate> TakenDate::fromText(const QString &text)
{
    static const QRegularExpression form(QStringLiteral(
        "^(\\d{4}-\\d\\d-\\d\\d)(?:[T ](\\d\\d:\\d\\d(?::\\d\\d)?)(?:\\.(\\d{1,9}))?(Z|[+-]\\d\\d:?\\d\\d)?)?$"));
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch())
        return std::nullopt;
    if (!match.captured(4).isEmpty() && !zoneFromText(match.captured(4)))
        return std::nullopt;
    return made(QDate::fromString(match.captured(1), Qt::ISODate), match.captured(2), match.captured(3),
                match.captured(4));
}

std::optional<TakenDate> TakenDate::fromExif(const QString &text, const QString &subSeconds, const QString &zone)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{4}):(\\d\\d):(\\d\\d) (\\d\\d:\\d\\d:\\d\\d)"));
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch())
        return std::nullopt;
    const QDate day(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt());
    return made(day, match.captured(4), subSeconds, zone);
}

std::optional<TakenDate> TakenDate::fromIptc(const QString &day, const QString &time)
{
    static const QRegularExpression form(QStringLiteral("^(\\d\\d)(\\d\\d)(\\d\\d)([+-]\\d{4})?$"));
    const QRegularExpressionMatch match = form.match(time.trimmed());
    const QString clock =
        match.hasMatch() ? QStringList{match.captured(1), match.captured(2), match.captured(3)}.join(u':') : QString();
    return made(QDate::fromString(day.trimmed(), QStringLiteral("yyyyMMdd")), clock, {}, match.captured(4));
}

QString TakenDate::toText() const
{
    QString text = day.toString(Qt::ISODate);
    if (!time)
        return text;
    text += u'T' + time->toString(QStringLiteral("HH:mm:ss"));
    if (!subSeconds.isEmpty())
        text += u'.' + subSeconds;
    return text + exifZone();
}

QString TakenDate::exifText() const
{
    return day.toString(QStringLiteral("yyyy:MM:dd ")) +
           time.value_or(QTime(0, 0)).toString(QStringLiteral("HH:mm:ss"));
}

QString TakenDate::exifZone() const
{
    return zoneSeconds ? zoneText(*zoneSeconds, ":") : QString();
}

QString TakenDate::iptcDay() const
{
    return day.toString(QStringLiteral("yyyyMMdd"));
}

QString TakenDate::iptcTime() const
{
    if (!time)
        return {};
    return time->toString(QStringLiteral("HHmmss")) + (zoneSeconds ? zoneText(*zoneSeconds, "") : QString());
}

TakenDate TakenDate::shifted(qint64 seconds) const
{
    const QDateTime moved = QDateTime(day, time.value_or(QTime(0, 0)), Qt::UTC).addSecs(seconds);
    TakenDate result = *this;
    result.day = moved.date();
    if (time)
        result.time = moved.time();
    return result;
}

bool TakenDate::agreesWith(const TakenDate &other) const
{
    const bool isSameTime = !time || !other.time || *time == *other.time;
    const bool isSameZone = !zoneSeconds || !other.zoneSeconds || *zoneSeconds == *other.zoneSeconds;
    return day == other.day && isSameTime && isSameZone;
}

} // namespace meta
