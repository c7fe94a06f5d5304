#include "app/models/listed_values.h"

#include "app/models/property_words.h"

#include "jobs/reading/property_values.h"
#include "platform/imageio/metadata/property_labels.h"

#include <QLocale>
#include <QRegularExpression>

namespace window {
namespace {

QString lastPart(const QString &path)
{
    return path.mid(path.lastIndexOf(jobs::propertySeparator) + 1);
}

/** The value of a list with one element is that element, as for the sensitivity. */
QVariant onlyOne(const QVariant &value)
{
    const bool isList = value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList;
    return isList && value.toList().size() == 1 ? value.toList().constFirst() : value;
}

/** Cameras write "2026:08:14 10:20:30", which is compared with what people type. */
QString withDashes(QString text)
{
    static const QRegularExpression date(QStringLiteral("^\\d{4}:\\d\\d:\\d\\d( |$)"));
    if (date.match(text).hasMatch())
        text[4] = text[7] = u'-';
    return text;
}

ListedValue listedValue(const QString &name, const QVariant &stated, const QVariant &reference)
{
    ListedValue listed;
    const QVariant value = onlyOne(stated);
    const bool isField = !name.contains(jobs::propertySeparator);
    const QString key = lastPart(name);
    const QVariantMap group = {{key + QStringLiteral("Ref"), reference}};
    if (value.typeId() == QMetaType::QStringList || isField)
        listed.words = value.toStringList().join(QStringLiteral(", "));
    else
        listed.words = propertyWords(key, stated, group);
    listed.stated = withDashes(value.toString());
    bool isNumber = false;
    const double number = value.toString().toDouble(&isNumber);
    if (isNumber && value.typeId() != QMetaType::QByteArray)
        listed.number = number;
    return listed;
}

} // namespace

ListedValues listedValues(const QVariantMap &values)
{
    ListedValues listed;
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry) {
        const QVariantMap said = entry->toMap();
        listed.insert(entry.key(), listedValue(entry.key(), said.value(QStringLiteral("value")),
                                               said.value(QStringLiteral("reference"))));
    }
    return listed;
}

QString propertyPathWords(const QString &path)
{
    const QString words = platform::propertyLabel(lastPart(path));
    const QString group = path.left(path.indexOf(jobs::propertySeparator));
    const bool isOfCamera = group.isEmpty() || group == QLatin1String("{Exif}") || group == QLatin1String("{TIFF}");
    return isOfCamera ? words : QStringLiteral("%1: %2").arg(platform::propertyLabel(group), words);
}

QStringList usualPropertyPaths()
{
    QStringList paths;
    for (const char *path : {"{TIFF}|Make",
                             "{TIFF}|Model",
                             "{Exif}|LensModel",
                             "{Exif}|FocalLength",
                             "{Exif}|FocalLenIn35mmFilm",
                             "{Exif}|FNumber",
                             "{Exif}|ExposureTime",
                             "{Exif}|ISOSpeedRatings",
                             "{Exif}|ExposureBiasValue",
                             "{Exif}|ExposureProgram",
                             "{Exif}|MeteringMode",
                             "{Exif}|Flash",
                             "{Exif}|WhiteBalance",
                             "{Exif}|BodySerialNumber",
                             "{Exif}|LensSerialNumber",
                             "{Exif}|CameraOwnerName",
                             "{Exif}|UserComment",
                             "{Exif}|ColorSpace",
                             "{TIFF}|Software",
                             "{TIFF}|DateTime",
                             "|ProfileName",
                             "|ColorModel",
                             "|Depth",
                             "|DPIWidth",
                             "|HasAlpha",
                             "|Orientation",
                             "|PixelWidth",
                             "|PixelHeight",
                             "{GPS}|Latitude",
                             "{GPS}|Longitude",
                             "{GPS}|Altitude"})
        paths.append(QString::fromLatin1(path));
    return paths;
}

std::optional<double> numberIn(const QString &text)
{
    const auto plain = [](const QString &part) -> std::optional<double> {
        bool isGood = false;
        const double written = QLocale().toDouble(part.trimmed(), &isGood);
        if (isGood)
            return written;
        const double number = part.trimmed().toDouble(&isGood);
        return isGood ? std::optional(number) : std::nullopt;
    };
    const qsizetype slash = text.indexOf(u'/');
    if (slash < 0)
        return plain(text);
    const auto above = plain(text.left(slash));
    const auto below = plain(text.mid(slash + 1));
    return above && below && *below != 0 ? std::optional(*above / *below) : std::nullopt;
}

} // namespace window
