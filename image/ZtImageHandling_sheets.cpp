// The operations that read the controls of the crop sheet and of the background and border sheet.

#include "image/ZtImageHandling.h"

#include "image/output.h"
#include "image/overlay.h"
#include "platform/controls/controls.h"
#include "platform/foundation/paths.h"
#include "platform/imageio/convert/cropped_jpeg.h"
#include "platform/imageio/formats/type_identifiers.h"

#include <array>
#include <utility>

using platform::Bitmap;
using platform::BitmapHandle;
using platform::EncodeOptions;
using platform::ImageSource;
using platform::Picture;
using platform::Result;

namespace {

bool isOn(const QObject *checkBox)
{
    return platform::stateOf(checkBox) == 1;
}

/** Black if there is no well. */
QColor opaqueColorOf(const QObject *well)
{
    QColor color = platform::colorOf(well);
    if (!color.isValid())
        color = Qt::black;
    color.setAlpha(255);
    return color;
}

struct ComposedFormat
{
    QLatin1String code;
    QLatin1String extension;
    QLatin1String type;
};

constexpr std::array<ComposedFormat, 3> composedFormats = {{
    {QLatin1String("0"), QLatin1String(".png"), QLatin1String("public.png")},
    {QLatin1String("1"), QLatin1String(".tiff"), QLatin1String("public.tiff")},
    {QLatin1String("2"), QLatin1String(".gif"), QLatin1String("com.compuserve.gif")},
}};

image::CornerShape shapeForCode(const QString &code)
{
    if (code == QLatin1String("0"))
        return image::CornerShape::Rectangle;
    return code == QLatin1String("1") ? image::CornerShape::Circle : image::CornerShape::Ellipse;
}

/** Of the decoded pixels only the answer stays in memory. */
Result<Bitmap> cutToShape(const ImageSource &source, const image::CornerOptions &options)
{
    image::RoundedShape shape = image::roundedShape(options, source.uprightSize());
    const Result<Bitmap> part = source.decodePart(shape.part);
    shape.part.moveTopLeft({0, 0});
    return part ? image::roundCorners(*part, shape) : part;
}

} // namespace

image::CropRect ZtImageHandling::readCrop(QSize size, image::CropSpace space)
{
    myImageCropPos = platform::selectedSegmentOf(scImageCropPos);
    myXWOffsetPlus = platform::integerValueOf(tfCropXOffset);
    myYHOffsetPlus = platform::integerValueOf(tfCropYOffset);
    myImageCropPercentage = platform::integerValueOf(tfCropPercentage);
    myImageCropPixels = platform::integerValueOf(tfCropPixels);
    const QString label = platform::selectedLabelOf(tvCropType);
    myCropType = label.isNull() ? QVariant(0) : QVariant(label);
    const image::CropSettings settings = {image::cropKind(label), size,           myImageCropPercentage,
                                          myImageCropPixels,      myImageCropPos, myXWOffsetPlus,
                                          myYHOffsetPlus};
    if (settings.kind == image::CropKind::Percentage)
        myImageCropPercentage = image::keptPercentage(settings.percentage);
    const image::CropRect rect =
        image::cropRect(settings, imageCIImage.uprightSize(), space, {myXWOffset, myYHOffset, 0, 0});
    myXWOffset = rect.x;
    myYHOffset = rect.y;
    return rect;
}

QString ZtImageHandling::cropImage(const QString &path, int width, int height, const QString &prefix,
                                   const QVariant &type, const QString &qualityCode)
{
    if (!decideType(path, type))
        return image::statusNotSupported();
    openUpright(path);
    const image::CropRect rect = readCrop(QSize(width, height), image::CropSpace::TopLeft);
    const QRect part = image::visiblePart(rect, imageCIImage.uprightSize());
    const Target target = {image::outputBase(prefix, path), myFileType, qualityCode};
    const auto crop = [&](const EncodeOptions &options) { return platform::croppedJpeg(imageCIImage, part, options); };
    if (const auto answer = writtenStraight(target, crop))
        return *answer;
    const Result<Bitmap> kept = imageCIImage.decodePart(part, image::formsFor(myFileType));
    // An unreadable source is not reported; if nothing of a good one is left, the writer reports it.
    if (!kept && (imageCIImage.isNull() || !part.isEmpty()))
        return image::statusFailed();
    const bool carriesMetadata = myFileType == QLatin1String("public.tiff");
    return write(target, kept.value_or(Bitmap()),
                 carriesMetadata ? image::optionsCarrying(imageCIImage) : EncodeOptions());
}

Picture ZtImageHandling::hShowCropBox(const QString &path)
{
    openUpright(path);
    const QSize picture = imageCIImage.uprightSize();
    cropBoxLine = image::frameLineWidth(picture);
    const QSize size(platform::integerValueOf(tfCropXsize), platform::integerValueOf(tfCropYsize));
    const image::CropRect rect = readCrop(size, image::CropSpace::BottomLeft);
    myXWSize = rect.width;
    myYHSize = rect.height;
    return image::drawCropBox(picture, image::cropBox(rect, picture)).value_or(Picture());
}

