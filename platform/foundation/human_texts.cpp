#include "platform/foundation/human_texts.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <array>

namespace platform {
namespace {

struct Unit
{
    qint64 bytes;
    int decimals;
    const char *name;
};

constexpr std::array<Unit, 6> units = {{
    {1000LL, 0, QT_TRANSLATE_NOOP("platform", "KB")},
    {1000000LL, 1, QT_TRANSLATE_NOOP("platform", "MB")},
    {1000000000LL, 2, QT_TRANSLATE_NOOP("platform", "GB")},
    {1000000000000LL, 2, QT_TRANSLATE_NOOP("platform", "TB")},
    {1000000000000000LL, 2, QT_TRANSLATE_NOOP("platform", "PB")},
    {1000000000000000000LL, 2, QT_TRANSLATE_NOOP("platform", "EB")},
}};

constexpr std::array<int, 3> partsByDecimals = {1, 10, 100};

/** The number of smallest displayed parts of the unit; whole numbers, so that nothing is lost to rounding. */
qint64 partsOf(qint64 bytes, const Unit &unit)
{
    const qint64 part = unit.bytes / partsByDecimals.at(size_t(unit.decimals));
    const bool roundsUp = bytes % part >= part - part / 2;
    return bytes / part + (roundsUp ? 1 : 0);
}

QString numberText(qint64 parts, int decimals, const QString &point)
{
    const int perUnit = partsByDecimals.at(size_t(decimals));
    const QString whole = QString::number(parts / perUnit);
    QString fraction = decimals == 0 ? QString() : QString::number(parts % perUnit).rightJustified(decimals, u'0');
    while (fraction.endsWith(u'0'))
        fraction.chop(1);
    return fraction.isEmpty() ? whole : whole + point + fraction;
}

constexpr qint64 thousand = 1000;

/** A count of at least a thousand: its number, and the unit of that number. */
struct Amount
{
    QString number;
    const char *unit;
};

Amount amountOf(qint64 bytes, const QString &point)
{
    auto unit = units.begin();
    while (unit + 1 != units.end() && partsOf(bytes, *unit) >= thousand * partsByDecimals.at(size_t(unit->decimals)))
        ++unit;
    return {numberText(partsOf(bytes, *unit), unit->decimals, point), unit->name};
}

} // namespace

QString byteCountText(qint64 bytes)
{
    const qint64 count = std::max<qint64>(0, bytes);
    if (count < thousand)
        return QStringLiteral("%1 %2").arg(QString::number(count), count == 1 ? u"byte" : u"bytes");
    const Amount amount = amountOf(count, QStringLiteral("."));
    return amount.number + u' ' + QString::fromLatin1(amount.unit);
}

QString localByteCountText(qint64 bytes)
{
    const qint64 count = std::max<qint64>(0, bytes);
    if (count < thousand)
        return QCoreApplication::translate("platform", "%n bytes", nullptr, int(count));
    const Amount amount = amountOf(count, QLocale().decimalPoint());
    return amount.number + u' ' + QCoreApplication::translate("platform", amount.unit);
}

QString mediumDateText(const QDateTime &date)
{
    if (!date.isValid())
        return {};
    static const QLocale british(QLocale::English, QLocale::UnitedKingdom);
    return british.toString(date.toLocalTime(), QStringLiteral("d MMM yyyy, HH:mm:ss"));
}

QString localDateForm()
{
    QString form = QLocale().dateFormat(QLocale::ShortFormat);
    if (!form.contains(QLatin1String("yyyy")))
        form.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return form;
}

QString localDateText(const QDateTime &date)
{
    const QLocale locale;
    return date.isValid() ? locale.toString(date.date(), localDateForm()) + u' ' +
                                locale.toString(date.time(), QLocale::ShortFormat)
                          : QString();
}

} // namespace platform
