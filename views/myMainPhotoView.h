#pragma once

#include "platform/foundation/sender.h"
#include "views/stage.h"

#include <QObject>
#include <QPointer>

/**
 * The view of the current picture, fitted whole into the view or filling it.
 *
 * The picture as loaded stays as it is; what is shown is made of it anew when the size or the mode changes. The size of
 * the view is kept in the user defaults as "myBounds". Fields without a comment are kept for scripts only.
 */
class myMainPhotoView : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject *tfActivePicture MEMBER tfActivePicture)
    Q_PROPERTY(double pScale MEMBER pScale)
    /** The last angle given to rotateByDegrees(), in degrees. */
    Q_PROPERTY(double pAngle MEMBER pAngle)
    Q_PROPERTY(QSizeF pImageSize MEMBER pImageSize)
    /** The frame size at which the drawing scale is 1; zero until it is set. */
    Q_PROPERTY(QSizeF pMaxFrameSize MEMBER pMaxFrameSize)
    /** The scale applied when drawing; both alike and at most 1. */
    Q_PROPERTY(double pDrawScaleX MEMBER pDrawScaleX)
    Q_PROPERTY(double pDrawScaleY MEMBER pDrawScaleY)
    Q_PROPERTY(double tNewFrameX MEMBER tNewFrameX)
    Q_PROPERTY(double tNewFrameY MEMBER tNewFrameY)
    Q_PROPERTY(double tNewFrameW MEMBER tNewFrameW)
    Q_PROPERTY(double tNewFrameH MEMBER tNewFrameH)
    /** A picture is there; nothing is drawn while there is none. */
    Q_PROPERTY(bool pImageLoaded MEMBER pImageLoaded)
    /** True: the whole picture is fitted into the view. False: it fills the view. */
    Q_PROPERTY(bool pImageToFit MEMBER pImageToFit)
    /** The picture as loaded. */
    Q_PROPERTY(platform::Picture pImageOrig MEMBER pImageOrig)
    /** The picture as shown. */
    Q_PROPERTY(platform::Picture pImage MEMBER pImage)
    Q_PROPERTY(platform::Picture pImageCrop MEMBER pImageCrop)
    /** Setting another frame tells boundsDidChangeNotification() of it, once awakeFromNib() has run. */
    Q_PROPERTY(QRectF frame READ frame WRITE setFrame)

public:
    /** Starts without a picture and in fitted mode, and heeds changes of the frame from now on. Logs "awakeFromNib". */
    Q_INVOKABLE void awakeFromNib();
    /** Shows the picture at @p path; one that cannot be read shows nothing. */
    Q_INVOKABLE void setImageWithPath(const QString &path);
    /** The same, opened twice, so that pImage and pImageOrig share nothing. */
    Q_INVOKABLE void setImageWithPath2(const QString &path);
    /** Stores @p image in pImage and keeps pImageOrig, of which the picture shown is made anew. */
    Q_INVOKABLE void setImage(const platform::Picture &image);
    /** Opens @p path, and shows pImageOrig all the same. */
    Q_INVOKABLE void setImageCropPreview(const QString &path, platform::Sender unused);
    /** Fitted mode. Without a picture nothing changes, not even the mode; so too setImageToFullSize(). */
    Q_INVOKABLE void setImageToFit();
    /** The picture fills the view. */
    Q_INVOKABLE void setImageToFullSize();
    /** Takes the content size of the enclosing scroll view, where there is one, and sets the drawing scale. */
    Q_INVOKABLE void adjustFrameToFit();
    /** Keeps the angle. The picture is not turned. */
    Q_INVOKABLE void rotateByDegrees(double degrees);
    Q_INVOKABLE void boundsDidChangeNotification(platform::Sender notification);
    /** A new picture of exactly @p size points with all of @p image in it, empty where there is none. */
    Q_INVOKABLE platform::Picture resizeImageAspectRatioFit(const platform::Picture &image, const QSizeF &size);
    /** A new picture of exactly @p size points that @p image fills. */
    Q_INVOKABLE platform::Picture resizeImageAspectRatioFitFullFrame(const platform::Picture &image,
                                                                     const QSizeF &size);
    /** Does nothing. */
    Q_INVOKABLE void viewWillDraw();
    /** Without a widget there is nothing to draw to: does nothing. Widgets call draw(). */
    Q_INVOKABLE void drawRect(const QRectF &dirtyRect);

    QRectF frame() const { return m_stage.frame(); }
    void setFrame(const QRectF &frame) { m_stage.setFrame(frame); }
    platform::Picture displayed() const { return pImage; }
    /** Puts a real widget behind the view, which must outlive it or be taken away with null. */
    void attach(views::ViewHost *host) { m_stage.attach(host); }
    /** Draws the view with its corner at the painter's origin. */
    void draw(QPainter &painter, views::Medium medium) const;

private:
    void applyMode();
    void fitOriginal();

    QPointer<QObject> tfActivePicture;
    double pScale = 0;
    double pAngle = 0;
    QSizeF pImageSize = QSizeF(0, 0);
    QSizeF pMaxFrameSize = QSizeF(0, 0);
    double pDrawScaleX = 0;
    double pDrawScaleY = 0;
    double tNewFrameX = 0;
    double tNewFrameY = 0;
    double tNewFrameW = 0;
    double tNewFrameH = 0;
    bool pImageLoaded = false;
    bool pImageToFit = true;
    platform::Picture pImageOrig;
    platform::Picture pImage;
    platform::Picture pImageCrop;
    views::Stage m_stage;
};
