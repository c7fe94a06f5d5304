#include "platform/imageio/source/image_source.h"

#include "platform/file/atomic_file.h"
#include "platform/file/lent_file.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/memory_left.h"
#include "platform/foundation/paths.h"
#include "platform/graphics/resample.h"
#include "platform/imageio/codecs/codecs.h"
#include "platform/imageio/codecs/whole_picture.h"
#include "platform/imageio/facts/metadata_of_file.h"
#include "platform/imageio/facts/raw_preview.h"
#include "platform/imageio/facts/resolution.h"
#include "platform/imageio/formats/memory_need.h"
#include "platform/imageio/jpeg/shrunk_jpeg.h"
#include "platform/imageio/source/opened_file.h"
#include "platform/imageio/source/opening_watch.h"
#include "platform/imageio/source/plain_jpeg.h"
#include "platform/imageio/tiff/camera_raw.h"

#include <QCoreApplication>

#include <cmath>
#include <unistd.h>
#include <utility>

namespace platform {

using vips::VImage;

namespace {

using File = ImageSource::File;

QString text(const char *sentence)
{
    return QCoreApplication::translate("platform", sentence);
}

tl::unexpected<Error> tooLarge(const QString &name, QSize size)
{
    return failure(ErrorCode::TooLarge,
                   text(QT_TRANSLATE_NOOP("platform", "Cannot read %1: %2 x %3 pixels are more than the memory allows"))
                       .arg(name)
                       .arg(size.width())
                       .arg(size.height()));
}

/** The picture in the requested form; only TIFF files have others than the plain ones. */
VImage openedInForm(const File &file, const LoadOptions &options, Forms forms)
{
    return inForm(openImage(file.bytes, file.content, options), file.content == Content::Tiff ? forms : Forms::Plain);
}

bool isWithinBudget(const VImage &image)
{
    return fitsMemoryBudget(image.width(), image.height(), image.bands(), bytesPerComponent(image));
}

/** For containers with their own rotation the decoder has applied it; another tag must not turn them again. */
int statedOrientation(const VImage &image, const PictureBytes &bytes, Content content)
{
    switch (content) {
    case Content::Heif:
    case Content::Avif:
    case Content::JpegXl:
    case Content::Pdf:
    case Content::Svg:
    case Content::Gif:
    case Content::Bmp:
    case Content::Photoshop:
        return 1;
    case Content::Png:
    case Content::Jpeg2000: {
        const int stated = metadataOf(bytes, content).orientation();
        return stated == 0 ? 1 : stated;
    }
    default:
        break;
    }
    const int stated = vips_image_get_orientation(image.get_image());
    constexpr int lastOrientation = 8;
    return stated >= 1 && stated <= lastOrientation ? stated : 1;
}

int pagesOf(const VImage &image, Content content)
{
    if (content == Content::Jpeg2000 || content == Content::Photoshop)
        return 1; // what the decoder counts there are resolution levels and layers
    return std::max(1, vips_image_get_n_pages(image.get_image()));
}

/** Content whose decoder would decode everything just to determine the size. */
bool hasPlainHeader(Content content)
{
    return content == Content::Bmp || content == Content::Photoshop;
}

Result<void> readPlainHeader(File &file)
{
    file.storedSize = claimedSize(file.bytes, file.content);
    if (file.storedSize.isEmpty())
        return unreadable(file.name(), text(QT_TRANSLATE_NOOP("platform", "its header is damaged")));
    constexpr int deepRgba = 8;
    if (!fitsMemoryBudget(file.storedSize.width(), file.storedSize.height(), deepRgba, 1))
        return tooLarge(file.name(), file.storedSize);
    return {};
}

std::optional<PlainJpeg> plainJpegOf(const File &file)
{
    if (file.content != Content::Jpeg || file.isRaw())
        return std::nullopt;
    const std::unique_ptr<QIODevice> device = file.bytes.openedDevice();
    const std::optional<PlainJpeg> known = plainJpeg(*device);
    demandRead(*device);
    return known;
}

Result<void> readHeader(File &file)
{
    if (const std::optional<PlainJpeg> jpeg = plainJpegOf(file)) {
        file.storedSize = jpeg->size;
        file.orientation = jpeg->orientation;
        const bool isWithin = fitsMemoryBudget(jpeg->size.width(), jpeg->size.height(), jpeg->components, 1);
        return isWithin ? Result<void>() : tooLarge(file.name(), file.storedSize);
    }
    initVips();
    const VImage image = openImage(file.bytes, file.content);
    file.storedSize = QSize(image.width(), image.height());
    if (!isWithinBudget(image))
        return tooLarge(file.name(), file.storedSize);
    file.imageCount = pagesOf(image, file.content);
    file.orientation = statedOrientation(image, file.bytes, file.content);
    if (file.isRaw() && file.orientation == 1) // the preview is oriented like the sensor; only the raw file says how
        file.orientation = std::max(1, file.metadata().orientation());
    return {};
}

/** The JPEG decoder checks its header by itself, without reading all the metadata for an image. */
bool isSoundJpeg(QIODevice &device)
{
    if (!isWhole(device, Content::Jpeg) || !device.seek(0))
        return false;
    const std::optional<JpegHeader> header = readJpegHeader(device);
    return header && fitsMemoryBudget(header->size.width(), header->size.height(), header->componentCount, 1);
}

/** Replaces a raw file by its preview; nothing changes if there is none. */
Result<void> usePreview(File &file)
{
    const Result<QByteArray> preview = rawPreview(file.bytes);
    if (!preview)
        return unreadable(file.name(), preview.error().message);
    if (preview->isEmpty())
        return {};
    file.raw = std::exchange(file.bytes, {{}, *preview});
    file.content = Content::Jpeg;
    return {};
}

Result<std::shared_ptr<const File>> opened(PictureBytes bytes)
{
    tellOpening(bytes.path);
    prepareHeapForPictures();
    auto file = std::make_shared<File>();
    file->bytes = std::move(bytes);
    const std::unique_ptr<QIODevice> device = file->bytes.device();
    if (!device) {
        const bool exists = ::access(encodedPath(file->bytes.path).constData(), F_OK) == 0;
        return failure(ErrorCode::NotFound,
                       text(QT_TRANSLATE_NOOP("platform", "Cannot read %1: %2"))
                           .arg(file->name(), exists ? text(QT_TRANSLATE_NOOP("platform", "no permission"))
                                                     : text(QT_TRANSLATE_NOOP("platform", "no such file"))));
    }
    const QByteArray head = device->read(contentHeadBytes);
    if (const QString problem = readProblemOf(*device); !problem.isEmpty())
        return unreadable(file->name(), problem);
    file->content = contentOf(head);
    const bool isRaw = isCameraRaw(head);
    const bool isRawWhole = !isRaw || isWholeRaw(*device);
    if (isRaw && isRawWhole)
        if (const auto used = usePreview(*file); !used)
            return tl::unexpected(used.error());
    if (file->content == Content::Unknown && isRawWhole)
        return failure(ErrorCode::NotAPicture,
                       text(QT_TRANSLATE_NOOP("platform", "Cannot read %1: %2"))
                           .arg(file->name(), text(QT_TRANSLATE_NOOP("platform", "this is not a picture"))));
    const std::unique_ptr<QIODevice> decoded = file->isRaw() ? file->bytes.device() : nullptr;
    if (!isRawWhole || !isWhole(decoded ? *decoded : *device, file->content))
        return unreadable(file->name(), text(QT_TRANSLATE_NOOP("platform", "the file is cut short")));
    try {
        const Result<void> known = hasPlainHeader(file->content) ? readPlainHeader(*file) : readHeader(*file);
        if (!known)
            return tl::unexpected<Error>(known.error());
    } catch (const vips::VError &error) {
        return unreadable(file->name(), takeVipsError(error));
    }
    return std::shared_ptr<const File>(std::move(file));
}

QSize turned(QSize size, int orientation)
{
    constexpr int firstOnItsSide = 5;
    return orientation >= firstOnItsSide ? size.transposed() : size;
}

/** The position of a part of the upright picture among the @p size stored pixels. */
QRect storedPart(const QRect &upright, QSize size, int orientation)
{
    const bool isOnItsSide = turned({1, 2}, orientation) == QSize(2, 1);
    QRect part = isOnItsSide ? QRect(upright.y(), upright.x(), upright.height(), upright.width()) : upright;
    const bool isFromTheRight = orientation == 2 || orientation == 3 || orientation == 7 || orientation == 8;
    const bool isFromBelow = orientation == 3 || orientation == 4 || orientation == 6 || orientation == 7;
    if (isFromTheRight)
        part.moveLeft(size.width() - part.x() - part.width());
    if (isFromBelow)
        part.moveTop(size.height() - part.y() - part.height());
    return part;
}

/** What is known about resolution and JPEG tables, to accompany the pixels. */
Bitmap finished(const File &file, const VImage &image, Orientation orientation = Orientation::Upright)
{
    const std::optional<JpegHeader> header = jpegHeaderOf(file.bytes, file.content);
    std::optional<JpegQuantisation> quantisation;
    if (header)
        quantisation = header->quantisation;
    const Resolution stored = resolutionOf(file.bytes, file.content);
    const bool isTurned = orientation == Orientation::Upright;
    return bitmapFromImage(image, isTurned ? uprightResolution(stored, file.orientation) : stored, quantisation);
}

LoadOptions loadOptionsFor(const File &file, QSize wanted)
{
    LoadOptions options;
    if (file.content == Content::Jpeg)
        options.jpegShrink = jpegShrinkFor(file.storedSize, wanted);
    if (file.content == Content::Pdf || file.content == Content::Svg)
        options.drawingScale = std::max(double(wanted.width()) / file.storedSize.width(),
                                        double(wanted.height()) / file.storedSize.height());
    return options;
}

} // namespace

tl::unexpected<Error> unreadable(const QString &name, const QString &reason)
{
    return failure(ErrorCode::Unreadable, text(QT_TRANSLATE_NOOP("platform", "Cannot read %1: %2")).arg(name, reason));
}

Result<Metadata> ImageSource::metadata() const
{
    if (!m_file)
        return Metadata();
    try {
        return m_file->metadata();
    } catch (const vips::VError &error) {
        return unreadable(m_file->name(), takeVipsError(error));
    }
}

Result<ImageSource> ImageSource::open(const QString &path)
{
    return opened({path, {}}).map([](std::shared_ptr<const File> file) { return ImageSource(std::move(file)); });
}

Result<ImageSource> ImageSource::fromData(const QByteArray &bytes)
{
    return opened({{}, bytes}).map([](std::shared_ptr<const File> file) { return ImageSource(std::move(file)); });
}

Result<ImageSource> ImageSource::fromLent(std::shared_ptr<const LentFile> file)
{
    const QString name = file->name();
    return opened({name, {}, std::move(file)}).map([](std::shared_ptr<const File> known) {
        return ImageSource(std::move(known));
    });
}

bool ImageSource::canOpen(const QString &path)
{
    tellOpening(path);
    if (const std::unique_ptr<QIODevice> device = PictureBytes{path, {}}.device())
        if (contentOf(device->read(contentHeadBytes)) == Content::Jpeg)
            return isSoundJpeg(*device);
    return open(path).has_value();
}

QString ImageSource::path() const
{
    return m_file ? m_file->path() : QString();
}

Result<QByteArray> ImageSource::fileContent() const
{
    if (!m_file)
        return QByteArray();
    const PictureBytes &file = m_file->isRaw() ? m_file->raw : m_file->bytes;
    if (!file.lent && !file.path.isEmpty())
        return readFile(file.path);
    try {
        return file.all();
    } catch (const vips::VError &error) {
        return unreadable(m_file->name(), takeVipsError(error));
    }
}

qint64 ImageSource::fileBytes() const
{
    const PictureBytes file = !m_file ? PictureBytes() : m_file->isRaw() ? m_file->raw : m_file->bytes;
    const bool isThere = file.lent || (!file.path.isEmpty() && QFile::exists(file.path));
    return isThere ? file.fileBytes() : -1;
}

QString ImageSource::typeIdentifier() const
{
    if (!m_file)
        return {};
    return m_file->isRaw() ? QStringLiteral("public.camera-raw-image") : typeIdentifierOf(m_file->content);
}

int ImageSource::imageCount() const
{
    return m_file ? m_file->imageCount : 0;
}

QSize ImageSource::storedSize() const
{
    return m_file ? m_file->storedSize : QSize(0, 0);
}

QSize ImageSource::uprightSize() const
{
    return m_file ? turned(m_file->storedSize, m_file->orientation) : QSize(0, 0);
}

int ImageSource::orientation() const
{
    return m_file ? m_file->orientation : 1;
}

Result<Bitmap> ImageSource::decode(const DecodeOptions &options) const
{
    if (!m_file || options.index < 0 || options.index >= m_file->imageCount)
        return failure(ErrorCode::InvalidValue,
                       text(QT_TRANSLATE_NOOP("platform", "There is no image %1")).arg(options.index));
    try {
        initVips();
        LoadOptions load;
        load.page = options.index;
        VImage image = openedInForm(*m_file, load, options.forms);
        if (!isWithinBudget(image))
            return tooLarge(m_file->name(), QSize(image.width(), image.height()));
        const bool isTurned = options.orientation == Orientation::Upright && m_file->orientation > 1;
        const QSize made(image.width(), image.height());
        if (const auto left = memoryIsLeftToDecode(*m_file, image, {made, isTurned, options.written}); !left)
            return tl::unexpected<Error>(left.error());
        if (isTurned)
            image = turnedUpright(inMemory(image), m_file->orientation);
        return finished(*m_file, image, options.orientation);
    } catch (const vips::VError &error) {
        return unreadable(m_file->name(), takeVipsError(error));
    }
}

Result<Bitmap> ImageSource::decodePart(const QRect &part, Forms forms) const
{
    const QRect whole(QPoint(0, 0), uprightSize());
    const QRect kept = part.intersected(whole);
    if (!m_file || kept.isEmpty())
        return failure(ErrorCode::InvalidValue,
                       text(QT_TRANSLATE_NOOP("platform", "There is nothing of the picture in that part")));
    if (kept == whole)
        return decode({.forms = forms});
    try {
        initVips();
        const VImage image = openedInForm(*m_file, {}, forms);
        const QRect stored = storedPart(kept, QSize(image.width(), image.height()), m_file->orientation);
        if (const auto left = memoryIsLeftToDecode(*m_file, image, {stored.size(), m_file->orientation > 1}); !left)
            return tl::unexpected<Error>(left.error());
        const VImage rows = image.extract_area(stored.x(), stored.y(), stored.width(), stored.height());
        if (m_file->orientation <= 1)
            return finished(*m_file, rows);
        return finished(*m_file, turnedUpright(inMemory(rows), m_file->orientation));
    } catch (const vips::VError &error) {
        return unreadable(m_file->name(), takeVipsError(error));
    }
}

Result<Bitmap> ImageSource::decodeScaled(QSize size, Forms forms) const
{
    return decodeFor(size, Scaling::Exact, forms);
}

Result<Bitmap> ImageSource::decodeAtLeast(QSize size) const
{
    return decodeFor(size, Scaling::AtLeast, Forms::Plain);
}

Result<Bitmap> ImageSource::decodeFinely(QSize size) const
{
    const QSize all = uprightSize();
    const QSize leastAtMostShrink = all / (2 * mostFineShrink) + QSize(1, 1); // the next step has fewer
    const QSize wanted = (finerTimes * size).expandedTo(leastAtMostShrink);
    const bool hasHalves = all.width() % mostFineShrink == 0 && all.height() % mostFineShrink == 0;
    if (!m_file || m_file->content != Content::Jpeg || !hasHalves || jpegShrinkFor(all, wanted) == 1)
        return decode();
    const Result<Bitmap> shrunk = decodeFor(wanted, Scaling::AtLeast, Forms::Plain);
    return shrunk && showsShrinking(shrunk->pixels().image()) ? decode() : shrunk;
}

Result<Bitmap> ImageSource::scaledFinely(const Bitmap &decoded, QSize size) const
{
    if (decoded.isNull() || decoded.size() == uprightSize())
        return resample(decoded, size);
    try {
        // Each pixel is at the position of those it was made from, so that blocks are those of the whole picture.
        const Bitmap::Pixels &pixels = decoded.pixels();
        return bitmapFromImage(scaledTo(pixels.image().zoom(mostFineShrink, mostFineShrink), size), pixels.resolution,
                               pixels.quantisation);
    } catch (const vips::VError &error) {
        return failure(ErrorCode::TooLarge, takeVipsError(error));
    }
}

Result<Bitmap> ImageSource::decodeScaledFinely(QSize size) const
{
    const bool isDrawing = m_file && (m_file->content == Content::Pdf || m_file->content == Content::Svg);
    const bool isTurned = m_file && m_file->orientation > 1; // blocks count from the corner of the upright picture
    if (!m_file || isDrawing || (m_file->content != Content::Jpeg && !isTurned))
        return decodeScaled(size);
    return decodeFinely(size).and_then([&](const Bitmap &bitmap) { return scaledFinely(bitmap, size); });
}

Result<Bitmap> ImageSource::decodeFor(QSize size, Scaling scaling, Forms forms) const
{
    if (!m_file)
        return failure(ErrorCode::InvalidValue, text(QT_TRANSLATE_NOOP("platform", "There is no picture to scale")));
    const QSize wanted = turned(size, m_file->orientation);
    if (wanted.width() < 1 || wanted.height() < 1)
        return failure(ErrorCode::InvalidValue,
                       text(QT_TRANSLATE_NOOP("platform", "A picture of %1 × %2 pixels cannot be made"))
                           .arg(size.width())
                           .arg(size.height()));
    try {
        initVips();
        const LoadOptions load = loadOptionsFor(*m_file, wanted);
        VImage image = openedInForm(*m_file, load, forms);
        const int shrink = load.jpegShrink;
        if (shrink > 1)
            image = withWholeEdges(image, m_file->storedSize, shrink);
        if (!fitsMemoryBudget(wanted.width(), wanted.height(), image.bands(), bytesPerComponent(image)))
            return failure(ErrorCode::TooLarge,
                           text(QT_TRANSLATE_NOOP("platform", "A picture of %1 × %2 pixels cannot be made"))
                               .arg(size.width())
                               .arg(size.height()));
        const QSize decoded(image.width(), image.height());
        const QSize made = scaling == Scaling::Exact ? wanted : decoded;
        if (const auto left = memoryIsLeftToDecode(*m_file, image, {made, m_file->orientation > 1}); !left)
            return tl::unexpected<Error>(left.error());
        if (scaling == Scaling::Exact)
            image = shrink > 1 ? scaledFromShrunk(image, m_file->storedSize, shrink, wanted) : scaledTo(image, wanted);
        if (m_file->orientation > 1)
            image = turnedUpright(inMemory(image), m_file->orientation);
        return finished(*m_file, image);
    } catch (const vips::VError &error) {
        return unreadable(m_file->name(), takeVipsError(error));
    }
}

} // namespace platform
