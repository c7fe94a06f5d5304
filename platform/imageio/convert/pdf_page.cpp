#include "platform/imageio/convert/pdf_page.h"

#include "platform/foundation/memory_left.h"
#include "platform/imageio/bytes/deflate.h"
#include "platform/imageio/convert/lossless_turn.h"
#include "platform/imageio/convert/pdf_file.h"
#include "platform/imageio/encoders/encoders.h"
#include "platform/imageio/exif/orientation_mark.h"
#include "platform/imageio/formats/memory_need.h"
#include "platform/imageio/jpeg/bare_jpeg.h"
#include "platform/imageio/jpeg/jpeg_segments.h"
#include "platform/imageio/png/png_rows.h"
#include "platform/imageio/source/opened_file.h"

#include <QCoreApplication>

#include <array>

namespace platform {
namespace {

using vips::VImage;
using Stream = PdfFile::Stream;

struct ColourModel
{
    int components;
    const char *deviceSpace;
};

constexpr std::array<ColourModel, 3> colourModels = {{{1, "/DeviceGray"}, {3, "/DeviceRGB"}, {4, "/DeviceCMYK"}}};

QByteArray deviceSpace(int components)
{
    for (const ColourModel &model : colourModels)
        if (model.components == components)
            return model.deviceSpace;
    throw vips::VError("the picture has colours that no page can hold");
}

QByteArray sizeEntries(QSize pixels)
{
    return "/Type /XObject /Subtype /Image /Width " + QByteArray::number(pixels.width()) + " /Height " +
           QByteArray::number(pixels.height());
}

/** The colour space of an image: its profile, which becomes an object of the file, or the plain one. */
QByteArray colourSpace(PdfFile &file, const QByteArray &profile, int components)
{
    const QByteArray device = deviceSpace(components);
    if (profile.isEmpty())
        return device;
    const QByteArray entries =
        "/N " + QByteArray::number(components) + " /Alternate " + device + " /Filter /FlateDecode";
    return "[/ICCBased " + file.add({entries, deflated(profile)}) + ']';
}

/** Pixels in memory, rows filtered and compressed without loss. */
Stream storedPixels(const VImage &image, const QByteArray &space)
{
    const QByteArray bits = QByteArray::number(bytesPerComponent(image) * 8);
    const QByteArray layout = "/Colors " + QByteArray::number(image.bands()) + " /BitsPerComponent " + bits;
    const QByteArray entries = sizeEntries({image.width(), image.height()}) + " /ColorSpace " + space +
                               " /BitsPerComponent " + bits + " /Filter /FlateDecode /DecodeParms << /Predictor 15 " +
                               layout + " /Columns " + QByteArray::number(image.width()) + " >>";
    return {entries, deflated(filteredRows(image))};
}

/** The page of a picture whose pixels are in memory. Throws vips::VError. */
QByteArray pageOfPixels(const Bitmap &bitmap, QSizeF points)
{
    const VImage prepared = inMemory(preparedFor(formatOf(Content::Pdf)->keeps, bitmap.pixels().image()));
    const int components = hasTransparency(prepared) ? prepared.bands() - 1 : prepared.bands();
    PdfFile file;
    const QByteArray space = colourSpace(file, iccProfileOf(prepared), components);
    if (!hasTransparency(prepared)) {
        file.add(storedPixels(prepared, space));
        return file.finished(points);
    }
    const QByteArray mask = file.add(storedPixels(inMemory(prepared.extract_band(components)), "/DeviceGray"));
    Stream image = storedPixels(inMemory(prepared.extract_band(0, VImage::option()->set("n", components))), space);
    image.entries += " /SMask " + mask;
    file.add(image);
    return file.finished(points);
}

/**
 * The operation that turns a picture of an orientation upright in one step; none if it takes two, or nothing is to be
 * done.
 */
std::optional<ExactTurn> turnUpright(int orientation)
{
    switch (orientation) {
    case 2:
        return ExactTurn::MirrorAcross;
    case 3:
        return ExactTurn::Half;
    case 4:
        return ExactTurn::MirrorDown;
    case 6:
        return ExactTurn::ThreeQuarters;
    case 8:
        return ExactTurn::Quarter;
    default:
        return std::nullopt;
    }
}

/** A complete JPEG that shows the picture upright; empty if that is impossible without loss. */
QByteArray uprightJpeg(const ImageSource &source, const PictureBytes &bytes)
{
    if (source.orientation() == 1)
        return bytes.all();
    const std::optional<ExactTurn> turn = turnUpright(source.orientation());
    const std::optional<QByteArray> turned = turn ? turnedWithoutLoss(source, *turn) : std::nullopt;
    return turned ? markedUpright(*turned).value_or(QByteArray()) : QByteArray();
}

/** The page of a JPEG as it is; empty if a page cannot hold it so. */
QByteArray pageOfJpeg(const QByteArray &file, const QByteArray &profile, QSizeF points)
{
    const QByteArray jpeg = withoutMetadata(file);
    const JpegSegments segments = findJpegSegments(jpeg);
    const JpegFrame &frame = segments.frame;
    const bool isHeld = frame.bitsPerComponent == 8 && frame.isHuffmanCoded && !frame.contradictsItself;
    if (!segments.valid || !isHeld || (frame.componentCount != 1 && frame.componentCount != 3))
        return {};
    PdfFile page;
    QByteArray entries = sizeEntries(segments.size) + " /ColorSpace " +
                         colourSpace(page, profile, frame.componentCount) + " /BitsPerComponent 8 /Filter /DCTDecode";
    if (frame.isPlainRgb)
        entries += " /DecodeParms << /ColorTransform 0 >>";
    page.add({entries, jpeg});
    return page.finished(points);
}

} // namespace

Result<QByteArray> pdfPageOf(const Bitmap &bitmap)
{
    if (bitmap.isNull())
        return failure(ErrorCode::InvalidValue,
                       QCoreApplication::translate("platform", "There is no picture to write"));
    try {
        initVips();
        return memoryIsLeftFor(memoryNeedOfPage(bitmap.pixels().image()),
                               QCoreApplication::translate("platform", "Writing the picture"))
            .map([&] { return pageOfPixels(bitmap, bitmap.pointSize()); });
    } catch (const vips::VError &error) {
        return failure(
            ErrorCode::WriteFailed,
            QCoreApplication::translate("platform", "The page could not be created: %1").arg(takeVipsError(error)));
    }
}

Result<QByteArray> pdfPageOf(const ImageSource &source, std::optional<double> dpi)
{
    const ImageSource::File *file = source.file();
    if (!file)
        return failure(ErrorCode::InvalidValue,
                       QCoreApplication::translate("platform", "There is no picture to write"));
    constexpr double pointsPerInch = 72;
    const QSizeF points = dpi ? QSizeF(source.uprightSize()) * pointsPerInch / *dpi : source.pointSize();
    try {
        initVips();
        if (file->content == Content::Jpeg) {
            // A reduced decode reads everything, so that a damaged file is not passed on.
            constexpr int smallest = 8;
            const Result<Bitmap> sound = source.decodeAtLeast((source.uprightSize() / smallest).expandedTo({1, 1}));
            if (!sound)
                return tl::unexpected<Error>(sound.error());
            const QByteArray page = pageOfJpeg(uprightJpeg(source, file->bytes), sound->iccProfile(), points);
            if (!page.isEmpty())
                return page;
        }
        return source.decode().and_then([&](const Bitmap &bitmap) {
            return memoryIsLeftFor(memoryNeedOfPage(bitmap.pixels().image()), file->name()).map([&] {
                return pageOfPixels(bitmap, points);
            });
        });
    } catch (const vips::VError &error) {
        return failure(
            ErrorCode::WriteFailed,
            QCoreApplication::translate("platform", "The page could not be created: %1").arg(takeVipsError(error)));
    }
}

} // namespace platform
