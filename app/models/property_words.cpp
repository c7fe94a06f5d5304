#include "app/models/property_words.h"

#include "platform/foundation/human_texts.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QHash>
#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace window {
namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("properties", text);
}

/** Up to six digits, without zeros at the end. */
QString number(double value)
{
    constexpr int digits = 6;
    const bool whole = std::trunc(value) == value && std::abs(value) < 1e15;
    return whole ? QLocale().toString(qint64(value)) : QLocale().toString(value, 'g', digits);
}

/** A count of pixels or bits; 0 for values that make no sense. */
int countOf(double value)
{
    return value >= 0 && value <= std::numeric_limits<int>::max() ? int(value) : 0;
}

/** "1/250 s" for less than a third of a second, "0.5 s" for more. */
QString seconds(double value)
{
    constexpr double longestFraction = 0.3;
    const bool isFraction = value > 0 && value < longestFraction;
    return translated(QT_TRANSLATE_NOOP("properties", "%1 s"))
        .arg(isFraction ? QStringLiteral("1/%1").arg(std::lround(1 / value)) : number(value));
}

QString exposureValue(double value)
{
    const QString size = QLocale().toString(std::round(std::abs(value) * 100) / 100, 'g', 4);
    const QString sign = value > 0 ? QStringLiteral("+") : value < 0 ? QStringLiteral("−") : QString();
    return translated(QT_TRANSLATE_NOOP("properties", "%1 EV")).arg(sign + size);
}

QString aperture(double value)
{
    return QStringLiteral("f/") + QLocale().toString(std::round(value * 10) / 10, 'g', 4);
}

/**
 * An aperture that is stated as a stop number. Thirds of a stop, which cameras round to eighths, get the numbers that
 * are engraved on lenses: 5.625 is f/7.1, not f/7.
 */
QString apertureOfStop(double stop)
{
    static constexpr double nominal[] = {1,   1.1, 1.2, 1.4, 1.6, 1.8, 2,  2.2, 2.5, 2.8, 3.2, 3.5, 4,  4.5, 5, 5.6,
                                         6.3, 7.1, 8,   9,   10,  11,  13, 14,  16,  18,  20,  22,  25, 29,  32};
    constexpr double tolerance = 0.05;
    const double third = std::round(stop * 3);
    const bool isNominal = std::abs(stop - third / 3) < tolerance && third >= 0 && third < double(std::size(nominal));
    return aperture(isNominal ? nominal[size_t(third)] : std::exp2(stop / 2));
}

/** "48.85840° N" */
QString coordinate(double degrees, const QString &reference)
{
    const QString size = QStringLiteral("%1°").arg(QLocale().toString(degrees, 'f', 5));
    return reference.isEmpty() ? size : size + u' ' + reference;
}

QString orientation(double value)
{
    static const char *const words[] = {
        QT_TRANSLATE_NOOP("properties", "upright"),
        QT_TRANSLATE_NOOP("properties", "mirrored"),
        QT_TRANSLATE_NOOP("properties", "upside down"),
        QT_TRANSLATE_NOOP("properties", "upside down, mirrored"),
        QT_TRANSLATE_NOOP("properties", "on its left side, mirrored"),
        QT_TRANSLATE_NOOP("properties", "turn right to see it upright"),
        QT_TRANSLATE_NOOP("properties", "on its right side, mirrored"),
        QT_TRANSLATE_NOOP("properties", "turn left to see it upright"),
    };
    const bool isKnown = value >= 1 && value <= 8;
    return isKnown ? QStringLiteral("%1 (%2)").arg(int(value)).arg(translated(words[int(value) - 1])) : number(value);
}

/** The whole number 1 of the flash's bits says that it fired. */
QString flash(double value)
{
    const bool fired = (int(value) & 1) != 0;
    return QStringLiteral("%1 (%2)")
        .arg(int(value))
        .arg(fired ? translated(QT_TRANSLATE_NOOP("properties", "fired"))
                   : translated(QT_TRANSLATE_NOOP("properties", "did not fire")));
}

/** "2.21" for 2, 2, 1, and "2.3.0.0" for the four numbers of a GPS version. */
QString version(const QString &key, const QVariantList &numbers)
{
    QStringList digits;
    for (const QVariant &each : numbers)
        digits << each.toString();
    if (key.startsWith(QLatin1String("GPS")) || digits.size() < 2)
        return digits.join(u'.');
    const QString first = digits.takeFirst();
    return first + u'.' + digits.join(QString());
}

/** "48° 51′ 30.2″", of a positive number. */
QString minutes(double degrees)
{
    constexpr int tenthsInDegree = 36000;
    constexpr int tenthsInMinute = 600;
    const int tenths = int(std::lround(degrees * tenthsInDegree));
    return QStringLiteral("%1° %2′ %3″")
        .arg(tenths / tenthsInDegree)
        .arg(tenths % tenthsInDegree / tenthsInMinute)
        .arg(QString::number(tenths % tenthsInMinute / 10.0, 'f', 1));
}

