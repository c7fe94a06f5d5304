// The metadata that is left if not all of it is to be kept.

#include "platform/imageio/exif/exif_in_place.h"
#include "platform/imageio/metadata/metadata_blocks.h"
#include "platform/imageio/png/png_chunks.h"
#include "platform/imageio/xmp/xmp_announcements.h"
#include "platform/imageio/xmp/xmp_edit.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace platform {
namespace {

const QLatin1String exifSpace("http://ns.adobe.com/exif/1.0/");
const QLatin1String tiffSpace("http://ns.adobe.com/tiff/1.0/");
const QLatin1String dublinCore("http://purl.org/dc/elements/1.1/");
const QLatin1String photoshopSpace("http://ns.adobe.com/photoshop/1.0/");
const QLatin1String rightsSpace("http://ns.adobe.com/xap/1.0/rights/");
const QLatin1String iptcCore("http://iptc.org/std/Iptc4xmpCore/1.0/xmlns/");
const QLatin1String iptcExtension("http://iptc.org/std/Iptc4xmpExt/2008-02-29/");

template<size_t Count> bool isOneOf(const std::array<const char *, Count> &names, const std::string &name)
{
    return std::any_of(names.begin(), names.end(), [&](const char *each) { return name == each; });
}

bool isCopyright(const Exiv2::Exifdatum &tag)
{
    static constexpr std::array<const char *, 9> keys = {
        "Exif.Image.Artist",      "Exif.Image.Copyright",   "Exif.Image.ImageDescription",
        "Exif.Image.XPTitle",     "Exif.Image.XPAuthor",    "Exif.Image.Orientation",
        "Exif.Image.XResolution", "Exif.Image.YResolution", "Exif.Image.ResolutionUnit"};
    return isOneOf(keys, tag.key());
}

bool isCopyright(const Exiv2::Iptcdatum &data)
{
    static constexpr std::array<const char *, 6> keys = {"Iptc.Envelope.CharacterSet",  "Iptc.Application2.Byline",
                                                         "Iptc.Application2.Copyright", "Iptc.Application2.ObjectName",
                                                         "Iptc.Application2.Headline",  "Iptc.Application2.Caption"};
    return isOneOf(keys, data.key());
}

bool isCopyright(const XmpName &name)
{
    const auto is = [&](QLatin1String space, const char *own) {
        return name.space == space && name.name == QLatin1String(own);
    };
    return name.space == rightsSpace || is(dublinCore, "creator") || is(dublinCore, "rights") ||
           is(dublinCore, "title") || is(dublinCore, "description") || is(photoshopSpace, "Headline") ||
           is(tiffSpace, "Artist") || is(tiffSpace, "Copyright") || is(tiffSpace, "ImageDescription") ||
           is(tiffSpace, "Orientation") || is(tiffSpace, "XResolution") || is(tiffSpace, "YResolution") ||
           is(tiffSpace, "ResolutionUnit");
}

bool isPlace(const Exiv2::Exifdatum &tag)
{
    return tag.groupName() == "GPSInfo" || tag.key() == "Exif.Image.GPSTag";
}

bool isPlace(const Exiv2::Iptcdatum &data)
{
    static constexpr std::array<const char *, 7> keys = {
        "Iptc.Application2.City",        "Iptc.Application2.SubLocation", "Iptc.Application2.ProvinceState",
        "Iptc.Application2.CountryCode", "Iptc.Application2.CountryName", "Iptc.Application2.LocationCode",
        "Iptc.Application2.LocationName"};
    return isOneOf(keys, data.key());
}

bool isPlace(const XmpName &name)
{
    const auto has = [&](const char *part) { return name.name.contains(QLatin1String(part), Qt::CaseInsensitive); };
    const auto is = [&](QLatin1String space, const char *own) {
        return name.space == space && name.name == QLatin1String(own);
    };
    return has("gps") || has("latitude") || has("longitude") || is(photoshopSpace, "City") ||
           is(photoshopSpace, "State") || is(photoshopSpace, "Country") || is(dublinCore, "coverage") ||
           is(iptcCore, "Location") || is(iptcCore, "CountryCode") || is(iptcExtension, "LocationCreated") ||
           is(iptcExtension, "LocationShown");
}

bool isMakerTag(const Exiv2::Exifdatum &tag)
{
    static constexpr std::array<const char *, 5> standard = {"Image", "Photo", "GPSInfo", "Iop", "Thumbnail"};
    return !isOneOf(standard, tag.groupName());
}

/** A maker's tag that says where the picture was taken, and is not empty. */
bool isPlaceOfMaker(const Exiv2::Exifdatum &tag)
{
    static constexpr std::array<std::string_view, 8> parts = {"GPS",     "Gps",  "Latitude", "Longitude",
                                                              "Country", "City", "Landmark", "Location"};
    if (!isMakerTag(tag))
        return false;
    const std::string name = tag.tagName();
    const bool isNamed = std::any_of(parts.begin(), parts.end(),
                                     [&](std::string_view part) { return name.find(part) != std::string::npos; });
    const QByteArray value = rawBytes(tag, Exiv2::littleEndian);
    return isNamed && std::any_of(value.begin(), value.end(), [](char byte) { return byte != '\0' && byte != ' '; });
}

template<typename Data, typename Predicate> void removeWhere(Data &data, Predicate predicate)
{
    for (auto each = data.begin(); each != data.end();)
        each = predicate(*each) ? data.erase(each) : ++each;
}

/** A packet that cannot be edited is dropped entirely, since its content is unknown. */
template<typename Predicate> void keepXmp(Metadata::Blocks &blocks, Predicate isKept)
{
    removeWhere(blocks.xmp, [&](const Exiv2::Xmpdatum &each) {
        const std::string space = Exiv2::XmpProperties::ns(each.groupName());
        const std::string name = each.tagName();
        return !isKept(XmpName{QString::fromStdString(space), QString::fromStdString(name.substr(0, name.find('[')))});
    });
    if (blocks.xmpPacket.empty())
        return;
    const QByteArray packet(blocks.xmpPacket.data(), qsizetype(blocks.xmpPacket.size()));
    const QByteArray edited = editedXmp(packet, isKept).value_or(QByteArray());
    blocks.xmpPacket = saysAnything(edited) ? edited.toStdString() : std::string();
}

void keepCopyright(Metadata::Blocks &blocks)
{
    blocks.exifBlock.clear(); // is rebuilt, and has no maker notes that could be damaged
    removeWhere(blocks.exif, [](const Exiv2::Exifdatum &tag) { return !isCopyright(tag); });
    removeWhere(blocks.iptc, [](const Exiv2::Iptcdatum &data) { return !isCopyright(data); });
    const bool onlyCharacters = std::all_of(blocks.iptc.begin(), blocks.iptc.end(), [](const Exiv2::Iptcdatum &data) {
        return data.key() == "Iptc.Envelope.CharacterSet";
    });
    if (onlyCharacters)
        blocks.iptc.clear();
    keepXmp(blocks, [](const XmpName &name) { return isCopyright(name); });
    blocks.pngChunks = pngChunksWithTexts(blocks.pngChunks, {"Title", "Author", "Copyright", "Description"});
    blocks.comments.clear();
}

void keepNothing(Metadata::Blocks &blocks)
{
    const QByteArray colours = pngChunksWithTexts(blocks.pngChunks, {});
    blocks = Metadata::Blocks();
    blocks.pngChunks = colours;
}

void dropMakerNotes(Metadata::Blocks &blocks)
{
    removeWhere(blocks.exif,
                [](const Exiv2::Exifdatum &tag) { return isMakerTag(tag) || tag.key() == "Exif.Photo.MakerNote"; });
    blocks.exifBlock = exifBlockWithoutMakerNote(blocks.exifBlock);
}

void dropPlace(Metadata::Blocks &blocks)
{
    if (std::any_of(blocks.exif.begin(), blocks.exif.end(), isPlaceOfMaker))
        dropMakerNotes(blocks);
    removeWhere(blocks.exif, [](const Exiv2::Exifdatum &tag) { return isPlace(tag); });
    blocks.exifBlock = exifBlockWithoutPlace(blocks.exifBlock);
    removeWhere(blocks.iptc, [](const Exiv2::Iptcdatum &data) { return isPlace(data); });
    keepXmp(blocks, [](const XmpName &name) { return !isPlace(name); });
}

Exiv2::URationalValue fraction(double value)
{
    constexpr uint32_t parts = 10000;
    const bool isWhole = std::abs(value - std::round(value)) < 0.5 / parts;
    const uint32_t divisor = isWhole ? 1 : parts;
    Exiv2::URationalValue result;
    result.value_.push_back({uint32_t(std::llround(value * divisor)), divisor});
    return result;
}

} // namespace

