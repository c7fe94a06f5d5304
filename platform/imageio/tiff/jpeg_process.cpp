#include "platform/imageio/tiff/jpeg_process.h"

#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <algorithm>
#include <array>

namespace platform {
namespace {

/** The process of a JPEG: the second byte of the marker before its size; 0 if it is not near the beginning. */
uchar processOf(const QByteArray &jpeg)
{
    constexpr uchar first = 0xc0;
    constexpr uchar last = 0xcf;
    constexpr std::array<uchar, 3> others = {0xc4, 0xc8, 0xcc}; // tables and such
    for (qsizetype at = 2; at + 3 < jpeg.size() && uchar(jpeg[at]) == 0xff;) {
        const uchar marker = uchar(jpeg[at + 1]);
        if (marker >= first && marker <= last && std::find(others.begin(), others.end(), marker) == others.end())
            return marker;
        at += 2 + (uchar(jpeg[at + 2]) << 8 | uchar(jpeg[at + 3]));
    }
    return 0;
}

} // namespace

bool hasUnknownJpegProcess(QIODevice &file)
{
    constexpr quint64 jpegCompression = 7;
    constexpr qint64 mostHeader = 65536;
    const TiffReader reader(file);
    const TiffDirectory directory = reader.first();
    if (reader.integer(directory, tiffTag::compression) != jpegCompression)
        return false;
    const quint64 strip = reader.integer(directory, tiffTag::stripOffsets);
    const quint64 start = strip > 0 ? strip : reader.integer(directory, tiffTag::tileOffsets);
    if (start == 0 || !file.seek(qint64(start)))
        return false;
    constexpr std::array<uchar, 8> unknown = {0xc3, 0xc5, 0xc6, 0xc7, 0xcb, 0xcd, 0xce, 0xcf};
    const uchar process = processOf(file.read(mostHeader));
    return process != 0 && std::find(unknown.begin(), unknown.end(), process) != unknown.end();
}

} // namespace platform
