#include "platform/imageio/exif/user_comment.h"
#include "platform/imageio/metadata/metadata_blocks.h"
#include "platform/imageio/metadata/metadata_names.h"
#include "platform/imageio/metadata/metadata_values.h"

#include <cmath>
#include <exception>

namespace platform {
namespace {

void set(Metadata::Blocks &blocks, const Exiv2::ExifKey &key, const TagValue &value)
{
    if (value)
        blocks.exif[key.key()].setValue(value.get());
}

/** One entry that no tag can hold must not affect the others. */
template<typename Step> void attempt(Step step)
{
    try {
        step();
    } catch (const std::exception &) {
        // Skipped: exiv2 knows no such tag.
    }
}

template<typename Step> void forEachEntry(const QVariantMap &properties, const QString &group, Step step)
{
    const QVariantMap entries = properties.value(group).toMap();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry)
        attempt([&] { step(entry.key(), entry.value()); });
}

void setExif(Metadata::Blocks &blocks, const QString &name, const QVariant &value)
{
    const Exiv2::ExifKey key("Exif.Photo." + exifTagName(name).toStdString());
    if (name == QLatin1String("UserComment"))
        set(blocks, key, bytesValue(Exiv2::undefined, encodeUserComment(value.toString(), QSysInfo::LittleEndian)));
    else
        set(blocks, key, tagValue(key.defaultTypeId(), name, value));
}

void setTiff(Metadata::Blocks &blocks, const QString &name, const QVariant &value)
{
    const Exiv2::ExifKey key("Exif.Image." + exifTagName(name).toStdString());
    const bool wideText = name.startsWith(QLatin1String("XP")) && value.typeId() == QMetaType::QString;
    if (wideText)
        set(blocks, key,
            bytesValue(Exiv2::unsignedByte, utf16Bytes(value.toString() + QChar(u'\0'), QSysInfo::LittleEndian)));
    else
        set(blocks, key, tagValue(key.defaultTypeId(), name, value));
}

TagValue gpsTagValue(const Exiv2::ExifKey &key, const QString &name, const QVariant &value)
{
    const bool coordinate = name.endsWith(QLatin1String("Latitude")) || name.endsWith(QLatin1String("Longitude"));
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (coordinate && isNumber && std::isfinite(number) && std::abs(number) <= 360)
        return coordinateValue(number);
    if (name == QLatin1String("TimeStamp"))
        return timeValue(value.toString());
    const bool marked = name == QLatin1String("ProcessingMethod") || name == QLatin1String("AreaInformation");
    if (marked && value.typeId() == QMetaType::QString)
        return bytesValue(Exiv2::undefined, encodeUserComment(value.toString(), QSysInfo::LittleEndian));
    return tagValue(key.defaultTypeId(), name, value);
}

/** If a negative coordinate has no reference, its sign determines it. */
void addReference(Metadata::Blocks &blocks, const QVariantMap &gps, const QString &name, const char *letters)
{
    const QVariant value = gps.value(name);
    bool isNumber = false;
    const double degrees = value.toDouble(&isNumber);
    if (!isNumber || gps.contains(name + QLatin1String("Ref")))
        return;
    const char letter = letters[degrees < 0 ? 1 : 0];
    set(blocks, Exiv2::ExifKey("Exif.GPSInfo.GPS" + name.toStdString() + "Ref"),
        tagValue(Exiv2::asciiString, name, QString(QLatin1Char(letter))));
}

void setIptc(Metadata::Blocks &blocks, const QString &name, const QVariant &value)
{
    const Exiv2::IptcKey key("Iptc.Application2." + iptcDataSetName(name).toStdString());
    for (const QVariant &each : listOf(value)) {
        Exiv2::Iptcdatum entry(key);
        if (each.canConvert<QString>() && entry.setValue(each.toString().toStdString()) == 0)
            blocks.iptc.add(entry);
    }
}

void setXmp(Metadata::Blocks &blocks, const QString &name, const QVariant &value)
{
    const qsizetype colon = name.indexOf(u':');
    if (colon <= 0)
        return;
    const Exiv2::XmpKey key("Xmp." + name.left(colon).toStdString() + '.' + name.mid(colon + 1).toStdString());
    if (value.typeId() == QMetaType::QVariantList && value.toList().isEmpty())
        return;
    Exiv2::Xmpdatum &entry = blocks.xmp[key.key()];
    const bool simple = value.typeId() != QMetaType::QVariantList;
    const auto type = Exiv2::XmpProperties::propertyType(key);
    if (simple || type == Exiv2::xmpText)
        entry.setValue(value.toStringList().join(QStringLiteral(", ")).toStdString());
    else
        for (const QVariant &each : value.toList())
            entry.setValue(each.toString().toStdString());
}

void setTopLevel(Metadata::Blocks &blocks, const QVariantMap &properties)
{
    const int orientation = properties.value(QStringLiteral("Orientation")).toInt();
    if (orientation >= 1 && orientation <= 8)
        blocks.exif["Exif.Image.Orientation"] = uint16_t(orientation);
    const double horizontal = properties.value(QStringLiteral("DPIWidth")).toDouble();
    const double vertical = properties.value(QStringLiteral("DPIHeight"), horizontal).toDouble();
    if (!(horizontal > 0) || !(vertical > 0))
        return;
    const Exiv2::ExifKey across("Exif.Image.XResolution");
    // Resolution stated per centimetre is equivalent, and stays as it was stated.
    const QVariantMap tiff = properties.value(QStringLiteral("{TIFF}")).toMap();
    const double scale = tiff.value(QStringLiteral("ResolutionUnit")).toInt() == 3 ? 2.54 : 1.0;
    set(blocks, across, tagValue(Exiv2::unsignedRational, {}, horizontal / scale));
    set(blocks, Exiv2::ExifKey("Exif.Image.YResolution"), tagValue(Exiv2::unsignedRational, {}, vertical / scale));
    if (scale == 1.0)
        blocks.exif["Exif.Image.ResolutionUnit"] = uint16_t(2);
}

} // namespace

Metadata Metadata::fromProperties(const QVariantMap &properties)
{
    if (properties.isEmpty())
        return {};
    startMetadataLibrary();
    auto blocks = std::make_shared<Blocks>();
    blocks->byteOrder = madeByteOrder;
    const auto each = [&](const char *group, auto setter) {
        forEachEntry(properties, QString::fromLatin1(group),
                     [&](const QString &name, const QVariant &value) { setter(*blocks, name, value); });
    };
    each("{Exif}", setExif);
    each("{TIFF}", setTiff);
    each("{GPS}", [](Blocks &target, const QString &name, const QVariant &value) {
        const Exiv2::ExifKey key("Exif.GPSInfo." + gpsTagName(name).toStdString());
        set(target, key, gpsTagValue(key, name, value));
    });
    const QVariantMap gps = properties.value(QStringLiteral("{GPS}")).toMap();
    attempt([&] { addReference(*blocks, gps, QStringLiteral("Latitude"), "NS"); });
    attempt([&] { addReference(*blocks, gps, QStringLiteral("Longitude"), "EW"); });
    each("{IPTC}", setIptc);
    if (!blocks->iptc.empty()) // the texts are UTF-8, and marked so
        attempt([&] { blocks->iptc["Iptc.Envelope.CharacterSet"] = std::string("\033%G"); });
    each("{XMP}", setXmp);
    attempt([&] { setTopLevel(*blocks, properties); });
    Metadata metadata;
    metadata.m_blocks = std::move(blocks);
    return metadata;
}

} // namespace platform
