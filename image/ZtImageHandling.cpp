#include "image/ZtImageHandling.h"

#include "image/output.h"
#include "image/resize.h"
#include "image/scaled_size.h"
#include "image/turn.h"
#include "image/turn_file.h"
#include "platform/foundation/numbers.h"
#include "platform/foundation/paths.h"
#include "platform/imageio/convert/resized_jpeg.h"
#include "platform/imageio/formats/type_identifiers.h"

using platform::Bitmap;
using platform::BitmapHandle;
using platform::EncodeOptions;
using platform::ImageSource;
using platform::Metadata;
using platform::Picture;
using platform::Result;

namespace {

/** The entry of destination options that names the JPEG quality factor, 0 to 1. */
QString qualityKey()
{
    return QStringLiteral("kCGImageDestinationLossyCompressionQuality");
}

bool isJpeg(const QString &type)
{
    return type == QLatin1String("public.jpeg");
}

bool isTiff(const QString &type)
{
    return type == QLatin1String("public.tiff");
}

/** Options for a type that takes the caller's dictionary. */
EncodeOptions optionsFrom(const QVariantMap &properties)
{
    EncodeOptions options;
    options.metadata = Metadata::fromProperties(properties);
    const QVariant quality = properties.value(qualityKey());
    if (quality.isValid())
        options.lossyQuality = quality.toDouble();
    return options;
}

} // namespace

ZtImageHandling::ZtImageHandling(QObject *parent) : QObject(parent) {}

ImageSource ZtImageHandling::hNSURLtoCIImage(const QUrl &location)
{
    openUpright(location.toLocalFile());
    return imageCIImage;
}

QString ZtImageHandling::hGetPixelSize(const QString &path)
{
    openUpright(path);
    const QSize size = imageCIImage.uprightSize();
    return QStringLiteral("%1x%2px").arg(size.width()).arg(size.height());
}

BitmapHandle ZtImageHandling::hStringToCGImageRef(const QString &path)
{
    const Result<ImageSource> source = ImageSource::open(path);
    if (!source && (source.error().code == platform::ErrorCode::NotFound ||
                    source.error().code == platform::ErrorCode::NotAPicture))
        return {};
    platform::DecodeOptions asStored;
    asStored.orientation = platform::Orientation::AsStored;
    asStored.forms = platform::Forms::AsTiffHolds; // the type of the result is determined later
    const Result<Bitmap> bitmap = source ? source->decode(asStored) : Result<Bitmap>(Bitmap());
    if (imageRefVariable.isNull())
        imageRefVariable = BitmapHandle(Bitmap());
    imageRefVariable.assign(bitmap.value_or(Bitmap()));
    return imageRefVariable;
}

Picture ZtImageHandling::imageFromCGImageRef(const BitmapHandle &imageRef)
{
    const Bitmap bitmap = imageRef.bitmap();
    return bitmap.isNull() ? Picture() : Picture(bitmap, QSizeF(bitmap.size()));
}

QString ZtImageHandling::hSaveToNewImageFile(const QString &path, const QString &type, const BitmapHandle &imageRef,
                                             const QVariantMap &destinationProperties)
{
    const bool takesProperties = isTiff(type) || isJpeg(type);
    return image::writeAnswering(path, type, imageRef.bitmap(),
                                 takesProperties ? optionsFrom(destinationProperties) : EncodeOptions());
}

QString ZtImageHandling::hSaveToNewImageFileMPR(const QString &basePath, const QString &type,
                                                const BitmapHandle &imageRef, const QVariantMap &sourceProperties,
                                                const QString &qualityCode, const QString &sourceExtension)
{
    Q_UNUSED(sourceExtension)
    const EncodeOptions ofSource = isTiff(type) ? optionsFrom(sourceProperties) : EncodeOptions();
    return write({basePath, type, qualityCode}, imageRef.bitmap(), ofSource);
}

QString ZtImageHandling::write(const Target &target, const Bitmap &bitmap, const Result<EncodeOptions> &ofSource)
{
    Result<EncodeOptions> options = ofSource;
    if (isJpeg(target.type)) {
        const double quality = image::qualityForCode(target.qualityCode);
        properties = QVariantMap{{qualityKey(), quality}};
        if (options)
            options->lossyQuality = quality;
    }
    return image::writeAnswering(target.basePath + image::extensionForType(target.type), target.type, bitmap, options);
}

QString ZtImageHandling::resizeImage(const QString &path, quint32 number, quint32 mode, const QString &prefix,
                                     const QVariant &type, const QString &qualityCode)
{
    if (!decideType(path, type))
        return image::statusNotSupported();
    openUpright(path);
    const QSizeF extent = imageCIImage.uprightSize();
    if (const auto size = image::scaledSize(number, mode, extent.width(), extent.height())) {
        newImgW = size->width;
        newImgH = size->height;
        myScaleFactor = size->scaleFactor.value_or(myScaleFactor);
    }
    return writeResized({image::outputBase(prefix, path), myFileType, qualityCode}, QSize(newImgW, newImgH));
}