/** A coordinate with its sign; none if it is missing or its absolute value exceeds @p most. */
std::optional<double> signedCoordinate(const QVariantMap &gps, const QString &key, QLatin1String negative, double most)
{
    bool isNumber = false;
    const double size = gps.value(key).toDouble(&isNumber);
    if (!isNumber || !(std::abs(size) <= most))
        return std::nullopt;
    return gps.value(key + QLatin1String("Ref")).toString() == negative ? -size : size;
}

/** What a numeric property stands for. */
struct Meaning
{
    const char *key;
    int number;
    const char *words;
};

constexpr Meaning meanings[] = {
    {"ExposureProgram", 1, QT_TRANSLATE_NOOP("properties", "manual")},
    {"ExposureProgram", 2, QT_TRANSLATE_NOOP("properties", "automatic")},
    {"ExposureProgram", 3, QT_TRANSLATE_NOOP("properties", "aperture priority")},
    {"ExposureProgram", 4, QT_TRANSLATE_NOOP("properties", "shutter priority")},
    {"ExposureProgram", 5, QT_TRANSLATE_NOOP("properties", "creative")},
    {"ExposureProgram", 6, QT_TRANSLATE_NOOP("properties", "action")},
    {"ExposureProgram", 7, QT_TRANSLATE_NOOP("properties", "portrait")},
    {"ExposureProgram", 8, QT_TRANSLATE_NOOP("properties", "landscape")},
    {"MeteringMode", 1, QT_TRANSLATE_NOOP("properties", "average")},
    {"MeteringMode", 2, QT_TRANSLATE_NOOP("properties", "centre-weighted")},
    {"MeteringMode", 3, QT_TRANSLATE_NOOP("properties", "spot")},
    {"MeteringMode", 4, QT_TRANSLATE_NOOP("properties", "several spots")},
    {"MeteringMode", 5, QT_TRANSLATE_NOOP("properties", "several fields")},
    {"MeteringMode", 6, QT_TRANSLATE_NOOP("properties", "part of the picture")},
    {"SceneCaptureType", 0, QT_TRANSLATE_NOOP("properties", "standard")},
    {"SceneCaptureType", 1, QT_TRANSLATE_NOOP("properties", "landscape")},
    {"SceneCaptureType", 2, QT_TRANSLATE_NOOP("properties", "portrait")},
    {"SceneCaptureType", 3, QT_TRANSLATE_NOOP("properties", "night")},
    {"ExposureMode", 0, QT_TRANSLATE_NOOP("properties", "automatic")},
    {"ExposureMode", 1, QT_TRANSLATE_NOOP("properties", "manual")},
    {"ExposureMode", 2, QT_TRANSLATE_NOOP("properties", "bracketing")},
    {"WhiteBalance", 0, QT_TRANSLATE_NOOP("properties", "automatic")},
    {"WhiteBalance", 1, QT_TRANSLATE_NOOP("properties", "manual")},
    {"ResolutionUnit", 2, QT_TRANSLATE_NOOP("properties", "inch")},
    {"ResolutionUnit", 3, QT_TRANSLATE_NOOP("properties", "centimetre")},
    {"ColorSpace", 1, "sRGB"},
    {"ColorSpace", 65535, QT_TRANSLATE_NOOP("properties", "not sRGB")},
    {"AltitudeRef", 0, QT_TRANSLATE_NOOP("properties", "above sea level")},
    {"AltitudeRef", 1, QT_TRANSLATE_NOOP("properties", "below sea level")},
};

/** "3 (spot)" */
QString withMeaning(const QString &key, double value)
{
    const auto known = std::find_if(std::begin(meanings), std::end(meanings), [&](const Meaning &each) {
        return value == each.number && key == QLatin1String(each.key);
    });
    return known == std::end(meanings) ? number(value)
                                       : QStringLiteral("%1 (%2)").arg(known->number).arg(translated(known->words));
}

