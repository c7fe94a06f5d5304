#include "platform/imageio/load/loaders.h"

#include "platform/file/regular_file.h"
#include "platform/graphics/resample.h"
#include "platform/imageio/bmp/bmp_header.h"
#include "platform/imageio/bmp/bmp_pixels.h"
#include "platform/imageio/formats/memory_need.h"
#include "platform/imageio/load/svg_work.h"
#include "platform/imageio/photoshop/photoshop_pixels.h"
#include "platform/imageio/tiff/tiff_device.h"
#include "platform/imageio/tiff/tiff_samples.h"

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
    if (source.lent)
        return sourceOver(source.openedDevice());
    if (!source.path.isEmpty()) {
        QFile file(source.path); // by its descriptor, so that the checked file is the one that is read
        if (const auto opened = openToRead(file); !opened)
            throw vips::VError(opened.error().message.toStdString());
        return VSource::new_from_descriptor(file.handle());
    }
    return VSource::new_from_memory(source.bytes.constData(), size_t(source.bytes.size()));
}

/**
 * For a container whose library ends the program if a read fails in the middle of a number: it gets bytes from memory.
 */
VSource wholeSourceOf(const PictureBytes &source)
{
    if (source.isInMemory())
        return sourceOf(source);
    const QByteArray bytes = source.all();
    VipsBlob *blob = vips_blob_copy(bytes.constData(), size_t(bytes.size()));
    const VSource whole = VSource::new_from_blob(blob);
    vips_area_unref(VIPS_AREA(blob));
    return whole;
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

/** The image with a profile that its decoder ignores. */
VImage withProfile(const VImage &image, const QByteArray &profile)
{
    if (profile.isEmpty())
        return image;
    const VImage owner = image.copy();
    vips_image_set_blob_copy(owner.get_image(), VIPS_META_ICC_NAME, profile.constData(), size_t(profile.size()));
    return owner;
}

/**
 * Some old compressions are supported by Qt's decoder only, and only at once; so are logarithmic samples, which it
 * converts for display.
 */
VImage loadTiffThroughQt(const PictureBytes &source, const vips::VError &reason)
{
    TiffDevice device(source);
    QImageReader::setAllocationLimit(0); // sizes are checked against our own budget
    QImageReader reader(&device, "tiff");
    constexpr int rgba = 4;
    if (!fitsMemoryBudget(reader.size().width(), reader.size().height(), rgba, 1))
        throw reason;
    vips_error_clear();
    const QImage image = reader.read();
    device.demandAllRead();
    if (image.isNull())
        throw vips::VError(reader.errorString().toStdString());
    constexpr double millimetresPerMetre = 1000;
    return imageFromQImage(image).copy(VImage::option()
                                           ->set("xres", image.dotsPerMeterX() / millimetresPerMetre)
                                           ->set("yres", image.dotsPerMeterY() / millimetresPerMetre));
}

/** The meaning of the bands according to the tags of the file. */
SampleFacts factsOf(const TiffSamples &samples, const VImage &image)
{
    enum Photometric { MinIsWhite = 0, MinIsBlack = 1, Palette = 3, Separated = 5 };
    constexpr int rgb = 3;
    constexpr int cmyk = 4;
    SampleFacts facts;
    const bool isGrey = samples.photometric == MinIsWhite || samples.photometric == MinIsBlack;
    const bool isGreyPalette = samples.photometric == Palette && image.bands() < rgb;
    if (isGrey || isGreyPalette || image.bands() < rgb)
        facts.colours = 1;
    else
        facts.colours = samples.photometric == Separated && image.bands() >= cmyk ? cmyk : rgb;
    facts.alpha = SampleFacts::none;
    for (int other = 0; other < samples.others.size() && facts.alpha == SampleFacts::none; ++other)
        if (samples.others[other] == 1 || samples.others[other] == 2)
            facts.alpha = facts.colours + other;
    if (samples.bits >= 8) // fewer have been scaled to the full range
        facts.bits = samples.bits;
    return facts;
}

} // namespace

VImage loadJpeg(const PictureBytes &source, const LoadOptions &options)
{
    return VImage::jpegload_source(sourceOf(source), commonOptions()->set("shrink", options.jpegShrink));
}

