#include "platform/imageio/convert/cropped_jpeg.h"

#include "platform/foundation/memory_left.h"
#include "platform/imageio/convert/jpeg_from_jpeg.h"
#include "platform/imageio/jpeg/jpeg_rows.h"

#include <new>

namespace platform {
namespace {

/** The file before and after, which is hardly ever larger. */
bool isMemoryLeft(qsizetype fileBytes)
{
    constexpr qint64 files = 6;
    return files * fileBytes < memoryLeft();
}

std::optional<QByteArray> croppedFile(const ImageSource::File &file, const QRect &part, const EncodeOptions &options)
{
    const JpegFromJpeg made(file, options);
    if (!made.facts() || !isMemoryLeft(made.source().size()))
        return std::nullopt;
    JpegRows rows(made.source(), JpegRows::Order::RedFirst, part);
    if (!rows.isGood())
        return std::nullopt;
    const auto next = [&rows](uchar *row) { return rows.read(&row, 1); };
    return made.finished(encodeJpegPixels(part.size(), rows.bands(), next, made.facts()->profile, made.settings()),
                         part.size());
}

} // namespace

std::optional<QByteArray> croppedJpeg(const ImageSource &source, const QRect &part, const EncodeOptions &options)
{
    const ImageSource::File *file = source.file();
    if (!file || file->content != Content::Jpeg || file->isRaw() || file->orientation != 1)
        return std::nullopt;
    try {
        return croppedFile(*file, part, options);
    } catch (const vips::VError &error) {
        takeVipsError(error);
    } catch (const std::bad_alloc &) {
    }
    return std::nullopt; // the other way reports it properly
}

} // namespace platform
