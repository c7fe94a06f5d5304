#include "text/date_text.h"

namespace text {
namespace {

QString zoneName(const QDateTime &date, const QTimeZone &zone, const QLocale &locale)
{
    const QString name = zone.displayName(date, QTimeZone::LongName, locale);
    return name.isEmpty() ? zone.abbreviation(date) : name;
}

/** The locale's format of a full time, with the name of the zone as quoted text in its place. */
QString fullTimeFormat(const QLocale &locale, QString name)
{
    const QString quoted = u'\'' + name.replace(u'\'', QStringLiteral("''")) + u'\'';
    const QString format = locale.timeFormat(QLocale::LongFormat);
    QString result;
    bool isQuoted = false;
    bool hasZone = false;
    for (const QChar c : format) {
        isQuoted = isQuoted != (c == u'\'');
        if (c != u't' || isQuoted)
            result += c;
        else if (!hasZone)
            result += quoted;
        hasZone = hasZone || (c == u't' && !isQuoted);
    }
    return hasZone ? result : result + u' ' + quoted;
}

} // namespace

QString dateText(const QDateTime &date, const QLocale &locale, const QTimeZone &zone)
{
    if (!date.isValid())
        return QString();
    const QDateTime local = date.toTimeZone(zone);
    const QString format = fullTimeFormat(locale, zoneName(local, zone, locale));
    return locale.toString(local.date(), QLocale::ShortFormat) + QStringLiteral(", ") +
           locale.toString(local.time(), format);
}

} // namespace text
