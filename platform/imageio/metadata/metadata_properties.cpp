#include "platform/imageio/exif/user_comment.h"
#include "platform/imageio/metadata/metadata_blocks.h"
#include "platform/imageio/metadata/metadata_names.h"
#include "platform/imageio/tiff/structure_tags.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <limits>

namespace platform {
namespace {

constexpr long longestNumberList = 1024;

QVariant number(double value)
{
    const bool whole = std::trunc(value) == value && std::abs(value) <= double(std::numeric_limits<int>::max());
    return whole ? QVariant(int(value)) : QVariant(value);
}

QString text(const QString &name, QByteArray bytes)
{
    while (bytes.endsWith('\0'))
        bytes.chop(1);
    if (name == QLatin1String("Copyright")) // photographer and editor share one value
        bytes.replace('\0', '\n');
    else if (const qsizetype end = bytes.indexOf('\0'); end >= 0)
        bytes.truncate(end);
    QString result = decodeUnmarkedText(bytes);
    while (!result.isEmpty() && result.back().isSpace())
        result.chop(1);
    return result;
}

/** "0221" as 2, 2, 1 and "0100" as 1, 0: major, minor, and the last digit only if it is not 0. */
QVariantList versionNumbers(const QByteArray &digits)
{
    QVariantList numbers;
    if (digits.size() < 4 ||
        !std::all_of(digits.begin(), digits.begin() + 4, [](char c) { return c >= '0' && c <= '9'; }))
        return numbers;
    numbers << digits.left(2).toInt() << digits.at(2) - '0';
    if (digits.at(3) != '0')
        numbers << digits.at(3) - '0';
    return numbers;
}

QVariantList byteNumbers(const QByteArray &bytes)
{
    QVariantList numbers;
    for (const char byte : bytes)
        numbers << int(uchar(byte));
    return numbers;
}

/** One component; invalid for a fraction with a zero denominator. */
QVariant component(const Exiv2::Value &value, long index)
{
    const auto type = value.typeId();
    if (type == Exiv2::unsignedRational || type == Exiv2::signedRational) {
        const Exiv2::Rational fraction = value.toRational(index);
        if (fraction.second == 0)
            return {};
        if (type == Exiv2::signedRational)
            return number(double(fraction.first) / fraction.second);
        return number(double(uint32_t(fraction.first)) / uint32_t(fraction.second));
    }
    if (type == Exiv2::unsignedLong)
        return number(double(uint32_t(value.toLong(index))));
    if (type == Exiv2::tiffFloat || type == Exiv2::tiffDouble) {
        const double real = type == Exiv2::tiffFloat ? double(value.toFloat(index)) : std::stod(value.toString(index));
        return std::isfinite(real) ? number(real) : QVariant();
    }
    return number(double(value.toLong(index)));
}

QVariant numbers(const Exiv2::Exifdatum &tag, bool alwaysArray)
{
    const long count = tag.count();
    if (count < 1 || count > longestNumberList)
        return {};
    if (count == 1 && !alwaysArray)
        return component(tag.value(), 0);
    QVariantList list;
    for (long i = 0; i < count; ++i) {
        const QVariant each = component(tag.value(), i);
        list << (each.isValid() ? each : QVariant(0));
    }
    return list;
}

QVariant blob(const QString &name, const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return {};
    if (name == QLatin1String("ExifVersion") || name == QLatin1String("FlashPixVersion")) {
        const QVariantList version = versionNumbers(bytes);
        return version.isEmpty() ? QVariant(bytes) : QVariant(version);
    }
    if (name == QLatin1String("ComponentsConfiguration"))
        return byteNumbers(bytes);
    if (bytes.size() == 1 && (name == QLatin1String("FileSource") || name == QLatin1String("SceneType")))
        return int(uchar(bytes.at(0)));
    return bytes;
}

QVariant valueOf(const Exiv2::Exifdatum &tag, const QString &name, Exiv2::ByteOrder order)
{
    switch (tag.typeId()) {
    case Exiv2::asciiString:
        return text(name, rawBytes(tag, order));
    case Exiv2::undefined:
    case Exiv2::comment:
        return blob(name, rawBytes(tag, order));
    case Exiv2::unsignedByte:
    case Exiv2::signedByte:
        if (name.startsWith(QLatin1String("XP"))) // text of 16-bit units
            return decodeUserComment(QByteArray("UNICODE\0", 8) + rawBytes(tag, order), QSysInfo::LittleEndian);
        return tag.count() > 16 ? QVariant(rawBytes(tag, order)) : numbers(tag, isAlwaysArray(name));
    default:
        return numbers(tag, isAlwaysArray(name));
    }
}

void insertValid(QVariantMap &map, const QString &key, const QVariant &value)
{
    if (value.isValid() && !map.contains(key))
        map.insert(key, value);
}

/** Degrees from degrees, minutes and seconds; invalid unless they are three fractions. */
QVariant degrees(const Exiv2::Exifdatum &tag)
{
    double sum = 0;
    double unit = 1;
    for (long i = 0; i < std::min(tag.count(), 3L); ++i, unit *= 60) {
        const QVariant part = component(tag.value(), i);
        if (part.isValid())
            sum += part.toDouble() / unit;
        else if (i == 0)
            return {};
    }
    return tag.count() > 0 ? QVariant(sum) : QVariant();
}

/** "13:05:09", with two decimals of the second if there are any. */
QVariant timeOfDay(const Exiv2::Exifdatum &tag)
{
    if (tag.count() != 3)
        return {};
    double parts[3];
    for (long i = 0; i < 3; ++i) {
        const QVariant part = component(tag.value(), i);
        if (!part.isValid() || part.toDouble() < 0 || part.toDouble() > 100)
            return {};
        parts[i] = part.toDouble();
    }
    const bool whole = std::trunc(parts[2]) == parts[2];
    return QStringLiteral("%1:%2:%3")
        .arg(int(parts[0]), 2, 10, QLatin1Char('0'))
        .arg(int(parts[1]), 2, 10, QLatin1Char('0'))
        .arg(parts[2], whole ? 2 : 5, 'f', whole ? 0 : 2, QLatin1Char('0'));
}

QVariant gpsValue(const Exiv2::Exifdatum &tag, const QString &name, Exiv2::ByteOrder order)
{
    static const QStringList coordinates = {QStringLiteral("Latitude"), QStringLiteral("Longitude"),
                                            QStringLiteral("DestLatitude"), QStringLiteral("DestLongitude")};
    const bool fractions = tag.typeId() == Exiv2::unsignedRational || tag.typeId() == Exiv2::signedRational;
    if (fractions && coordinates.contains(name))
        return degrees(tag);
    if (fractions && name == QLatin1String("TimeStamp"))
        return timeOfDay(tag);
    const bool marked = name == QLatin1String("ProcessingMethod") || name == QLatin1String("AreaInformation");
    if (marked && tag.typeId() != Exiv2::asciiString)
        return decodeUserComment(rawBytes(tag, order),
                                 order == Exiv2::bigEndian ? QSysInfo::BigEndian : QSysInfo::LittleEndian);
    return valueOf(tag, name, order);
}

struct ExifGroups
{
    QVariantMap exif;
    QVariantMap tiff;
    QVariantMap gps;
};

void addImageTag(ExifGroups &groups, const Exiv2::Exifdatum &tag, const QString &name, Exiv2::ByteOrder order)
{
    const uint16_t number = tag.tag();
    const bool shown = number == tiffTag::compression || number == tiffTag::photometric || !describesStructure(number);
    const bool pointerOrData = number == 0x02bc || number == 0x83bb || number == 0x8649 || number == 0x8769 ||
                               number == 0x8773 || number == 0x8825 || number == 0x935c || number >= 0xc4a5;
    if (!shown || pointerOrData)
        return;
    // Cameras that write TIFF store exposure data beside the camera's name.
    const bool exposure = (number >= 0x829a && number < 0x9c00) || (number >= 0xa000 && number < 0xa500);
    insertValid(exposure ? groups.exif : groups.tiff, name, valueOf(tag, name, order));
}

void addExifTag(ExifGroups &groups, const Exiv2::Exifdatum &tag, Exiv2::ByteOrder order)
{
    const std::string group = tag.groupName();
    QString tagName = QString::fromStdString(tag.tagName());
    if (group == "Image" && tagName.startsWith(QLatin1String("0x"))) // some programs put all tags into one directory
        tagName = QString::fromStdString(Exiv2::ExifKey(tag.tag(), "Photo").tagName());
    if (tagName.startsWith(QLatin1String("0x")))
        return;
    if (group == "Photo") {
        const QString name = exifName(tagName);
        const bool pointer = tag.tag() == 0xa005;
        if (!pointer && name != QLatin1String("UserComment"))
            insertValid(groups.exif, name, valueOf(tag, name, order));
    } else if (group == "Image") {
        addImageTag(groups, tag, exifName(tagName), order);
    } else if (group == "GPSInfo") {
        const QString name = gpsName(tagName);
        insertValid(groups.gps, name, gpsValue(tag, name, order));
    }
}

/** One odd tag must not affect the others. */
template<typename Step> void attempt(Step step)
{
    try {
        step();
    } catch (const std::exception &) {
        // Skipped: its value cannot be understood.
    }
}

QVariantMap iptcGroup(const Exiv2::IptcData &iptc)
{
    QVariantMap group;
    for (const Exiv2::Iptcdatum &entry : iptc) {
        if (entry.record() != 2)
            continue;
        const QString name = iptcName(QString::fromStdString(entry.tagName()));
        if (name.startsWith(QLatin1String("0x")) || entry.tagName() == "RecordVersion")
            continue;
        const QVariant value = decodeUnmarkedText(QByteArray::fromStdString(entry.toString()));
        const QVariant before = group.value(name);
        if (before.isValid() || isIptcList(name))
            group.insert(name, (before.typeId() == QMetaType::QVariantList ? before.toList()
                                : before.isValid()                         ? QVariantList{before}
                                                                           : QVariantList{})
                                   << value);
        else
            group.insert(name, value);
    }
    return group;
}

QVariant xmpValue(const Exiv2::Xmpdatum &entry)
{
    if (entry.typeId() == Exiv2::langAlt) {
        const auto &alternatives = static_cast<const Exiv2::LangAltValue &>(entry.value());
        const std::string standard = alternatives.toString(std::string("x-default"));
        const auto first = alternatives.value_.begin();
        return QString::fromStdString(!standard.empty() || first == alternatives.value_.end() ? standard
                                                                                              : first->second);
    }
    const bool list =
        entry.typeId() == Exiv2::xmpBag || entry.typeId() == Exiv2::xmpSeq || entry.typeId() == Exiv2::xmpAlt;
    if (!list)
        return QString::fromStdString(entry.toString());
    QVariantList values;
    for (long i = 0; i < entry.count(); ++i)
        values << QString::fromStdString(entry.toString(i));
    return values;
}

QVariantMap xmpGroup(const Exiv2::XmpData &xmp)
{
    QVariantMap group;
    for (const Exiv2::Xmpdatum &entry : xmp) {
        const bool container = entry.typeId() == Exiv2::xmpText && entry.toString().empty() && entry.count() > 0;
        if (!container)
            group.insert(QString::fromStdString(entry.groupName() + ":" + entry.tagName()), xmpValue(entry));
    }
    return group;
}

void addResolution(QVariantMap &properties, const QVariantMap &tiff)
{
    const int unit = tiff.value(QStringLiteral("ResolutionUnit"), 2).toInt();
    if (unit != 2 && unit != 3)
        return;
    const double scale = unit == 3 ? 2.54 : 1.0;
    const auto add = [&](const QString &key, const QString &tag) {
        const double value = tiff.value(tag).toDouble() * scale;
        if (value > 0)
            properties.insert(key, value);
    };
    add(QStringLiteral("DPIWidth"), QStringLiteral("XResolution"));
    add(QStringLiteral("DPIHeight"), QStringLiteral("YResolution"));
}

void insertGroup(QVariantMap &properties, const QString &name, const QVariantMap &group)
{
    if (!group.isEmpty())
        properties.insert(name, group);
}

} // namespace

QVariantMap Metadata::toProperties() const
{
    QVariantMap properties;
    if (!m_blocks)
        return properties;
    ExifGroups groups;
    for (const Exiv2::Exifdatum &tag : m_blocks->exif)
        attempt([&] { addExifTag(groups, tag, m_blocks->byteOrder); });
    if (hasUserComment())
        groups.exif.insert(QStringLiteral("UserComment"),
                           QVariant(userComment().isNull() ? QStringLiteral("") : userComment()));
    insertGroup(properties, QStringLiteral("{Exif}"), groups.exif);
    insertGroup(properties, QStringLiteral("{TIFF}"), groups.tiff);
    insertGroup(properties, QStringLiteral("{GPS}"), groups.gps);
    attempt([&] { insertGroup(properties, QStringLiteral("{IPTC}"), iptcGroup(m_blocks->iptc)); });
    attempt([&] { insertGroup(properties, QStringLiteral("{XMP}"), xmpGroup(m_blocks->xmp)); });
    if (orientation() != 0)
        properties.insert(QStringLiteral("Orientation"), orientation());
    addResolution(properties, groups.tiff);
    return properties;
}

} // namespace platform
