#include "meta/private_data.h"

#include <algorithm>
#include <array>

namespace meta {
namespace {

using Directory = platform::TagChange::Directory;
using platform::XmpName;

struct Tag
{
    PrivateData group;
    Directory directory;
    quint16 tag;
};

constexpr std::array tags = {
    Tag{PrivateData::Places, Directory::First, 0x8825},        // what GPS says
    Tag{PrivateData::SerialNumbers, Directory::Exif, 0xa431},  // of the body
    Tag{PrivateData::SerialNumbers, Directory::Exif, 0xa435},  // of the lens
    Tag{PrivateData::SerialNumbers, Directory::First, 0xc62f}, // of the camera, in a DNG
    Tag{PrivateData::Names, Directory::Exif, 0xa430},          // of the owner
    Tag{PrivateData::Names, Directory::First, 0x013c},         // of the computer
    Tag{PrivateData::MakerNotes, Directory::Exif, 0x927c},
};

struct Property
{
    PrivateData group;
    const char *space;
    const char *name;
};

constexpr const char *photoshop = "http://ns.adobe.com/photoshop/1.0/";
constexpr const char *core = "http://iptc.org/std/Iptc4xmpCore/1.0/xmlns/";
constexpr const char *extension = "http://iptc.org/std/Iptc4xmpExt/2008-02-29/";
constexpr const char *lens = "http://ns.adobe.com/exif/1.0/aux/";
constexpr const char *exif = "http://cipa.jp/exif/1.0/";

constexpr std::array properties = {
    Property{PrivateData::Places, photoshop, "City"},
    Property{PrivateData::Places, photoshop, "State"},
    Property{PrivateData::Places, photoshop, "Country"},
    Property{PrivateData::Places, core, "Location"},
    Property{PrivateData::Places, core, "CountryCode"},
    Property{PrivateData::Places, extension, "LocationCreated"},
    Property{PrivateData::Places, extension, "LocationShown"},
    Property{PrivateData::SerialNumbers, lens, "SerialNumber"},
    Property{PrivateData::SerialNumbers, lens, "LensSerialNumber"},
    Property{PrivateData::SerialNumbers, exif, "BodySerialNumber"},
    Property{PrivateData::SerialNumbers, exif, "LensSerialNumber"},
    Property{PrivateData::Names, lens, "OwnerName"},
    Property{PrivateData::Names, exif, "CameraOwnerName"},
    Property{PrivateData::Names, "http://ns.adobe.com/tiff/1.0/", "HostComputer"},
    Property{PrivateData::Faces, "http://www.metadataworkinggroup.com/schemas/regions/", "Regions"},
    Property{PrivateData::Faces, "http://ns.microsoft.com/photo/1.2/", "RegionInfo"},
    Property{PrivateData::Faces, extension, "ImageRegion"},
    Property{PrivateData::Faces, extension, "PersonInImage"},
    Property{PrivateData::Faces, extension, "PersonInImageWDetails"},
    Property{PrivateData::Thumbnails, "http://ns.adobe.com/xap/1.0/", "Thumbnails"},
};

constexpr std::array<quint8, 7> placesOfIptc = {26, 27, 90, 92, 95, 100, 101};

bool namesAPlace(const XmpName &name)
{
    const auto has = [&](const char *part) { return name.name.contains(QLatin1String(part), Qt::CaseInsensitive); };
    return has("gps") || has("latitude") || has("longitude");
}

bool isPrivate(const XmpName &name, const QSet<PrivateData> &groups)
{
    if (groups.contains(PrivateData::Places) && namesAPlace(name))
        return true;
    return std::any_of(properties.begin(), properties.end(), [&](const Property &each) {
        return groups.contains(each.group) && name.space == QLatin1String(each.space) &&
               name.name == QLatin1String(each.name);
    });
}

} // namespace

QStringList privateDataNames()
{
    return {QStringLiteral("places"), QStringLiteral("serialNumbers"), QStringLiteral("names"),
            QStringLiteral("faces"),  QStringLiteral("makerNotes"),    QStringLiteral("thumbnails")};
}

std::optional<PrivateData> privateDataNamed(const QString &name)
{
    const qsizetype at = privateDataNames().indexOf(name);
    return at < 0 ? std::nullopt : std::optional(PrivateData(at));
}

bool isPlace(const QString &fieldName)
{
    static const QStringList places = {QStringLiteral("sublocation"), QStringLiteral("city"), QStringLiteral("state"),
                                       QStringLiteral("country"), QStringLiteral("countryCode")};
    return places.contains(fieldName);
}

void addRemoval(platform::MetadataChange &change, const QSet<PrivateData> &groups)
{
    if (groups.isEmpty())
        return;
    for (const Tag &each : tags)
        if (groups.contains(each.group))
            change.tags.append({each.directory, each.tag, platform::TagChange::What::Remove});
    for (const quint8 dataSet : placesOfIptc)
        if (groups.contains(PrivateData::Places))
            change.iptc.append(platform::IptcChange{dataSet, {}});
    change.dropsXmp = [groups](const XmpName &name) { return isPrivate(name, groups); };
    change.dropsThumbnails = groups.contains(PrivateData::Thumbnails);
}

} // namespace meta