/** Numbers that have a unit or a special form. */
QString withUnit(const QString &key, double value, const QVariantMap &group)
{
    using Form = QString (*)(double);
    static const QHash<QString, Form> forms = {
        {QStringLiteral("ExposureTime"), seconds},
        {QStringLiteral("ShutterSpeedValue"), [](double apex) { return seconds(std::exp2(-apex)); }},
        {QStringLiteral("FNumber"), aperture},
        {QStringLiteral("ApertureValue"), apertureOfStop},
        {QStringLiteral("MaxApertureValue"), apertureOfStop},
        {QStringLiteral("ExposureBiasValue"), exposureValue},
        {QStringLiteral("BrightnessValue"), exposureValue},
        {QStringLiteral("FocalLength"),
         [](double length) { return translated(QT_TRANSLATE_NOOP("properties", "%1 mm")).arg(number(length)); }},
        {QStringLiteral("FocalLenIn35mmFilm"),
         [](double length) { return translated(QT_TRANSLATE_NOOP("properties", "%1 mm")).arg(number(length)); }},
        {QStringLiteral("SubjectDistance"),
         [](double metres) { return translated(QT_TRANSLATE_NOOP("properties", "%1 m")).arg(number(metres)); }},
        {QStringLiteral("Altitude"),
         [](double metres) { return translated(QT_TRANSLATE_NOOP("properties", "%1 m")).arg(number(metres)); }},
        {QStringLiteral("HPositioningError"),
         [](double metres) { return translated(QT_TRANSLATE_NOOP("properties", "%1 m")).arg(number(metres)); }},
        {QStringLiteral("ImgDirection"), [](double degrees) { return number(degrees) + u'°'; }},
        {QStringLiteral("DestBearing"), [](double degrees) { return number(degrees) + u'°'; }},
        {QStringLiteral("PixelWidth"),
         [](double pixels) {
             return QCoreApplication::translate("properties", "%Ln pixels", nullptr, countOf(pixels));
         }},
        {QStringLiteral("PixelHeight"),
         [](double pixels) {
             return QCoreApplication::translate("properties", "%Ln pixels", nullptr, countOf(pixels));
         }},
        {QStringLiteral("Depth"),
         [](double bits) { return QCoreApplication::translate("properties", "%Ln bits", nullptr, countOf(bits)); }},
        {QStringLiteral("DelayTime"), seconds},
        {QStringLiteral("Orientation"), orientation},
        {QStringLiteral("Flash"), flash},
    };
    if (key.endsWith(QLatin1String("Latitude")) || key.endsWith(QLatin1String("Longitude")))
        return coordinate(value, group.value(key + QLatin1String("Ref")).toString());
    const Form form = forms.value(key);
    return form ? form(value) : withMeaning(key, value);
}

/** "2026:08:14 10:20:30" as a date with its time, and "2026:08:14" as a date; what is neither stays as it is. */
QString dateWords(const QString &key, const QString &text)
{
    if (!key.contains(QLatin1String("Date")))
        return text;
    const QDateTime moment = QDateTime::fromString(text, QStringLiteral("yyyy:MM:dd HH:mm:ss"));
    if (moment.isValid())
        return QLocale().toString(moment.date(), platform::localDateForm()) + u' ' +
               QLocale().toString(moment.time(), QStringLiteral("HH:mm:ss"));
    const QDate day = QDate::fromString(text, QStringLiteral("yyyy:MM:dd"));
    return day.isValid() ? QLocale().toString(day, platform::localDateForm()) : text;
}

bool areNumbers(const QVariantList &values)
{
    return std::all_of(values.begin(), values.end(), [](const QVariant &each) {
        return each.canConvert<double>() && each.typeId() != QMetaType::QString;
    });
}

} // namespace

QString propertyWords(const QString &key, const QVariant &value, const QVariantMap &group)
{
    switch (value.typeId()) {
    case QMetaType::QVariantList: {
        if (key.endsWith(QLatin1String("Version")) && areNumbers(value.toList()))
            return version(key, value.toList());
        QStringList words;
        for (const QVariant &each : value.toList())
            words << propertyWords(QString(), each, {});
        return words.join(QStringLiteral(", "));
    }
    case QMetaType::QByteArray:
        return QCoreApplication::translate("properties", "%Ln bytes", nullptr, int(value.toByteArray().size()));
    case QMetaType::Bool:
        return value.toBool() ? translated(QT_TRANSLATE_NOOP("properties", "yes"))
                              : translated(QT_TRANSLATE_NOOP("properties", "no"));
    case QMetaType::QString:
        return dateWords(key, value.toString());
    default:
        return withUnit(key, value.toDouble(), group);
    }
}

std::optional<Place> placeOf(const QVariantMap &properties)
{
    constexpr double pole = 90;
    constexpr double halfRound = 180;
    const QVariantMap gps = properties.value(QStringLiteral("{GPS}")).toMap();
    const auto latitude = signedCoordinate(gps, QStringLiteral("Latitude"), QLatin1String("S"), pole);
    const auto longitude = signedCoordinate(gps, QStringLiteral("Longitude"), QLatin1String("W"), halfRound);
    return latitude && longitude ? std::optional(Place{*latitude, *longitude}) : std::nullopt;
}

QString placeWords(const Place &place, PlaceForm form)
{
    if (form == PlaceForm::Degrees) {
        constexpr int decimals = 6; // about a hand's width
        return QStringLiteral("%1, %2").arg(QString::number(place.latitude, 'f', decimals),
                                            QString::number(place.longitude, 'f', decimals));
    }
    return QStringLiteral("%1 %2, %3 %4")
        .arg(minutes(std::abs(place.latitude)), place.latitude < 0 ? QStringLiteral("S") : QStringLiteral("N"),
             minutes(std::abs(place.longitude)), place.longitude < 0 ? QStringLiteral("W") : QStringLiteral("E"));
}

} // namespace window
