#include "jobs/services/page_texts.h"

#include <QStringList>

#include <array>
#include <vector>

namespace jobs {

namespace {

struct Place
{
    const char *group;
    const char *name;
};

struct Row
{
    const char *token;
    std::vector<Place> places;
};

const std::vector<Row> &rows()
{
    static const std::vector<Row> all = {
        {"title", {{"{XMP}", "dc:title"}, {"{IPTC}", "ObjectName"}}},
        {"headline", {{"{XMP}", "photoshop:Headline"}, {"{IPTC}", "Headline"}}},
        {"caption", {{"{XMP}", "dc:description"}, {"{IPTC}", "Caption/Abstract"}, {"{TIFF}", "ImageDescription"}}},
        {"creator", {{"{XMP}", "dc:creator"}, {"{IPTC}", "Byline"}, {"{TIFF}", "Artist"}}},
        {"copyright", {{"{XMP}", "dc:rights"}, {"{IPTC}", "CopyrightNotice"}, {"{TIFF}", "Copyright"}}},
        {"keywords", {{"{XMP}", "dc:subject"}, {"{IPTC}", "Keywords"}}},
        {"sublocation", {{"{XMP}", "iptc:Location"}, {"{IPTC}", "SubLocation"}}},
        {"city", {{"{XMP}", "photoshop:City"}, {"{IPTC}", "City"}}},
        {"state", {{"{XMP}", "photoshop:State"}, {"{IPTC}", "Province/State"}}},
        {"country", {{"{XMP}", "photoshop:Country"}, {"{IPTC}", "Country/PrimaryLocationName"}}},
    };
    return all;
}

QString wordsOf(const QVariant &value)
{
    if (value.typeId() != QMetaType::QVariantList)
        return value.toString().trimmed();
    QStringList words;
    for (const QVariant &each : value.toList())
        if (const QString word = each.toString().trimmed(); !word.isEmpty())
            words.append(word);
    return words.join(QStringLiteral(", "));
}

QString textAt(const QVariantMap &properties, const Place &place)
{
    return wordsOf(properties.value(QLatin1String(place.group)).toMap().value(QLatin1String(place.name)));
}

/** "48.20849° N, 16.37208° E"; empty if one of the two is missing. */
QString coordinates(const QVariantMap &gps)
{
    constexpr int decimals = 5; // of a degree: about a metre
    QStringList parts;
    for (const char *name : {"Latitude", "Longitude"}) {
        const QString key = QLatin1String(name);
        bool isNumber = false;
        const double degrees = gps.value(key).toDouble(&isNumber);
        const QString side = gps.value(key + QStringLiteral("Ref")).toString().left(1).toUpper();
        if (!isNumber || side.isEmpty())
            return {};
        parts.append(QString::number(degrees, 'f', decimals) + QStringLiteral("° ") + side);
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace

QHash<QString, QString> pageTexts(const QVariantMap &properties, const QVariantMap &fields)
{
    QHash<QString, QString> texts;
    for (const Row &row : rows()) {
        const QVariantMap field = fields.value(QLatin1String(row.token)).toMap();
        QString text = field.value(QStringLiteral("value")).toStringList().join(QStringLiteral(", "));
        for (auto place = row.places.begin(); place != row.places.end() && text.isEmpty(); ++place)
            text = textAt(properties, *place);
        if (!text.isEmpty())
            texts.insert(QLatin1String(row.token), text);
    }
    if (const QString place = coordinates(properties.value(QStringLiteral("{GPS}")).toMap()); !place.isEmpty())
        texts.insert(QStringLiteral("coordinates"), place);
    return texts;
}

} // namespace jobs
