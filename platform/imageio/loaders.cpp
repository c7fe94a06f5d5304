#include "platform/imageio/loaders.h"

#include "platform/foundation/regular_file.h"
#include "platform/graphics/resample.h"
#include "platform/imageio/bmp_header.h"
#include "platform/imageio/jpeg2000_reader.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QtEndian>

namespace platform {
namespace {

using vips::VImage;
using vips::VOption;
using vips::VSource;

VSource sourceOf(const PictureBytes &source)
{
    if (!source.path.isEmpty()) {
        QFile file(source.path); // by its descriptor, so that what is read is what was asked
        if (const auto opened = openToRead(file); !opened)
            throw vips::VError(opened.error().message.toStdString());
        return VSource::new_from_descriptor(file.handle());
    }
    return VSource::new_from_memory(source.bytes.constData(), size_t(source.bytes.size()));
}

VOption *commonOptions()
{
    return VImage::option()->set("access", VIPS_ACCESS_SEQUENTIAL)->set("fail_on", VIPS_FAIL_ON_ERROR);
}

/** The decoder of these containers frees the profile while the image still refers to it: the image gets a copy. */
VImage withOwnProfile(const VImage &image)
{
    if (image.get_typeof(VIPS_META_ICC_NAME) == 0)
        return image;
    size_t length = 0;
    const void *profile = image.get_blob(VIPS_META_ICC_NAME, &length);
    const VImage owner = image.copy();
    vips_image_set_blob_copy(owner.get_image(), VIPS_META_ICC_NAME, profile, length);
    return owner;
}

/** Reads through Qt; the caller has checked the size the file claims. */
VImage loadThroughQt(const PictureBytes &source, const char *format)
{
    const std::unique_ptr<QIODevice> device = source.device();
    QImageReader::setAllocationLimit(0); // sizes are checked against a budget of ours
    QImageReader reader(device.get(), format);
    const QImage image = reader.read();
    if (image.isNull())
        throw vips::VError(reader.errorString().toStdString());
    constexpr double millimetresPerMetre = 1000;
    const VImage pixels = imageFromQImage(image).copy(VImage::option()
                                                          ->set("xres", image.dotsPerMeterX() / millimetresPerMetre)
                                                          ->set("yres", image.dotsPerMeterY() / millimetresPerMetre));
    return pixels;
}

/** The image with a profile that its decoder passes over. */
VImage withProfile(const VImage &image, const QByteArray &profile)
{
    if (profile.isEmpty())
        return image;
    const VImage owner = image.copy();
    vips_image_set_blob_copy(owner.get_image(), VIPS_META_ICC_NAME, profile.constData(), size_t(profile.size()));
    return owner;
}

VImage loadBitmapFile(const PictureBytes &source)
{
    const std::unique_ptr<QIODevice> device = source.device();
    return withProfile(loadThroughQt(source, "bmp"), device ? readBmpProfile(*device) : QByteArray());
}

/** The general reader of many formats, for the one that no other reads; the size is known to be in the budget. */
VImage loadPhotoshop(const PictureBytes &source)
{
    const QByteArray bytes = source.all();
    const std::unique_ptr<VipsBlob, void (*)(VipsBlob *)> blob(
        vips_blob_copy(bytes.constData(), size_t(bytes.size())),
        [](VipsBlob *area) { vips_area_unref(VIPS_AREA(area)); });
    // Its first page is the merged picture, the others are layers.
    return VImage::magickload_buffer(blob.get(), VImage::option()->set("page", 0));
}

/** Some old compressions are read by Qt's decoder only, and in one piece. */
VImage loadOldTiff(const PictureBytes &source, const vips::VError &reason)
{
    const std::unique_ptr<QIODevice> device = source.device();
    const QSize size = QImageReader(device.get(), "tiff").size();
    constexpr int rgba = 4;
    if (!fitsMemoryBudget(size.width(), size.height(), rgba, 1))
        throw reason;
    vips_error_clear();
    return loadThroughQt(source, "tiff");
}

VImage loadTiff(const PictureBytes &source, const LoadOptions &options)
{
    try {
        return VImage::tiffload_source(sourceOf(source), commonOptions()->set("page", options.page));
    } catch (const vips::VError &error) {
        if (options.page > 0)
            throw;
        return loadOldTiff(source, error);
    }
}

} // namespace

std::unique_ptr<QIODevice> PictureBytes::device() const
{
    std::unique_ptr<QIODevice> result;
    if (path.isEmpty()) {
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(bytes);
        result = std::move(buffer);
    } else {
        auto file = std::make_unique<QFile>(path);
        if (!openToRead(*file))
            return nullptr;
        return file;
    }
    if (!result->open(QIODevice::ReadOnly))
        result.reset();
    return result;
}

QByteArray PictureBytes::all() const
{
    const std::unique_ptr<QIODevice> opened = device();
    return opened ? opened->readAll() : QByteArray();
}

VImage openImage(const PictureBytes &source, Content content, const LoadOptions &options)
{
    // What an earlier picture left in the library's one buffer would be told as the reason of this one.
    vips_error_clear();
    switch (content) {
    case Content::Jpeg:
        return VImage::jpegload_source(sourceOf(source), commonOptions()->set("shrink", options.jpegShrink));
    case Content::Png:
        return VImage::pngload_source(sourceOf(source), commonOptions());
    case Content::Tiff:
        return loadTiff(source, options);
    case Content::Gif:
        return VImage::gifload_source(sourceOf(source), commonOptions()->set("page", options.page));
    case Content::Bmp:
        return loadBitmapFile(source);
    case Content::Webp:
        return VImage::webpload_source(sourceOf(source), commonOptions()->set("page", options.page));
    case Content::Heif:
    case Content::Avif:
        return withOwnProfile(VImage::heifload_source(sourceOf(source), commonOptions()->set("page", options.page)));
    case Content::Jpeg2000:
        return loadJpeg2000(source);
    case Content::Photoshop:
        return loadPhotoshop(source);
    case Content::Pdf:
        return VImage::pdfload_source(sourceOf(source),
                                      commonOptions()->set("page", options.page)->set("scale", options.drawingScale));
    case Content::Svg:
        return VImage::svgload_source(sourceOf(source), commonOptions()->set("scale", options.drawingScale));
    case Content::Unknown:
        break;
    }
    throw vips::VError("not a picture");
}

QSize claimedSize(const PictureBytes &source, Content content)
{
    const std::unique_ptr<QIODevice> device = source.device();
    if (!device)
        return {};
    if (content == Content::Bmp)
        return readBmpHeader(*device).size;
    constexpr int photoshopHeaderBytes = 26;
    const QByteArray head = device->read(photoshopHeaderBytes);
    if (content != Content::Photoshop || head.size() < photoshopHeaderBytes)
        return {};
    const auto height = qFromBigEndian<quint32>(head.constData() + 14);
    const auto width = qFromBigEndian<quint32>(head.constData() + 18);
    constexpr quint32 largestSide = 300'000; // of the format
    if (width > largestSide || height > largestSide)
        return {};
    return {int(width), int(height)};
}

} // namespace platform
