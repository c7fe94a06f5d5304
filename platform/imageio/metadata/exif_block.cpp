#include "platform/imageio/metadata/exif_block.h"

#include "platform/imageio/exif/exif_in_place.h"
#include "platform/imageio/tiff/structure_tags.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <algorithm>
#include <array>
#include <exception>

namespace platform {
namespace {

bool isStandardGroup(const std::string &group)
{
    return group == "Image" || group == "Photo" || group == "GPSInfo" || group == "Iop";
}

/** Directories of raw files that describe further pictures. */
bool isOtherImageGroup(const std::string &group)
{
    return group.rfind("SubImage", 0) == 0 || group.rfind("SubThumb", 0) == 0 || group.rfind("PanasonicRaw", 0) == 0;
}

bool isMakerNote(const Exiv2::Exifdatum &tag)
{
    return !isStandardGroup(tag.groupName()) || (tag.groupName() == "Photo" && tag.tag() == tiffTag::makerNote);
}

bool isCommon(const Exiv2::Exifdatum &tag)
{
    static const std::array<const char *, 14> keys = {"Exif.Image.Orientation",
                                                      "Exif.Image.XResolution",
                                                      "Exif.Image.YResolution",
                                                      "Exif.Image.ResolutionUnit",
                                                      "Exif.Image.Make",
                                                      "Exif.Image.Model",
                                                      "Exif.Image.DateTime",
                                                      "Exif.Image.Artist",
                                                      "Exif.Image.Copyright",
                                                      "Exif.Photo.UserComment",
                                                      "Exif.Photo.DateTimeOriginal",
                                                      "Exif.Photo.ISOSpeedRatings",
                                                      "Exif.Photo.ExposureTime",
                                                      "Exif.Photo.FNumber"};
    return std::find(keys.begin(), keys.end(), tag.key()) != keys.end();
}

void setPixelSize(Exiv2::ExifData &exif, QSize pixels)
{
    const auto set = [&exif](const char *key, int value) {
        const auto tag = exif.findKey(Exiv2::ExifKey(key));
        if (tag == exif.end())
            return;
        if (tag->typeId() == Exiv2::unsignedShort && value <= 0xffff)
            *tag = uint16_t(value);
        else
            *tag = uint32_t(value);
    };
    set("Exif.Photo.PixelXDimension", pixels.width());
    set("Exif.Photo.PixelYDimension", pixels.height());
}

QByteArray toBytes(const Exiv2::Blob &blob)
{
    return QByteArray(reinterpret_cast<const char *>(blob.data()), qsizetype(blob.size()));
}

QByteArray encoded(const Exiv2::ExifData &exif, Exiv2::ByteOrder order)
{
    if (exif.empty())
        return {};
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, order, exif);
    return toBytes(blob);
}

/** True if the block states its source, as far as a simple reader sees. */
bool readsBack(const QByteArray &block, const Exiv2::ExifData &exif, Exiv2::ByteOrder order)
{
    Exiv2::ExifData again;
    Exiv2::ExifParser::decode(again, reinterpret_cast<const Exiv2::byte *>(block.constData()), uint32_t(block.size()));
    // Bytes, not texts: a comment is displayed differently once it was read from a block.
    for (const char *key : {"Exif.Image.Orientation", "Exif.Photo.UserComment", "Exif.Photo.DateTimeOriginal"}) {
        const Exiv2::Exifdatum *before = findTag(exif, key);
        const Exiv2::Exifdatum *after = findTag(again, key);
        if (before && before->size() > 0 && (!after || rawBytes(*before, order) != rawBytes(*after, order)))
            return false;
    }
    return !again.empty();
}

QByteArray attemptBlock(const Exiv2::ExifData &exif, Exiv2::ByteOrder order, qsizetype sizeLimit)
{
    try {
        const QByteArray block = encoded(exif, order);
        if (!block.isEmpty() && block.size() <= sizeLimit && readsBack(block, exif, order))
            return block;
    } catch (const std::exception &) {
        // The caller retries with less.
    }
    return {};
}

template<typename Predicate> void removeTags(Exiv2::ExifData &exif, Predicate predicate)
{
    for (auto tag = exif.begin(); tag != exif.end();)
        tag = predicate(*tag) ? exif.erase(tag) : ++tag;
}

} // namespace

Exiv2::ExifData exifForNewFile(const Exiv2::ExifData &exif, QSize pixels, MakerNotes makerNotes)
{
    Exiv2::ExifData result = exif;
    removeTags(result, [makerNotes](const Exiv2::Exifdatum &tag) {
        const std::string group = tag.groupName();
        if (isOtherImageGroup(group))
            return true;
        if (makerNotes == MakerNotes::Drop && isMakerNote(tag))
            return true;
        return group == "Image" && (describesStructure(tag.tag()) || describesOtherData(tag.tag()));
    });
    setPixelSize(result, pixels);
    return result;
}

QByteArray encodeExifBlock(const Metadata::Blocks &blocks, QSize pixels, Exiv2::ByteOrder order, qsizetype sizeLimit)
{
    if (blocks.exif.empty())
        return {};
    if (order == blocks.byteOrder) {
        const QByteArray block = exifBlockInPlace(blocks.exifBlock, pixels);
        if (!block.isEmpty() && block.size() <= sizeLimit)
            return block;
    }
    Exiv2::ExifData exif = exifForNewFile(blocks.exif, pixels, MakerNotes::Keep);
    const auto withAllTags = attemptBlock(exif, order, sizeLimit);
    if (!withAllTags.isEmpty())
        return withAllTags;
    constexpr long longestValue = 16384;
    removeTags(exif, [](const Exiv2::Exifdatum &tag) { return tag.size() > longestValue; });
    const QByteArray withoutLongTags = attemptBlock(exif, order, sizeLimit);
    if (!withoutLongTags.isEmpty())
        return withoutLongTags;
    removeTags(exif, isMakerNote);
    const QByteArray withoutMakerNotes = attemptBlock(exif, order, sizeLimit);
    if (!withoutMakerNotes.isEmpty())
        return withoutMakerNotes;
    removeTags(exif, [](const Exiv2::Exifdatum &tag) { return !isCommon(tag); });
    return attemptBlock(exif, order, sizeLimit);
}

} // namespace platform
