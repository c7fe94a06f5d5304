#pragma once

#include "image/crop.h"
#include "image/round_corners.h"
#include "platform/imageio/convert/png_from_jpeg.h"
#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/picture.h"
#include "platform/values/sender.h"

#include <QObject>
#include <QPointer>
#include <QUrl>
#include <QVariantMap>

namespace image {
struct Turning;
}

/**
 * The operations on pictures, one file at a time, as scripts call them.
 *
 * An object keeps working values in its fields between calls; each operation overwrites the ones that it uses and
 * nothing is cleared. Used by one caller at a time, on the main thread.
 *
 * Paths are absolute. An output prefix is normally a folder with "/" at its end: the source's name is appended
 * directly. An output type is "original file type" or one of "public.png", "public.tiff", "public.bmp",
 * "com.compuserve.gif", "public.jpeg", "public.jp2". Operations that write answer "OK", "Failed" or "Not Supported",
 * write atomically, and replace an existing file.
 */
class ZtImageHandling : public QObject
{
    Q_OBJECT
    // Controls of the crop and background sheets.
    Q_PROPERTY(QObject *scImageCropPos MEMBER scImageCropPos)
    Q_PROPERTY(QObject *tfCropXOffset MEMBER tfCropXOffset)
    Q_PROPERTY(QObject *tfCropYOffset MEMBER tfCropYOffset)
    Q_PROPERTY(QObject *tfCropXsize MEMBER tfCropXsize)
    Q_PROPERTY(QObject *tfCropYsize MEMBER tfCropYsize)
    Q_PROPERTY(QObject *tfCropPercentage MEMBER tfCropPercentage)
    Q_PROPERTY(QObject *tfCropPixels MEMBER tfCropPixels)
    Q_PROPERTY(QObject *tvCropType MEMBER tvCropType)
    Q_PROPERTY(QObject *cbImageBgColorCheck MEMBER cbImageBgColorCheck)
    Q_PROPERTY(QObject *cwImageBackgroundColor MEMBER cwImageBackgroundColor)
    Q_PROPERTY(QObject *pubFutureFileFormat MEMBER pubFutureFileFormat)
    Q_PROPERTY(QObject *tfBorderWidth MEMBER tfBorderWidth)
    Q_PROPERTY(QObject *tfAddBorder MEMBER tfAddBorder)
    Q_PROPERTY(QObject *tfAddBorderPx MEMBER tfAddBorderPx)
    Q_PROPERTY(QObject *tfBorderColor MEMBER tfBorderColor)
    Q_PROPERTY(QObject *ivPhoto MEMBER ivPhoto)
    // Working values.
    Q_PROPERTY(qint32 myXWOffset MEMBER myXWOffset)
    Q_PROPERTY(qint32 myYHOffset MEMBER myYHOffset)
    Q_PROPERTY(qint32 myXWOffsetPlus MEMBER myXWOffsetPlus)
    Q_PROPERTY(qint32 myYHOffsetPlus MEMBER myYHOffsetPlus)
    Q_PROPERTY(qint32 myXWSize MEMBER myXWSize)
    Q_PROPERTY(qint32 myYHSize MEMBER myYHSize)
    Q_PROPERTY(qint32 myImageCropPercentage MEMBER myImageCropPercentage)
    Q_PROPERTY(qint32 myImageCropPixels MEMBER myImageCropPixels)
    Q_PROPERTY(QVariant myCropType MEMBER myCropType)
    Q_PROPERTY(qint32 newImgW MEMBER newImgW)
    Q_PROPERTY(qint32 newImgH MEMBER newImgH)
    Q_PROPERTY(qint32 myXRCval MEMBER myXRCval)
    Q_PROPERTY(qint32 myImageCropPos MEMBER myImageCropPos)
    Q_PROPERTY(float cropBoxLine MEMBER cropBoxLine)
    Q_PROPERTY(float myCompressionLevelFloat MEMBER myCompressionLevelFloat)
    Q_PROPERTY(double myScaleFactor MEMBER myScaleFactor)
    Q_PROPERTY(platform::Picture composedMasked READ currentComposed WRITE setComposed)
    Q_PROPERTY(platform::BitmapHandle imageMasked READ currentMasked WRITE setMasked)
    Q_PROPERTY(platform::BitmapHandle myImageRef READ currentImage WRITE setCurrentImage)
    Q_PROPERTY(QString myFileType MEMBER myFileType)
    Q_PROPERTY(QString fileExtension MEMBER fileExtension)
    Q_PROPERTY(QString fileExtensionNSString MEMBER fileExtensionNSString)
    Q_PROPERTY(QString fileUTI MEMBER fileUTI)
    Q_PROPERTY(QVariant properties MEMBER properties)
    Q_PROPERTY(platform::ImageSource imageCIImage MEMBER imageCIImage)
    Q_PROPERTY(double degrees MEMBER degrees)
    Q_PROPERTY(double wmAngle MEMBER wmAngle)
    Q_PROPERTY(platform::BitmapHandle context MEMBER context)

public:
    Q_INVOKABLE explicit ZtImageHandling(QObject *parent = nullptr);

