#pragma once

#include "views/photo_view.h"

#include <QPointer>

/**
 * The second view, for the preview of a crop: a picture at the scale of the main view.
 *
 * It fits its picture into the size that the main view published last as "myBounds", whatever its own size is, and
 * reads it when it loads or when its mode or frame changes. Without that size it shows nothing. Fields without a
 * comment exist for scripts only.
 */
class my2ndPhotoView : public views::PhotoView
{
    Q_OBJECT
    Q_PROPERTY(QObject *simulationMode MEMBER simulationMode)
    /** The drawing scale after the last adjustment of the frame. */
    Q_PROPERTY(double pScale MEMBER pScale)
    /** A picture is there; nothing is drawn while there is none. */
    Q_PROPERTY(bool pImageLoadedCrop MEMBER pImageLoadedCrop)
    /** The mode. Both modes show the same picture. */
    Q_PROPERTY(bool pImageToFitCrop MEMBER pImageToFitCrop)
    /** The picture as shown. */
    Q_PROPERTY(platform::Picture pImageMain MEMBER pImageMain)
    /** The picture as loaded. */
    Q_PROPERTY(platform::Picture pImageMainOrig MEMBER pImageMainOrig)
    Q_PROPERTY(platform::Picture pImageCrop MEMBER pImageCrop)

public:
    /** Starts without a picture and in fitted mode, and observes changes of the frame from now on. */
    Q_INVOKABLE void awakeFromNib();
    /** Shows the picture at @p path; one that cannot be read shows nothing. */
    Q_INVOKABLE void setImageWithPath(const QString &path);
    /** The same as setImageWithPath(). */
    Q_INVOKABLE void setImageWithPath2(const QString &path);
    /** Shows @p image, which becomes pImageMainOrig too. */
    Q_INVOKABLE void setImage(const platform::Picture &image);
    /** Fitted mode. Without a picture nothing changes, not even the mode; likewise for setImageToFullSize(). */
    Q_INVOKABLE void setImageToFit();
    /** The other mode; the picture is fitted nevertheless. */
    Q_INVOKABLE void setImageToFullSize();
    /** Adopts the content size of the enclosing scroll view, if there is one, and sets the drawing scale and pScale. */
    Q_INVOKABLE void adjustFrameToFit();
    Q_INVOKABLE void cropBoundsDidChangeNotification(platform::Sender notification);

    /** Draws the view with its corner at the painter's origin. */
    void draw(QPainter &painter, views::Medium medium) const;

private:
    void applyMode();
    void fitOriginal();

    QPointer<QObject> simulationMode;
    double pScale = 0;
    bool pImageLoadedCrop = false;
    bool pImageToFitCrop = true;
    platform::Picture pImageMain;
    platform::Picture pImageMainOrig;
    platform::Picture pImageCrop;
};
