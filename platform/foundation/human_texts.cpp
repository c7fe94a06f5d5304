#include "platform/foundation/human_texts.h"

#include <QLocale>

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
    {1000LL, 0, "KB"},
    {1000000LL, 1, "MB"},
    {1000000000LL, 2, "GB"},
    {1000000000000LL, 2, "TB"},
    {1000000000000000LL, 2, "PB"},
    {1000000000000000000LL, 2, "EB"},
}};

constexpr std::array<int, 3> partsByDecimals = {1, 10, 100};

/** How many of the smallest shown parts of the unit there are; whole numbers, so that nothing is lost on the way. */
qint64 partsOf(qint64 bytes, const Unit &unit)
{
    const qint64 part = unit.bytes / partsByDecimals.at(size_t(unit.decimals));
    const bool roundsUp = bytes % part >= part - part / 2;
    return bytes / part + (roundsUp ? 1 : 0);
}

QString inUnit(qint64 parts, const Unit &unit)
{
    const int perUnit = partsByDecimals.at(size_t(unit.decimals));
    QString text = QString::number(parts / perUnit);
    QString fraction = QString::number(parts % perUnit).rightJustified(unit.decimals, u'0');
    while (fraction.endsWith(u'0'))
        fraction.chop(1);
    if (unit.decimals > 0 && !fraction.isEmpty())
        text += u'.' + fraction;
    return text + u' ' + QString::fromLatin1(unit.name);
}

} // namespace

QString byteCountText(qint64 bytes)
{
    constexpr qint64 thousand = 1000;
    if (bytes <= 0)
        return QStringLiteral("Zero KB");
    if (bytes == 1)
        return QStringLiteral("1 byte");
    if (bytes < thousand)
        return QString::number(bytes) + QStringLiteral(" bytes");
    for (const Unit &unit : units) {
        const qint64 parts = partsOf(bytes, unit);
        if (parts < thousand * partsByDecimals.at(size_t(unit.decimals)) || &unit == &units.back())
            return inUnit(parts, unit);
    }
    return {};
}

QString mediumDateText(const QDateTime &date)
{
    if (!date.isValid())
        return {};
    static const QLocale british(QLocale::English, QLocale::UnitedKingdom);
    return british.toString(date.toLocalTime(), QStringLiteral("d MMM yyyy, HH:mm:ss"));
}

} // namespace platform