    /** Opens a picture, shown upright; kept in imageCIImage. Null if it cannot be read. */
    Q_INVOKABLE platform::ImageSource hNSURLtoCIImage(const QUrl &location);

    /** The upright size as text, "4032x3024px"; "0x0px" for a file that cannot be read. */
    Q_INVOKABLE QString hGetPixelSize(const QString &path);

    /**
     * Decodes image 0 as stored into myImageRef and answers a reference to that variable, whose content a later call
     * replaces. Null if the file is missing or no picture; a reference to nothing if it contains no readable image.
     */
    Q_INVOKABLE platform::BitmapHandle hStringToCGImageRef(const QString &path);

    /** The bitmap as a picture whose size in points is its pixel size. */
    Q_INVOKABLE platform::Picture imageFromCGImageRef(const platform::BitmapHandle &imageRef);

    /** Writes to a complete path. @p destinationProperties reach TIFF and JPEG files only; may be null. */
    Q_INVOKABLE QString hSaveToNewImageFile(const QString &path, const QString &type,
                                            const platform::BitmapHandle &imageRef,
                                            const QVariantMap &destinationProperties);

    /**
     * Writes to @p basePath with the extension of the type appended. @p sourceProperties reach TIFF files only.
     * @p qualityCode "1" to "9" gives JPEG quality 0.1 to 0.9, anything else 1. @p sourceExtension is not used.
     */
    Q_INVOKABLE QString hSaveToNewImageFileMPR(const QString &basePath, const QString &type,
                                               const platform::BitmapHandle &imageRef,
                                               const QVariantMap &sourceProperties, const QString &qualityCode,
                                               const QString &sourceExtension);

    /**
     * A resized copy, upright, aspect ratio kept. @p mode 0: @p number is the width, 1: the height, 2: the longest
     * side, in pixels; 3: a percentage; 4 and above: the size of the previous call. "OK" without a file if no bitmap of
     * that size can be made or the source cannot be read.
     */
    Q_INVOKABLE QString resizeImage(const QString &path, quint32 number, quint32 mode, const QString &prefix,
                                    const QVariant &type, const QString &qualityCode);

    /**
     * A copy of exactly @p width by @p height pixels. @p mode 1 fills that size and crops the excess evenly; any other
     * stretches. "OK" without a file as for resizeImage().
     */
    Q_INVOKABLE QString resizeImage2(const QString &path, quint32 width, quint32 height, int mode,
                                     const QString &prefix, const QVariant &type, const QString &qualityCode);

    /**
     * A copy with left and right swapped, in the source's own type and under its own name after
     * @p prefix. The stored pixels are flipped; the orientation tag is kept. Null if there is no image.
     */
    Q_INVOKABLE QString hFlipHorizontalPicture(const QString &path, const QString &prefix);

    /** The same with top and bottom swapped. */
    Q_INVOKABLE QString hFlipVerticalPicture(const QString &path, const QString &prefix);

    /**
     * A copy rotated anticlockwise onto the smallest canvas that holds it, written as by hFlipHorizontalPicture().
     * @p angle is in degrees, a number or a text that begins with one; kept in degrees.
     */
    Q_INVOKABLE QString hRotatePicture(const QString &path, const QString &prefix, const QVariant &angle);

    /** A picture rotated anticlockwise by @p angle, kept in wmAngle, transparent around it; null without one. */
    Q_INVOKABLE platform::Picture hRotatePictureBase(const platform::Picture &picture, const QVariant &angle);

    /**
     * The part of the upright picture defined by the crop sheet, as a new file. @p width and @p height are used in the
     * tab "W x H"; the part is clipped to the picture. Answers "Failed" if nothing of the picture is left, and, without
     * logging, if the source cannot be read.
     */
    Q_INVOKABLE QString cropImage(const QString &path, int width, int height, const QString &prefix,
                                  const QVariant &type, const QString &qualityCode);

    /** The frame of the same part on a transparent picture, one pixel a point; null if the source cannot be read. */
    Q_INVOKABLE platform::Picture hShowCropBox(const QString &path);

    /**
     * The upright picture cut to a shape, as a new file. @p shapeCode "0" rounds the corners by @p radius pixels, "1"
     * is the circle in the square at the bottom left, anything else an ellipse. With the check box on, the colour of the
     * well is put behind the picture, and over its edge as wide as the border field says. @p formatCode "0" writes PNG,
     * "1" TIFF, "2" GIF, anything else the source's own type under its whole name. TIFF and JPEG carry its metadata.
     */
    Q_INVOKABLE QString roundCornersOfImage(const QString &path, const QString &prefix, quint32 radius,
                                            const QString &shapeCode, const QString &formatCode);

