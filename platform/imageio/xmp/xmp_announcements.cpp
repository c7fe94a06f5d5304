#include "platform/imageio/xmp/xmp_announcements.h"

#include "platform/imageio/xmp/xmp_edit.h"

#include <algorithm>
#include <array>

namespace platform {
namespace {

template<size_t Count> bool isIn(const std::array<QLatin1String, Count> &spaces, const QString &space)
{
    return std::any_of(spaces.begin(), spaces.end(), [&](QLatin1String each) { return space.startsWith(each); });
}

constexpr QLatin1String camera("http://ns.google.com/photos/1.0/camera/");

} // namespace

bool announcesGainMap(const XmpName &name)
{
    static constexpr std::array<QLatin1String, 2> spaces = {QLatin1String("http://ns.adobe.com/hdr-gain-map/"),
                                                            QLatin1String("http://ns.apple.com/HDRGainMap/")};
    return isIn(spaces, name.space);
}

bool announcesMotion(const XmpName &name)
{
    return name.space == camera &&
           (name.name.startsWith(QLatin1String("MotionPhoto")) || name.name.startsWith(QLatin1String("MicroVideo")));
}

bool announcesOtherData(const XmpName &name)
{
    static constexpr std::array<QLatin1String, 6> spaces = {QLatin1String("http://ns.google.com/photos/1.0/container/"),
                                                            QLatin1String("http://ns.google.com/photos/1.0/image/"),
                                                            QLatin1String("http://ns.google.com/photos/1.0/audio/"),
                                                            QLatin1String("http://ns.google.com/photos/1.0/depthmap/"),
                                                            QLatin1String("http://ns.google.com/photos/dd/1.0/"),
                                                            QLatin1String("http://ns.adobe.com/xmp/note/")};
    const bool isProvenance =
        name.space == QLatin1String("http://purl.org/dc/terms/") && name.name == QLatin1String("provenance");
    return isProvenance || isIn(spaces, name.space) || announcesGainMap(name) || announcesMotion(name);
}

} // namespace platform