QString ZtImageHandling::resizeImage2(const QString &path, quint32 width, quint32 height, int mode,
                                      const QString &prefix, const QVariant &type, const QString &qualityCode)
{
    if (!decideType(path, type))
        return image::statusNotSupported();
    openUpright(path);
    const Target target = {image::outputBase(prefix, path), myFileType, qualityCode};
    const QSize box = QSize(qint32(width), qint32(height));
    constexpr int fillAndCut = 1;
    if (mode != fillAndCut)
        return writeResized(target, box);
    const QSizeF extent = imageCIImage.uprightSize();
    const image::FilledBox filled = image::filledBox(width, height, extent.width(), extent.height());
    newImgW = filled.drawn.width;
    newImgH = filled.drawn.height;
    myXWOffset = filled.offset.x();
    myYHOffset = filled.offset.y();
    return writeResized(target, QSize(newImgW, newImgH), QRect(filled.offset, box));
}

std::optional<QString> ZtImageHandling::writtenStraight(const Target &target, const MakeJpeg &make)
{
    if (!isJpeg(target.type))
        return std::nullopt;
    EncodeOptions options;
    options.lossyQuality = image::qualityForCode(target.qualityCode);
    const std::optional<QByteArray> file = make(options);
    if (!file)
        return std::nullopt;
    properties = QVariantMap{{qualityKey(), *options.lossyQuality}};
    return image::writeAnswering(target.basePath + image::extensionForType(target.type), *file);
}

QString ZtImageHandling::writeResized(const Target &target, QSize size, std::optional<QRect> kept)
{
    const QRect part = kept.value_or(QRect(QPoint(0, 0), size));
    const auto resize = [&](const EncodeOptions &options) {
        return platform::resizedJpeg(imageCIImage, {size, part}, options);
    };
    if (const auto answer = writtenStraight(target, resize))
        return *answer;
    const platform::Forms forms = image::formsFor(target.type);
    const Result<Bitmap> drawn =
        kept ? image::resizedAndCut(imageCIImage, size, *kept, forms) : image::resized(imageCIImage, size, forms);
    // No bitmap of that size, or no picture to draw: the operation answers success without a file.
    if (!drawn)
        return image::statusOk();
    return write(target, *drawn, isTiff(target.type) ? image::optionsCarrying(imageCIImage) : EncodeOptions());
}

QString ZtImageHandling::hFlipHorizontalPicture(const QString &path, const QString &prefix)
{
    return turnAndWrite(path, prefix, image::Turning::flip(Qt::Horizontal));
}

QString ZtImageHandling::hFlipVerticalPicture(const QString &path, const QString &prefix)
{
    return turnAndWrite(path, prefix, image::Turning::flip(Qt::Vertical));
}

QString ZtImageHandling::hRotatePicture(const QString &path, const QString &prefix, const QVariant &angle)
{
    degrees = platform::floatValue(angle);
    return turnAndWrite(path, prefix, image::Turning::by(degrees));
}

Picture ZtImageHandling::hRotatePictureBase(const Picture &picture, const QVariant &angle)
{
    wmAngle = platform::floatValue(angle);
    return image::turned(picture, wmAngle).value_or(Picture());
}

QString ZtImageHandling::turnAndWrite(const QString &path, const QString &prefix, const image::Turning &turning)
{
    fileExtension = platform::pathExtension(path);
    fileUTI = platform::typeIdentifierForExtension(fileExtension);
    myFileType = fileUTI;
    if (image::isNeverWritten(myFileType))
        return image::statusNotSupported();
    return image::turnFile(path, prefix + platform::lastPathComponent(path), myFileType, turning);
}

BitmapHandle ZtImageHandling::currentImage() const
{
    const Bitmap bitmap = imageRefVariable.bitmap();
    return bitmap.isNull() ? BitmapHandle() : BitmapHandle(bitmap);
}

void ZtImageHandling::setCurrentImage(const BitmapHandle &imageRef)
{
    if (imageRefVariable.isNull())
        imageRefVariable = BitmapHandle(Bitmap());
    imageRefVariable.assign(imageRef.bitmap());
}

bool ZtImageHandling::decideType(const QString &path, const QVariant &requestedType)
{
    fileExtension = platform::pathExtension(path);
    fileUTI = platform::typeIdentifierForExtension(fileExtension);
    const bool keepsType = image::keepsSourceType(requestedType);
    if (keepsType)
        fileExtensionNSString = fileExtension;
    myFileType = keepsType ? fileUTI : requestedType.toString();
    return !image::isNeverWritten(myFileType);
}

void ZtImageHandling::openUpright(const QString &path)
{
    imageCIImage = ImageSource::open(path).value_or(ImageSource());
}
