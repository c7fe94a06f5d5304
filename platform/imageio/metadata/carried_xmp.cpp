#include "platform/imageio/metadata/carried_xmp.h"

#include "platform/imageio/xmp/xmp_announcements.h"
#include "platform/imageio/xmp/xmp_bounds.h"
#include "platform/imageio/xmp/xmp_edit.h"
#include "platform/imageio/xmp/xmp_packet.h"

#include <array>
#include <exception>
#include <utility>

namespace platform {
namespace {

const QLatin1String tiffSpace("http://ns.adobe.com/tiff/1.0/");

/** The equivalents of these EXIF tags in XMP. */
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

/**
 * The library names namespaces as in the last packet that it read, of whatever picture. Its output must depend on
 * nothing but the picture, so the usual names are registered again.
 */
void restoreUsualNames()
{
    static const std::string packet = [] {
        const std::array<std::pair<const char *, const char *>, 20> names = {
            {{"dc", "http://purl.org/dc/elements/1.1/"},
             {"xmp", "http://ns.adobe.com/xap/1.0/"},
             {"xmpRights", "http://ns.adobe.com/xap/1.0/rights/"},
             {"xmpMM", "http://ns.adobe.com/xap/1.0/mm/"},
             {"xmpBJ", "http://ns.adobe.com/xap/1.0/bj/"},
             {"xmpTPg", "http://ns.adobe.com/xap/1.0/t/pg/"},
             {"xmpDM", "http://ns.adobe.com/xmp/1.0/DynamicMedia/"},
             {"stEvt", "http://ns.adobe.com/xap/1.0/sType/ResourceEvent#"},
             {"stRef", "http://ns.adobe.com/xap/1.0/sType/ResourceRef#"},
             {"stDim", "http://ns.adobe.com/xap/1.0/sType/Dimensions#"},
             {"pdf", "http://ns.adobe.com/pdf/1.3/"},
             {"photoshop", "http://ns.adobe.com/photoshop/1.0/"},
             {"crs", "http://ns.adobe.com/camera-raw-settings/1.0/"},
             {"tiff", "http://ns.adobe.com/tiff/1.0/"},
             {"exif", "http://ns.adobe.com/exif/1.0/"},
             {"exifEX", "http://cipa.jp/exif/1.0/"},
             {"aux", "http://ns.adobe.com/exif/1.0/aux/"},
             {"Iptc4xmpCore", "http://iptc.org/std/Iptc4xmpCore/1.0/xmlns/"},
             {"Iptc4xmpExt", "http://iptc.org/std/Iptc4xmpExt/2008-02-29/"},
             {"lr", "http://ns.adobe.com/lightroom/1.0/"}}};
        std::string text =
            "<x:xmpmeta xmlns:x='adobe:ns:meta/'><r:RDF xmlns:r='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
            "<r:Description r:about=''";
        for (const auto &[prefix, space] : names)
            text += std::string(" xmlns:") + prefix + "='" + space + "'";
        return text + " dc:format=''/></r:RDF></x:xmpmeta>";
    }();
    Exiv2::XmpData told;
    Exiv2::XmpParser::decode(told, packet);
}

/** Empty if it cannot be written as a packet. */
std::string packetOf(const Exiv2::XmpData &xmp)
{
    restoreUsualNames();
    std::string packet;
    return Exiv2::XmpParser::encode(packet, xmp, Exiv2::XmpParser::useCompactFormat) == 0 ? packet : std::string();
}

/** The content of EXIF and IPTC as a packet, without what the own packet already says; empty if nothing is left. */
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
    return made.empty() ? QByteArray() : QByteArray::fromStdString(packetOf(made));
}

} // namespace

QByteArray xmpPacket(const Metadata::Blocks &blocks, QSize pixels)
{
    const bool isThere = !blocks.xmpPacket.empty() || blocks.xmp.empty();
    const QByteArray bytes = QByteArray::fromStdString(isThere ? blocks.xmpPacket : packetOf(blocks.xmp));
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
    // The content of a packet that was not parsed is unknown.
    if ((!said.exif && !said.iptc) || (!own.isEmpty() && !isDigestibleXmp(own)))
        return own;
    const QByteArray instead = saidInstead(blocks, pixels, said);
    if (own.isEmpty() || instead.isEmpty())
        return own.isEmpty() ? instead : own;
    return joinedXmp(own, instead).value_or(own);
}

} // namespace platform