VImage loadPng(const PictureBytes &source, const LoadOptions &)
{
    return VImage::pngload_source(sourceOf(source), commonOptions());
}

VImage loadGif(const PictureBytes &source, const LoadOptions &options)
{
    return VImage::gifload_source(sourceOf(source), commonOptions()->set("page", options.page));
}

VImage loadBmp(const PictureBytes &source, const LoadOptions &)
{
    const std::unique_ptr<QIODevice> device = source.openedDevice();
    const VImage pixels = bmpPixels(*device);
    const QByteArray profile = readBmpProfile(*device);
    demandRead(*device);
    return withProfile(pixels, profile);
}

VImage loadWebp(const PictureBytes &source, const LoadOptions &options)
{
    return VImage::webpload_source(sourceOf(source), commonOptions()->set("page", options.page));
}

VImage loadJpegXl(const PictureBytes &source, const LoadOptions &)
{
    return withOwnProfile(VImage::jxlload_source(sourceOf(source), commonOptions()));
}

VImage loadPhotoshop(const PictureBytes &source, const LoadOptions &)
{
    return photoshopPixels(*source.openedDevice());
}

VImage loadPdf(const PictureBytes &source, const LoadOptions &options)
{
    return VImage::pdfload_source(sourceOf(source),
                                  commonOptions()->set("page", options.page)->set("scale", options.drawingScale));
}

VImage loadTiff(const PictureBytes &source, const LoadOptions &options)
{
    const auto device = std::make_shared<TiffDevice>(source);
    const TiffSamples samples = readTiffSamples(*device, options.page);
    device->demandAllRead();
    if (samples.isLogarithmic() && options.page == 0)
        return loadTiffThroughQt(source, vips::VError("its size is too large"));
    try {
        const VSource pages = sourceOver(device);
        const VImage image = VImage::tiffload_source(pages, commonOptions()->set("page", options.page));
        device->demandAllRead();
        return samples.isKnown ? withSampleFacts(image, factsOf(samples, image)) : image;
    } catch (const vips::VError &error) {
        device->demandAllRead();
        if (options.page > 0)
            throw;
        return loadTiffThroughQt(source, error);
    }
}

VImage loadHeif(const PictureBytes &source, const LoadOptions &options)
{
    // First of all: options of a call that is never made would leak.
    const VSource whole = wholeSourceOf(source);
    const VImage primary = VImage::heifload_source(whole, commonOptions()); // if no page is named
    if (options.page == 0)
        return withOwnProfile(primary);
    const int primaryPage = primary.get_typeof("heif-primary") != 0 ? primary.get_int("heif-primary") : 0;
    const int page = options.page - (options.page <= primaryPage ? 1 : 0);
    const VSource again = wholeSourceOf(source);
    return withOwnProfile(VImage::heifload_source(again, commonOptions()->set("page", page)));
}

VImage loadSvg(const PictureBytes &source, const LoadOptions &options)
{
    const QByteArray text = source.all();
    // With some numbers the library ends the process as soon as it reads them, before it reports a size.
    if (!canDrawSvg(svgWork(text, QSize(1, 1))))
        throw vips::VError("drawing it would take too long");
    VImage image = VImage::svgload_source(sourceOf(source), commonOptions()->set("scale", options.drawingScale)).copy();
    const SvgWork work = svgWork(text, QSize(image.width(), image.height()));
    if (!canDrawSvg(work))
        throw vips::VError("drawing it would take too long");
    image.set(bytesOfDrawing, work.bytes);
    return image;
}

QSize claimedPhotoshopSize(QIODevice &file)
{
    constexpr int photoshopHeaderBytes = 26;
    const QByteArray head = file.read(photoshopHeaderBytes);
    if (head.size() < photoshopHeaderBytes)
        return {};
    const auto height = qFromBigEndian<quint32>(head.constData() + 14);
    const auto width = qFromBigEndian<quint32>(head.constData() + 18);
    constexpr quint32 largestSide = 300'000; // of the format
    if (width > largestSide || height > largestSide)
        return {};
    return {int(width), int(height)};
}

} // namespace platform
