#include "platform/imageio/tiff/camera_raw.h"

#include "platform/imageio/tiff/tiff_reader.h"

#include <algorithm>
#include <array>

namespace platform {
namespace {

/** What the files of makers begin with who do not use the number of TIFF, or put a mark of their own behind it. */
const std::array<QByteArray, 6> rawMarks = {QByteArray("IIRO"),
                                            QByteArray("IIRS"),
                                            QByteArray("MMOR"),
                                            QByteArray("IIU\0", 4),
                                            QByteArray("FUJIFILMCCD-RAW"),
                                            QByteArray("HEAPCCDR")};

/** Compressions of sensor data, which no other file has: Sony, Nikon, Samsung, Pentax. */
bool isSensorCompression(quint32 compression)
{
    return compression == 32767 || compression == 34713 || compression == 32770 || compression == 65535;
}

/** A first directory that is only a small picture, with the large ones below it, or that names the sensor's data. */
bool describesRaw(const QByteArray &head, const TiffNumbers &numbers)
{
    const TiffDirectory directory = firstTiffDirectory(head, numbers);
    const auto number = [&](quint16 tag) {
        const TiffEntry *entry = findEntry(directory, tag);
        return entry ? tiffInteger(head, numbers, *entry) : 0;
    };
    constexpr quint16 subfileTypeTag = 0x00fe;
    constexpr quint16 compressionTag = 0x0103;
    constexpr quint16 subDirectoriesTag = 0x014a;
    constexpr quint16 dngVersionTag = 0xc612;
    const bool isSmallOfMore = number(subfileTypeTag) == 1 && findEntry(directory, subDirectoriesTag);
    return findEntry(directory, dngVersionTag) || isSmallOfMore || isSensorCompression(number(compressionTag));
}

} // namespace

bool isCameraRaw(const QByteArray &head)
{
    const auto begins = [&head](const QByteArray &mark) { return head.startsWith(mark); };
    if (std::any_of(rawMarks.begin(), rawMarks.end(), begins))
        return true;
    constexpr qsizetype canonMarkAt = 8;
    TiffNumbers numbers;
    return isTiffHeader(head, numbers) && (head.mid(canonMarkAt, 2) == "CR" || describesRaw(head, numbers));
}

} // namespace platform