QString ZtImageHandling::decideComposedName(const QString &path, const QString &formatCode)
{
    fileExtension = platform::pathExtension(path);
    fileUTI = platform::typeIdentifierForExtension(fileExtension);
    for (const ComposedFormat &format : composedFormats)
        if (formatCode == format.code) {
            myFileType = format.type;
            return platform::baseName(path) + format.extension;
        }
    myFileType = fileUTI;
    return platform::lastPathComponent(path);
}

image::CornerOptions ZtImageHandling::readCorners(quint32 radius, const QString &shapeCode) const
{
    image::CornerOptions options;
    options.shape = shapeForCode(shapeCode);
    options.radius = radius;
    if (isOn(cbImageBgColorCheck))
        options.background = image::CornerBackground{opaqueColorOf(cwImageBackgroundColor),
                                                     double(platform::integerValueOf(tfBorderWidth))};
    return options;
}

QString ZtImageHandling::roundCornersOfImage(const QString &path, const QString &prefix, quint32 radius,
                                             const QString &shapeCode, const QString &formatCode)
{
    const QString name = decideComposedName(path, formatCode);
    if (image::isNeverWritten(myFileType))
        return image::statusNotSupported();
    openUpright(path);
    compose({}); // frees the picture of the previous call first
    const image::CornerOptions corners = readCorners(radius, shapeCode);
    if (const auto answer = writtenAsShape(prefix + name, corners))
        return *answer;
    if (const Result<Bitmap> cut = cutToShape(imageCIImage, corners))
        composedMasked = Picture(*cut, QSizeF(cut->size()));
    return writeComposed(prefix + name, image::optionsCarrying(imageCIImage));
}

QString ZtImageHandling::addOverlayColor(const QString &path, const QString &prefix, const platform::Sender &unused,
                                         const platform::Sender &unusedToo, const QString &formatCode)
{
    Q_UNUSED(unused)
    Q_UNUSED(unusedToo)
    const QString name = decideComposedName(path, formatCode);
    if (image::isNeverWritten(myFileType))
        return image::statusNotSupported();
    compose({});
    if (const Result<Bitmap> laid =
            image::laidOnColor(Picture::fromFile(path).bitmap(), opaqueColorOf(cwImageBackgroundColor)))
        composedMasked = Picture(*laid);
    EncodeOptions options;
    options.resolution = platform::WriteResolution::Yes;
    return writeComposed(prefix + name, options);
}

std::optional<QString> ZtImageHandling::writtenAsShape(const QString &path, const image::CornerOptions &corners)
{
    const bool isFromJpeg = imageCIImage.typeIdentifier() == QLatin1String("public.jpeg");
    if (!isFromJpeg || myFileType != QLatin1String("public.png") || corners.background)
        return std::nullopt;
    const Result<EncodeOptions> options = image::optionsCarrying(imageCIImage);
    const image::RoundedShape shape = image::roundedShape(corners, imageCIImage.uprightSize());
    if (!options || shape.part.size() != imageCIImage.uprightSize())
        return std::nullopt;
    writtenShape = platform::rowsAsShapedPng(imageCIImage, {shape.outline, shape.xRadius, shape.yRadius}, *options);
    return writtenShape ? std::optional(image::writeAnswering(path, writtenShape->file)) : std::nullopt;
}

void ZtImageHandling::compose(const Bitmap &bitmap)
{
    writtenShape.reset();
    composedMasked = bitmap.isNull() ? Picture() : Picture(bitmap, QSizeF(bitmap.size()));
    imageMasked = bitmap.isNull() ? BitmapHandle() : BitmapHandle(bitmap);
}

void ZtImageHandling::settleComposed()
{
    if (const auto shape = std::exchange(writtenShape, std::nullopt))
        compose(shape->bitmap());
}

Picture ZtImageHandling::currentComposed()
{
    settleComposed();
    return composedMasked;
}

void ZtImageHandling::setComposed(const Picture &picture)
{
    settleComposed();
    composedMasked = picture;
}

BitmapHandle ZtImageHandling::currentMasked()
{
    settleComposed();
    return imageMasked;
}

void ZtImageHandling::setMasked(const BitmapHandle &imageRef)
{
    settleComposed();
    imageMasked = imageRef;
}

QString ZtImageHandling::writeComposed(const QString &path, const Result<EncodeOptions> &options)
{
    imageMasked = composedMasked.isNull() ? BitmapHandle() : BitmapHandle(composedMasked.bitmap());
    return image::writeAnswering(path, myFileType, composedMasked.bitmap(), options);
}

Picture ZtImageHandling::addBorderToImage(const Picture &picture)
{
    return image::withWhiteFrame(picture);
}

void ZtImageHandling::statusAddBgColor(const platform::Sender &sender)
{
    Q_UNUSED(sender)
    const bool isEnabled = isOn(cbImageBgColorCheck);
    for (QObject *control : {cwImageBackgroundColor.data(), tfBorderWidth.data(), tfAddBorder.data(),
                             tfAddBorderPx.data(), tfBorderColor.data()})
        platform::setEnabledOf(control, isEnabled);
}
