#include "platform/imageio/source/plain_jpeg.h"

#include "platform/imageio/jpeg/jpeg_header.h"
#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <algorithm>

namespace platform {
namespace {

/** The orientation that a block of EXIF states, 1 if it states none; nothing if the block is not sound. */
std::optional<int> orientationIn(const QByteArray &block)
{
    const TiffReader reader(block);
    const TiffDirectory first = reader.first();
    if (!reader.isClassic() || !first.valid)
        return std::nullopt;
    const auto isOrientation = [](const TiffEntry &entry) { return entry.tag == tiffTag::orientation; };
    const auto stated = std::count_if(first.entries.begin(), first.entries.end(), isOrientation);
    if (stated == 0)
        return 1;
    const TiffEntry &entry = *first.find(tiffTag::orientation);
    constexpr int lastOrientation = 8;
    const auto orientation = int(reader.integer(entry));
    const bool isPlain = stated == 1 && entry.isSound() && entry.type == tiffType::shortType && entry.count == 1 &&
                         orientation >= 1 && orientation <= lastOrientation;
    return isPlain ? std::optional(orientation) : std::nullopt;
}

/** Of all segments of EXIF; nothing if there are several, or if it is not sound. */
std::optional<int> orientationOf(const QList<QByteArray> &exifs)
{
    const QByteArray name("Exif\0\0", 6);
    if (exifs.isEmpty())
        return 1;
    if (exifs.size() > 1 || !exifs.first().startsWith(name))
        return std::nullopt;
    return orientationIn(exifs.first().mid(name.size()));
}

} // namespace

std::optional<PlainJpeg> plainJpeg(QIODevice &file)
{
    const std::optional<JpegHeader> header = readJpegHeader(file);
    if (!header || !header->isPlain)
        return std::nullopt;
    const std::optional<int> orientation = orientationOf(header->exifs);
    return orientation ? std::optional(PlainJpeg{header->size, header->componentCount, *orientation}) : std::nullopt;
}

} // namespace platform
