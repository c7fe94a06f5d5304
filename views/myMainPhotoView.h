#pragma once

#include "views/photo_view.h"

#include <QPointer>

/**
 * The view of the current picture, fitted whole into the view or filling it.
 *
 * The loaded picture stays as it is; the shown one is made from it again when the size or the mode changes. The size of
 * the view is stored in the user defaults as "myBounds". Fields without a comment exist for scripts only.
 */
class myMainPhotoView : public views::PhotoView
{
    Q_OBJECT
    Q_PROPERTY(QObject *tfActivePicture MEMBER tfActivePicture)
    Q_PROPERTY(double pScale MEMBER pScale)
    /** A picture is there; nothing is drawn while there is none. */
    Q_PROPERTY(bool pImageLoaded MEMBER pImageLoaded)
    /** True: the whole picture is fitted into the view. False: it fills the view. */
    Q_PROPERTY(bool pImageToFit MEMBER pImageToFit)
    /** The picture as loaded. */
    Q_PROPERTY(platform::Picture pImageOrig MEMBER pImageOrig)
    /** The picture as shown. */
    Q_PROPERTY(platform::Picture pImage MEMBER pImage)
    Q_PROPERTY(platform::Picture pImageCrop MEMBER pImageCrop)

public:
    /**
     * Starts without a picture and in fitted mode, and observes changes of the frame from now on. Logs "awakeFromNib".
     */
    Q_INVOKABLE void awakeFromNib();
    /** Shows the picture at @p path; one that cannot be read shows nothing. */
    Q_INVOKABLE void setImageWithPath(const QString &path);
    /** The same, opened twice, so that pImage and pImageOrig share nothing. */
    Q_INVOKABLE void setImageWithPath2(const QString &path);
    /** Stores @p image in pImage and keeps pImageOrig, from which the shown picture is made again. */
    Q_INVOKABLE void setImage(const platform::Picture &image);
    /** Opens @p path, but shows pImageOrig. */
    Q_INVOKABLE void setImageCropPreview(const QString &path, platform::Sender unused);
    /** Fitted mode. Without a picture nothing changes, not even the mode; likewise for setImageToFullSize(). */
    Q_INVOKABLE void setImageToFit();
    /** The picture fills the view. */
    Q_INVOKABLE void setImageToFullSize();
    /** Adopts the content size of the enclosing scroll view, if there is one, and sets the drawing scale. */
    Q_INVOKABLE void adjustFrameToFit();
    Q_INVOKABLE void boundsDidChangeNotification(platform::Sender notification);

    /** Draws the view with its corner at the painter's origin. */
    void draw(QPainter &painter, views::Medium medium) const;

private:
    void applyMode();
    void fitOriginal();

    QPointer<QObject> tfActivePicture;
    double pScale = 0;
    bool pImageLoaded = false;
    bool pImageToFit = true;
    platform::Picture pImageOrig;
    platform::Picture pImage;
    platform::Picture pImageCrop;
};
