#include "platform/imageio/tiff/camera_raw.h"

#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <algorithm>
#include <array>

namespace platform {
namespace {

/** First bytes of raw files whose makers replace TIFF's number, or add a mark after it. */
const std::array<QByteArray, 6> rawMarks = {QByteArray("IIRO"),
                                            QByteArray("IIRS"),
                                            QByteArray("MMOR"),
                                            QByteArray("IIU\0", 4),
                                            QByteArray("FUJIFILMCCD-RAW"),
                                            QByteArray("HEAPCCDR")};

/** Compressions of sensor data, which no other files have: Sony, Nikon, Samsung, Pentax. */
bool isSensorCompression(quint64 compression)
{
    return compression == 32767 || compression == 34713 || compression == 32770 || compression == 65535;
}

/** A first directory that is only a thumbnail, with the large pictures below it, or that describes sensor data. */
bool describesRaw(const TiffReader &reader)
{
    const TiffDirectory directory = reader.first();
    const bool isSmallOfMore =
        reader.integer(directory, tiffTag::subfileType) == 1 && directory.findSound(tiffTag::subDirectories);
    return directory.findSound(tiffTag::dngVersion) || isSmallOfMore ||
           isSensorCompression(reader.integer(directory, tiffTag::compression));
}

} // namespace

bool isCameraRaw(const QByteArray &head)
{
    const auto begins = [&head](const QByteArray &mark) { return head.startsWith(mark); };
    if (std::any_of(rawMarks.begin(), rawMarks.end(), begins))
        return true;
    constexpr qsizetype canonMarkAt = 8;
    const TiffReader reader(head);
    return reader.isClassic() && (head.mid(canonMarkAt, 2) == "CR" || describesRaw(reader));
}

} // namespace platform
