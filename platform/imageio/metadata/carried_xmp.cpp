#include "platform/imageio/metadata/carried_xmp.h"

#include "platform/imageio/xmp/xmp_announcements.h"
#include "platform/imageio/xmp/xmp_bounds.h"
#include "platform/imageio/xmp/xmp_edit.h"
#include "platform/imageio/xmp/xmp_packet.h"

#include <exception>

namespace platform {
namespace {

const QLatin1String tiffSpace("http://ns.adobe.com/tiff/1.0/");

/** What EXIF says of these, in the words of XMP. */
QList<XmpValue> statedInStep(const Metadata::Blocks &blocks)
{
    QList<XmpValue> values;
    const auto add = [&](const char *name, const std::string &text) {
        values.append({{tiffSpace, QString::fromLatin1(name)}, QString::fromStdString(text)});
    };
    const auto addFrom = [&](const char *name, const char *key) {
        if (const Exiv2::Exifdatum *tag = findTag(blocks.exif, key); tag && tag->count() > 0)
            add(name, tag->toString());
    };
    add("Orientation", "1");
    if (findTag(blocks.exif, "Exif.Image.Orientation")) {
        values.clear();
        addFrom("Orientation", "Exif.Image.Orientation");
    }
    addFrom("XResolution", "Exif.Image.XResolution");
    addFrom("YResolution", "Exif.Image.YResolution");
    addFrom("ResolutionUnit", "Exif.Image.ResolutionUnit");
    return values;
}

/** "Xmp.dc.title" for "Xmp.dc.title[1]/?xml:lang". */
std::string propertyOf(const std::string &key)
{
    return key.substr(0, key.find_first_of("[/"));
}

bool says(const Exiv2::XmpData &xmp, const std::string &property)
{
    for (const Exiv2::Xmpdatum &each : xmp)
        if (propertyOf(each.key()) == property)
            return true;
    return false;
}

/** What EXIF and IPTC say, as a packet, without what the own one says already; empty where that is nothing. */
QByteArray saidInstead(const Metadata::Blocks &blocks, QSize pixels, SaidInXmp said)
{
    Exiv2::XmpData made;
    if (said.exif) {
        Exiv2::ExifData exif = blocks.exif;
        if (const auto width = exif.findKey(Exiv2::ExifKey("Exif.Photo.PixelXDimension")); width != exif.end())
            *width = uint32_t(pixels.width());
        if (const auto height = exif.findKey(Exiv2::ExifKey("Exif.Photo.PixelYDimension")); height != exif.end())
            *height = uint32_t(pixels.height());
        Exiv2::copyExifToXmp(exif, made);
    }
    if (said.iptc)
        Exiv2::copyIptcToXmp(blocks.iptc, made);
    for (auto each = made.begin(); each != made.end();)
        each = says(blocks.xmp, propertyOf(each->key())) ? made.erase(each) : ++each;
    std::string packet;
    if (made.empty() || Exiv2::XmpParser::encode(packet, made, Exiv2::XmpParser::useCompactFormat) != 0)
        return {};
    return QByteArray(packet.data(), qsizetype(packet.size()));
}

} // namespace

QByteArray xmpPacket(const Metadata::Blocks &blocks, QSize pixels)
{
    std::string packet = blocks.xmpPacket;
    if (packet.empty() && !blocks.xmp.empty() &&
        Exiv2::XmpParser::encode(packet, blocks.xmp, Exiv2::XmpParser::useCompactFormat) != 0)
        return {};
    const QByteArray bytes(packet.data(), qsizetype(packet.size()));
    return pixels.isEmpty() ? bytes : xmpForNewPixels(bytes, pixels);
}

QByteArray iptcRecords(const Metadata::Blocks &blocks)
{
    if (blocks.iptc.empty())
        return {};
    const Exiv2::DataBuf records = Exiv2::IptcParser::encode(blocks.iptc);
    return QByteArray(reinterpret_cast<const char *>(records.pData_), records.size_);
}

QByteArray carriedXmp(const Metadata::Blocks &blocks, QSize pixels, SaidInXmp said)
{
    QByteArray own = xmpPacket(blocks, pixels);
    if (!own.isEmpty()) {
        const auto edited = editedXmp(
            own, [](const XmpName &name) { return !announcesOtherData(name); }, statedInStep(blocks));
        own = edited.value_or(own);
        if (edited && !saysAnything(own))
            own.clear();
    }
    // Of a packet that was not taken apart nobody knows what it says already.
    if ((!said.exif && !said.iptc) || (!own.isEmpty() && !isDigestibleXmp(own)))
        return own;
    const QByteArray instead = saidInstead(blocks, pixels, said);
    if (own.isEmpty() || instead.isEmpty())
        return own.isEmpty() ? instead : own;
    return joinedXmp(own, instead).value_or(own);
}

} // namespace platform
