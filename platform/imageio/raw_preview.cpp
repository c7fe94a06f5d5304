#include "platform/imageio/raw_preview.h"

#include "platform/imageio/metadata_blocks.h"
#include "platform/imageio/tiff_reader.h"
#include "platform/imageio/xmp_bounds.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <exception>

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

/** The library reads all metadata on its way to the preview. */
bool hasReadableMetadata(const PictureBytes &file)
{
    QFile opened(file.path);
    if (file.path.isEmpty() || !opened.open(QIODevice::ReadOnly))
        return holdsDigestibleXmp(file.bytes);
    const uchar *data = opened.map(0, opened.size());
    return !data || holdsDigestibleXmp(QByteArray::fromRawData(reinterpret_cast<const char *>(data), opened.size()));
}

QByteArray largestJpeg(const Exiv2::Image &image)
{
    const Exiv2::PreviewManager previews(image);
    const Exiv2::PreviewPropertiesList list = previews.getPreviewProperties();
    for (auto each = list.rbegin(); each != list.rend(); ++each) { // by size, the largest last
        if (each->mimeType_ != "image/jpeg")
            continue;
        const Exiv2::PreviewImage preview = previews.getPreviewImage(*each);
        const QByteArray jpeg(reinterpret_cast<const char *>(preview.pData()), qsizetype(preview.size()));
        if (contentOf(jpeg.left(contentHeadBytes)) == Content::Jpeg)
            return jpeg;
    }
    return {};
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

QByteArray rawPreview(const PictureBytes &file)
{
    startMetadataLibrary();
    if (!hasReadableMetadata(file))
        return {};
    try {
        const auto image =
            file.path.isEmpty()
                ? Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte *>(file.bytes.constData()),
                                            long(file.bytes.size()))
                : Exiv2::ImageFactory::open(QFile::encodeName(file.path).toStdString());
        image->readMetadata();
        return largestJpeg(*image);
    } catch (const std::exception &) {
        return {};
    }
}

} // namespace platform