    /**
     * The upright picture on the colour of the well, as a new file without metadata. Format codes as above;
     * @p unused and @p unusedToo are ignored.
     */
    Q_INVOKABLE QString addOverlayColor(const QString &path, const QString &prefix, const platform::Sender &unused,
                                        const platform::Sender &unusedToo, const QString &formatCode);

    /** The picture in a white frame of 10 points; its pixels count as points. Null for none. */
    Q_INVOKABLE platform::Picture addBorderToImage(const platform::Picture &picture);

    /** Enables the colour and border controls while the check box is on, and disables them otherwise. */
    Q_INVOKABLE void statusAddBgColor(const platform::Sender &sender);

private:
    /** Where a picture goes, without the extension, and how. */
    struct Target
    {
        QString basePath;
        QString type;
        QString qualityCode;
    };

    platform::Picture currentComposed();
    void setComposed(const platform::Picture &picture);
    platform::BitmapHandle currentMasked();
    void setMasked(const platform::BitmapHandle &imageRef);
    /** Makes the fields of the written file, if a shape was cut without a bitmap. */
    void settleComposed();
    void compose(const platform::Bitmap &bitmap);
    QString turnAndWrite(const QString &path, const QString &prefix, const image::Turning &turning);
    platform::BitmapHandle currentImage() const;
    void setCurrentImage(const platform::BitmapHandle &imageRef);
    /** Sets the type variables; false if the type is recognised but never written. */
    bool decideType(const QString &path, const QVariant &requestedType);
    void openUpright(const QString &path);
    QString write(const Target &target, const platform::Bitmap &bitmap,
                  const platform::Result<platform::EncodeOptions> &ofSource);
    using MakeJpeg = std::function<std::optional<QByteArray>(const platform::EncodeOptions &)>;
    /** The answer to a JPEG made of the open one without a bitmap; none if it cannot be made, or for another type. */
    std::optional<QString> writtenStraight(const Target &target, const MakeJpeg &make);
    /** The open picture at another size, or its kept part. */
    QString writeResized(const Target &target, QSize size, std::optional<QRect> kept = {});
    /** Reads the crop sheet; answers the rectangle and keeps its origin. @p size belongs to the tab "W x H". */
    image::CropRect readCrop(QSize size, image::CropSpace space);
    image::CornerOptions readCorners(quint32 radius, const QString &shapeCode) const;
    /** Sets the type variables by a format code; answers the name of the new file. */
    QString decideComposedName(const QString &path, const QString &formatCode);
    /** The answer to a PNG cut from the open picture without a bitmap; none if that is not possible. */
    std::optional<QString> writtenAsShape(const QString &path, const image::CornerOptions &corners);
    QString writeComposed(const QString &path, const platform::Result<platform::EncodeOptions> &options);

    QPointer<QObject> scImageCropPos;
    QPointer<QObject> tfCropXOffset;
    QPointer<QObject> tfCropYOffset;
    QPointer<QObject> tfCropXsize;
    QPointer<QObject> tfCropYsize;
    QPointer<QObject> tfCropPercentage;
    QPointer<QObject> tfCropPixels;
    QPointer<QObject> tvCropType;
    QPointer<QObject> cbImageBgColorCheck;
    QPointer<QObject> cwImageBackgroundColor;
    QPointer<QObject> pubFutureFileFormat;
    QPointer<QObject> tfBorderWidth;
    QPointer<QObject> tfAddBorder;
    QPointer<QObject> tfAddBorderPx;
    QPointer<QObject> tfBorderColor;
    QPointer<QObject> ivPhoto;
    qint32 myXWOffset = 0;
    qint32 myYHOffset = 0;
    qint32 myXWOffsetPlus = 0;
    qint32 myYHOffsetPlus = 0;
    qint32 myXWSize = 0;
    qint32 myYHSize = 0;
    qint32 myImageCropPercentage = 0;
    qint32 myImageCropPixels = 0;
    QVariant myCropType = 0; // the label of a tab, once one was read
    qint32 newImgW = 0;
    qint32 newImgH = 0;
    qint32 myXRCval = 0;
    qint32 myImageCropPos = 0;
    float cropBoxLine = 0;
    float myCompressionLevelFloat = 0;
    double myScaleFactor = 0;
    platform::Picture composedMasked;
    platform::BitmapHandle imageMasked;
    std::optional<platform::ShapedPng> writtenShape; // what the two are made of when they are asked for
    platform::BitmapHandle imageRefVariable;
    QString myFileType;
    QString fileExtension;
    QString fileExtensionNSString;
    QString fileUTI;
    QVariant properties;
    platform::ImageSource imageCIImage;
    double degrees = 0;
    double wmAngle = 0;
    platform::BitmapHandle context;
};
