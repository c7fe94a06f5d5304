#include "platform/imageio/metadata/metadata_names.h"

#include <algorithm>
#include <array>
#include <utility>

namespace platform {
namespace {

using NamePair = std::pair<const char *, const char *>; ///< exiv2's name, name in the dictionaries

constexpr std::array<NamePair, 6> exifNames = {{
    {"FlashpixVersion", "FlashPixVersion"},
    {"FocalLengthIn35mmFilm", "FocalLenIn35mmFilm"},
    {"SubjectDistanceRange", "SubjectDistRange"},
    {"SubSecTime", "SubsecTime"},
    {"SubSecTimeOriginal", "SubsecTimeOriginal"},
    {"SubSecTimeDigitized", "SubsecTimeDigitized"},
}};

constexpr std::array<NamePair, 24> iptcNames = {{
    {"Caption", "Caption/Abstract"},
    {"CharacterSet", "CharacterSet"},
    {"Copyright", "CopyrightNotice"},
    {"CountryCode", "Country/PrimaryLocationCode"},
    {"CountryName", "Country/PrimaryLocationName"},
    {"DigitizationDate", "DigitalCreationDate"},
    {"DigitizationTime", "DigitalCreationTime"},
    {"FixtureId", "FixtureIdentifier"},
    {"Language", "LanguageIdentifier"},
    {"LocationCode", "ContentLocationCode"},
    {"LocationName", "ContentLocationName"},
    {"ObjectAttribute", "ObjectAttributeReference"},
    {"ObjectType", "ObjectTypeReference"},
    {"Program", "OriginatingProgram"},
    {"ProvinceState", "Province/State"},
    {"ReferenceDate", "ReferenceDate"},
    {"ReleaseDate", "ReleaseDate"},
    {"Subject", "SubjectReference"},
    {"SuppCategory", "SupplementalCategory"},
    {"TransmissionReference", "OriginalTransmissionReference"},
    {"Urgency", "Urgency"},
    {"Writer", "Writer/Editor"},
    {"EditorialUpdate", "EditorialUpdate"},
    {"EditStatus", "EditStatus"},
}};

template<size_t size> QString renamed(const std::array<NamePair, size> &names, const QString &name)
{
    for (const auto &[ours, usual] : names)
        if (name == QLatin1String(ours))
            return QLatin1String(usual);
    return name;
}

template<size_t size> QString renamedBack(const std::array<NamePair, size> &names, const QString &name)
{
    for (const auto &[ours, usual] : names)
        if (name == QLatin1String(usual))
            return QLatin1String(ours);
    return name;
}

template<size_t size> bool contains(const std::array<const char *, size> &names, const QString &name)
{
    return std::any_of(names.begin(), names.end(), [&](const char *each) { return name == QLatin1String(each); });
}

} // namespace

QString exifName(const QString &tagName)
{
    return renamed(exifNames, tagName);
}

QString exifTagName(const QString &name)
{
    return renamedBack(exifNames, name);
}

QString gpsName(const QString &tagName)
{
    if (tagName == QLatin1String("GPSVersionID"))
        return QStringLiteral("GPSVersion");
    return tagName.startsWith(QLatin1String("GPS")) ? tagName.mid(3) : tagName;
}

QString gpsTagName(const QString &name)
{
    if (name == QLatin1String("GPSVersion"))
        return QStringLiteral("GPSVersionID");
    return QStringLiteral("GPS") + name;
}

QString iptcName(const QString &dataSetName)
{
    return renamed(iptcNames, dataSetName);
}

QString iptcDataSetName(const QString &name)
{
    return renamedBack(iptcNames, name);
}

bool isIptcList(const QString &name)
{
    static constexpr std::array<const char *, 9> lists = {"Keywords",
                                                          "Byline",
                                                          "BylineTitle",
                                                          "Contact",
                                                          "SupplementalCategory",
                                                          "Writer/Editor",
                                                          "SubjectReference",
                                                          "ContentLocationCode",
                                                          "ContentLocationName"};
    return contains(lists, name);
}

bool isAlwaysArray(const QString &name)
{
    static constexpr std::array<const char *, 6> arrays = {"ISOSpeedRatings", "ComponentsConfiguration",
                                                           "ExifVersion",     "FlashPixVersion",
                                                           "SubjectArea",     "LensSpecification"};
    return contains(arrays, name);
}

} // namespace platform