Metadata Metadata::reduced(MetadataScope scope, PlaceTaken place) const
{
    if (!m_blocks || (scope == MetadataScope::All && place == PlaceTaken::Keep))
        return *this;
    startMetadataLibrary();
    auto blocks = std::make_shared<Blocks>(*m_blocks);
    if (scope == MetadataScope::None)
        keepNothing(*blocks);
    if (scope == MetadataScope::Copyright)
        keepCopyright(*blocks);
    if (place == PlaceTaken::Drop)
        dropPlace(*blocks);
    Metadata metadata;
    metadata.m_blocks = std::move(blocks);
    return metadata;
}

constexpr double centimetres = 3; // the unit of a resolution
constexpr double centimetresPerInch = 2.54;

/** A resolution that can be calculated with; empty for any other. */
static QSizeF usable(QSizeF stated)
{
    return stated.isValid() && std::isfinite(stated.width()) && std::isfinite(stated.height()) ? stated : QSizeF();
}

QSizeF Metadata::resolution() const
{
    if (!m_blocks)
        return {};
    const auto number = [&](const char *key) {
        const Exiv2::Exifdatum *tag = findTag(m_blocks->exif, key);
        return tag && tag->count() > 0 ? double(tag->toFloat()) : 0.0;
    };
    const double scale = number("Exif.Image.ResolutionUnit") == centimetres ? centimetresPerInch : 1;
    return usable(QSizeF(number("Exif.Image.XResolution"), number("Exif.Image.YResolution")) * scale);
}

