#include "platform/imageio/convert/png_from_jpeg.h"

// The rows of a JPEG are filtered as they are decoded, so that its pixels are never in memory together with those rows.

#include "platform/foundation/memory_left.h"
#include "platform/graphics/coverage.h"
#include "platform/imageio/encode/carrying.h"
#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/facts/resolution.h"
#include "platform/imageio/jpeg/decoded_planes.h"
#include "platform/imageio/jpeg/jpeg_rows.h"
#include "platform/imageio/png/png_rows.h"
#include "platform/imageio/source/opened_file.h"

#include <memory>
#include <new>
#include <utility>

namespace platform {
namespace {

/** Rows, the stream made of them, which may be as large, and the file that they come from. */
qint64 memoryNeedOf(const PngShape &png, const PlaneFacts &facts, qsizetype fileBytes)
{
    constexpr qint64 coefficientBytes = 2;
    const qint64 pixels = qint64(facts.stored.width()) * facts.stored.height();
    const qint64 coefficients = facts.comesInPasses ? coefficientBytes * facts.components * pixels : 0;
    return 3 * pixels * png.bands + fileBytes + coefficients;
}

/** Grey becomes grey with an opaque alpha, from the last pixel to the first. */
void addAlpha(uchar *row, int width)
{
    for (int x = width - 1; x >= 0; --x) {
        row[2 * x] = row[x];
        row[2 * x + 1] = 255;
    }
}

/** The decoded pixels, seen through a shape if there is one. */
class SeenRows
{
public:
    SeenRows(const QByteArray &jpeg, const RoundedRect *shape)
        : m_rows(jpeg, shape ? JpegRows::Order::RedFirstAlphaLast : JpegRows::Order::RedFirst)
    {
        if (shape && m_rows.isGood())
            m_shape = std::make_unique<ShapeRows>(*shape, m_rows.size().width());
    }

    bool isGood() const { return m_rows.isGood(); }
    QSize size() const { return m_rows.size(); }
    int bands() const { return m_shape && isGrey() ? 2 : m_rows.bands(); }

    bool read(uchar *row, int y)
    {
        if (!m_rows.read(&row, 1))
            return false;
        if (m_shape && isGrey())
            addAlpha(row, size().width());
        if (m_shape)
            m_shape->uncover(y, row, bands());
        return true;
    }

private:
    bool isGrey() const { return m_rows.bands() == 1; }

    JpegRows m_rows;
    std::unique_ptr<ShapeRows> m_shape;
};

/** The rows of the new file, and its facts; the source of the pixels is freed when this returns. */
std::optional<QByteArray> pngRowsOf(const ImageSource::File &file, const RoundedRect *shape, PngShape &png)
{
    constexpr qsizetype usualProfile = 1 << 16;
    const int usualBands = shape ? 4 : 3;
    const qint64 left = memoryLeft();
    // What stays gets its place first, so that the compressed stream can use what is freed behind it.
    png.resolution = resolutionOf(file.bytes, file.content);
    png.profile.reserve(usualProfile);
    std::optional<PngRows> filtered(std::in_place, file.storedSize, usualBands);
    const QByteArray jpeg = file.bytes.all();
    const std::optional<PlaneFacts> facts = planeFacts(jpeg);
    if (!facts || facts->stored != file.storedSize)
        return std::nullopt;
    SeenRows rows(jpeg, shape);
    if (!rows.isGood())
        return std::nullopt;
    png.size = rows.size();
    png.bands = rows.bands();
    png.profile.append(facts->profile);
    if (memoryNeedOf(png, *facts, jpeg.size()) >= left)
        return std::nullopt;
    if (png.bands != usualBands)
        filtered.emplace(png.size, png.bands);
    for (int y = 0; y < png.size.height(); ++y) {
        if (!rows.read(filtered->next(), y))
            return std::nullopt;
        filtered->add();
    }
    return filtered->take();
}

std::optional<QByteArray> pngOf(const ImageSource::File &file)
{
    PngShape shape;
    std::optional<QByteArray> rows = pngRowsOf(file, nullptr, shape);
    return rows ? std::optional(pngFile(shape, *std::exchange(rows, std::nullopt))) : std::nullopt;
}

std::optional<ShapedPng> shapedPngOf(const ImageSource::File &file, const RoundedRect &shape,
                                     const EncodeOptions &options)
{
    PngShape png;
    std::optional<QByteArray> rows = pngRowsOf(file, &shape, png);
    if (!rows)
        return std::nullopt;
    const Resolution known = std::exchange(png.resolution, writtenResolution(png.resolution, options));
    EncodeOptions carrying = options;
    carrying.metadata = carriedMetadata(known, FileFormat::Png, options);
    const Result<QByteArray> whole =
        withMetadata(pngFile(png, *std::exchange(rows, std::nullopt)), png.size, FileFormat::Png, carrying);
    if (!whole)
        return std::nullopt;
    const std::optional<JpegHeader> header = jpegHeaderOf(file.bytes, file.content);
    return ShapedPng{*whole, QSizeF(known.horizontal, known.vertical), png.profile,
                     header ? std::optional(header->quantisation) : std::nullopt};
}

/** If anything is odd about the file, the other way is taken, which reports it properly. */
template<typename Making> auto attempted(const ImageSource::File *file, Making making) -> decltype(making(*file))
{
    if (!file || file->content != Content::Jpeg || file->isRaw())
        return std::nullopt;
    try {
        return making(*file);
    } catch (const vips::VError &error) {
        takeVipsError(error);
    } catch (const std::bad_alloc &) {
    }
    return std::nullopt;
}

} // namespace

std::optional<QByteArray> rowsAsPng(const ImageSource &source)
{
    return attempted(source.file(), [](const ImageSource::File &file) { return pngOf(file); });
}

std::optional<ShapedPng> rowsAsShapedPng(const ImageSource &source, const RoundedRect &shape,
                                         const EncodeOptions &options)
{
    if (source.orientation() != 1 || coversAll(shape, source.storedSize()))
        return std::nullopt;
    return attempted(source.file(), [&](const ImageSource::File &file) { return shapedPngOf(file, shape, options); });
}

Bitmap ShapedPng::bitmap() const
{
    const Result<Bitmap> decoded = ImageSource::fromData(file).and_then(
        [](const ImageSource &source) { return source.decode({.orientation = Orientation::AsStored}); });
    if (!decoded)
        return {};
    vips::VImage image = decoded->pixels().image();
    if (decoded->iccProfile() != iccProfile) { // a profile with faults, which the reader of PNG files leaves out
        image = image.copy().copy_memory();
        vips_image_set_blob_copy(image.get_image(), VIPS_META_ICC_NAME, iccProfile.constData(),
                                 size_t(iccProfile.size()));
    }
    return Bitmap(
        std::make_shared<Bitmap::Pixels>(image, Resolution{dotsPerInch.width(), dotsPerInch.height()}, quantisation));
}

} // namespace platform
