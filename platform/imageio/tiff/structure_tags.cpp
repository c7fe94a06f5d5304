#include "platform/imageio/tiff/structure_tags.h"

#include "platform/imageio/tiff/tiff_tags.h"

#include <algorithm>
#include <array>

namespace platform {
namespace {

/** Sorted. YCbCrPositioning is not among them: every EXIF file must state it. */
constexpr std::array<quint16, 59> structureTags = {
    0x00fe, 0x00ff, 0x0100, 0x0101, 0x0102, 0x0103, 0x0106, 0x0107, 0x0108, 0x0109, 0x010a, 0x0111,
    0x0115, 0x0116, 0x0117, 0x0118, 0x0119, 0x011c, 0x0120, 0x0121, 0x0122, 0x0123, 0x0124, 0x0125,
    0x0129, 0x012d, 0x013d, 0x0140, 0x0141, 0x0142, 0x0143, 0x0144, 0x0145, 0x014a, 0x014c, 0x014d,
    0x014e, 0x0150, 0x0151, 0x0152, 0x0153, 0x0154, 0x0155, 0x0156, 0x015b, 0x0200, 0x0201, 0x0202,
    0x0203, 0x0205, 0x0206, 0x0207, 0x0208, 0x0209, 0x0211, 0x0212, 0x0214, 0x828d, 0x828e};
static_assert(std::is_sorted(structureTags.begin(), structureTags.end()));

} // namespace

bool describesStructure(quint16 tag)
{
    return std::binary_search(structureTags.begin(), structureTags.end(), tag);
}

bool describesOtherData(quint16 tag)
{
    constexpr std::array<quint16, 5> carriedElsewhere = {tiffTag::xmp, tiffTag::iptc, tiffTag::photoshop,
                                                         tiffTag::profile, tiffTag::photoshopLayers};
    return std::find(carriedElsewhere.begin(), carriedElsewhere.end(), tag) != carriedElsewhere.end() ||
           (tag >= tiffTag::dngVersion && tag <= tiffTag::lastRaw);
}

} // namespace platform
