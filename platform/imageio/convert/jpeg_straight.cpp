#include "platform/imageio/convert/jpeg_straight.h"

// A JPEG is written into an uncompressed file row by row, at half the cost of decoding it into memory and encoding
// that.

#include "platform/file/replacement_file.h"
#include "platform/graphics/icc_profile.h"
#include "platform/imageio/codecs/codecs.h"
#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/facts/resolution.h"
#include "platform/imageio/formats/memory_need.h"
#include "platform/imageio/jpeg/jpeg_rows.h"
#include "platform/imageio/source/opened_file.h"

#include <algorithm>
#include <vector>

namespace platform {
namespace {

using vips::VImage;

/** Some rows, as many as fit in the processor's cache. */
class Band
{
public:
    explicit Band(qint64 rowBytes)
        : m_rowBytes(rowBytes), m_rows(int(std::clamp<qint64>(mostBytes / rowBytes, 1, 512))),
          m_bytes(size_t(rowBytes) * size_t(m_rows)), m_places(size_t(m_rows))
    {
    }

    int rows() const { return m_rows; }
    const char *bytes() const { return reinterpret_cast<const char *>(m_bytes.data()); }
    /** Pointers to @p count consecutive rows. */
    uchar **downwards(int count)
    {
        for (int row = 0; row < count; ++row)
            m_places[size_t(row)] = m_bytes.data() + m_rowBytes * row;
        return m_places.data();
    }
    /** The same if the last row comes first. */
    uchar **upwards(int count)
    {
        std::reverse(downwards(count), downwards(count) + count);
        return m_places.data();
    }

private:
    static constexpr qint64 mostBytes = 512 * 1024;
    qint64 m_rowBytes;
    int m_rows;
    std::vector<uchar> m_bytes; // padding of a row stays zero
    std::vector<uchar *> m_places;
};

bool isOfBytes(const VImage &image)
{
    const VipsInterpretation space = image.interpretation();
    return image.format() == VIPS_FORMAT_UCHAR && ((image.bands() == 1 && space == VIPS_INTERPRETATION_B_W) ||
                                                   (image.bands() == 3 && space == VIPS_INTERPRETATION_sRGB));
}

/** The decoder and the description of what it decodes agree. */
bool agree(const JpegRows &rows, const VImage &shape)
{
    return rows.isGood() && rows.bands() == shape.bands() && rows.size() == QSize(shape.width(), shape.height());
}

/** Writes all rows from the end of a bitmap file to its start; false if they cannot be decoded. */
bool pourUpwards(JpegRows &rows, qint64 headers, ReplacementFile &file)
{
    const qint64 rowBytes = bmpRowBytes(rows.size().width(), rows.bands());
    Band band(rowBytes);
    for (int left = rows.size().height(); left > 0;) {
        const int count = std::min(left, band.rows());
        if (!rows.read(band.upwards(count), count))
            return false;
        left -= count;
        file.write(headers + rowBytes * left, band.bytes(), rowBytes * count);
    }
    return true;
}

/** Writes all rows after the headers of two files. */
bool pourDownwards(JpegRows &rows, ReplacementFile &plain, qint64 plainAt, ReplacementFile &whole, qint64 wholeAt)
{
    const qint64 rowBytes = qint64(rows.size().width()) * rows.bands();
    Band band(rowBytes);
    for (int done = 0; done < rows.size().height();) {
        const int count = std::min(rows.size().height() - done, band.rows());
        if (!rows.read(band.downwards(count), count))
            return false;
        plain.write(plainAt + rowBytes * done, band.bytes(), rowBytes * count);
        whole.write(wholeAt + rowBytes * done, band.bytes(), rowBytes * count);
        done += count;
    }
    return true;
}

Result<bool> isDone(const Result<void> &written)
{
    return written ? Result<bool>(true) : tl::unexpected<Error>(written.error());
}

Result<bool> writeBmp(const ImageSource::File &file, const QString &path)
{
    const VImage image = openImage(file.bytes, file.content);
    if (!memoryIsLeftToDecode(file, image, {}))
        return false;
    const VImage shape = bareImage(inForm(image));
    const QByteArray profile = iccProfileOf(shape);
    if (!isOfBytes(shape) || (!profile.isEmpty() && !isSrgb(profile)))
        return false;
    JpegRows rows(file.bytes.all(), JpegRows::Order::BlueFirst);
    if (!agree(rows, shape))
        return false;
    const QByteArray headers = bmpHeaders(rows.size(), rows.bands(), resolutionOf(file.bytes, file.content));
    ReplacementFile target(path);
    target.write(0, headers);
    return pourUpwards(rows, headers.size(), target) ? isDone(target.takePlace()) : false;
}

Result<bool> writeTiff(const ImageSource::File &file, const QString &path, const Metadata &metadata)
{
    const VImage image = openImage(file.bytes, file.content);
    if (!memoryIsLeftToDecode(file, image, {}))
        return false;
    const VImage shape = bareImage(inForm(image));
    const qint64 pixelBytes = qint64(VIPS_IMAGE_SIZEOF_IMAGE(shape.get_image()));
    if (!isOfBytes(shape) || !isPlainTiff(shape))
        return false;
    const Resolution resolution = resolutionOf(file.bytes, file.content);
    const FileEnds plain = plainTiffEnds(shape, resolution, plainTiffHeadBytes + pixelBytes);
    FileEnds whole = plain;
    if (!metadata.isEmpty()) {
        const auto ends = metadata.writtenAround(plainTiffEnds(shape, resolution, plainTiffHeadBytes), pixelBytes);
        if (!ends)
            return false;
        whole = *ends;
    }
    JpegRows rows(file.bytes.all(), JpegRows::Order::RedFirst);
    if (!agree(rows, shape))
        return false;
    ReplacementFile first(path);
    ReplacementFile second(path);
    if (!pourDownwards(rows, first, plain.head.size(), second, whole.head.size()))
        return false;
    first.write(0, plain.head);
    first.write(plain.head.size() + pixelBytes, plain.tail);
    const qint64 evenBytes = metadata.isEmpty() ? pixelBytes : pixelBytes + pixelBytes % 2;
    second.write(0, whole.head);
    second.write(whole.head.size() + evenBytes, whole.tail);
    return isDone(first.takePlace().and_then([&second] { return second.takePlace(); }));
}

/** If anything is odd about the file, the other way is taken, which reports it properly. */
template<typename Writing> Result<bool> attempted(Writing writing)
{
    try {
        initVips();
        return writing();
    } catch (const vips::VError &error) {
        takeVipsError(error);
        return false;
    }
}

} // namespace

Result<bool> writeRowsAsBmp(const ImageSource &source, const QString &path)
{
    const ImageSource::File *file = source.file();
    if (!file || file->content != Content::Jpeg || file->orientation != 1)
        return false;
    return attempted([&] { return writeBmp(*file, path); });
}

Result<bool> writeRowsAsTiff(const ImageSource &source, const QString &path, const Metadata &metadata)
{
    const ImageSource::File *file = source.file();
    if (!file || file->content != Content::Jpeg)
        return false;
    return attempted([&] { return writeTiff(*file, path, metadata); });
}

} // namespace platform