QSizeF Metadata::resolutionInXmp() const
{
    if (!m_blocks)
        return {};
    const auto number = [&](const char *key) {
        const auto found = m_blocks->xmp.findKey(Exiv2::XmpKey(key));
        return found == m_blocks->xmp.end() ? 0.0 : double(found->toFloat());
    };
    const QSizeF stated(number("Xmp.tiff.XResolution"), number("Xmp.tiff.YResolution"));
    const double scale = number("Xmp.tiff.ResolutionUnit") == centimetres ? centimetresPerInch : 1;
    return usable(stated * scale);
}

Metadata Metadata::withResolution(double horizontal, double vertical) const
{
    startMetadataLibrary();
    auto blocks = m_blocks ? std::make_shared<Blocks>(*m_blocks) : std::make_shared<Blocks>();
    constexpr uint16_t inches = 2;
    const Exiv2::URationalValue across = fraction(horizontal);
    const Exiv2::URationalValue down = fraction(vertical);
    blocks->exif["Exif.Image.XResolution"].setValue(&across);
    blocks->exif["Exif.Image.YResolution"].setValue(&down);
    blocks->exif["Exif.Image.ResolutionUnit"] = inches;
    if (!blocks->exifBlock.isEmpty())
        blocks->exifBlock = exifBlockWithResolution(blocks->exifBlock, horizontal, vertical);
    Metadata metadata;
    metadata.m_blocks = std::move(blocks);
    return metadata;
}

Metadata Metadata::statingOrientation(int orientation) const
{
    startMetadataLibrary();
    auto blocks = m_blocks ? std::make_shared<Blocks>(*m_blocks) : std::make_shared<Blocks>();
    blocks->exif["Exif.Image.Orientation"] = uint16_t(orientation);
    Metadata metadata;
    metadata.m_blocks = std::move(blocks);
    return metadata.withOrientation(orientation);
}

Metadata Metadata::withoutColours() const
{
    if (!m_blocks || m_blocks->pngChunks.isEmpty())
        return *this;
    auto blocks = std::make_shared<Blocks>(*m_blocks);
    blocks->pngChunks = pngTextsOf(m_blocks->pngChunks);
    Metadata metadata;
    metadata.m_blocks = std::move(blocks);
    return metadata;
}

bool Metadata::announces(Announced part) const
{
    if (!m_blocks || m_blocks->xmpPacket.empty())
        return false;
    bool isThere = false;
    editedXmp(QByteArray(m_blocks->xmpPacket.data(), qsizetype(m_blocks->xmpPacket.size())), [&](const XmpName &name) {
        isThere = isThere || (part == Announced::Motion ? announcesMotion(name) : announcesGainMap(name));
        return true;
    });
    return isThere;
}

QStringList Metadata::comments() const
{
    return m_blocks ? m_blocks->comments : QStringList();
}

} // namespace platform
