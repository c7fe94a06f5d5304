#pragma once

#include "platform/foundation/sender.h"
#include "views/stage.h"

#include <QObject>
#include <QPointer>

/**
 * The second view, for the preview of a crop: a picture at the scale of the main view.
 *
 * It fits its picture into the size that the main view published last as "myBounds", whatever its own size is, and takes
 * it up at its own loads, mode changes and frame changes. Without that size it shows nothing. Fields without a comment
 * are kept for scripts only.
 */
class my2ndPhotoView : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QObject *simulationMode MEMBER simulationMode)
    /** The drawing scale after the last adjustment of the frame. */
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
    Q_PROPERTY(bool pImageLoadedCrop MEMBER pImageLoadedCrop)
    /** The mode. Both modes show the same picture. */
    Q_PROPERTY(bool pImageToFitCrop MEMBER pImageToFitCrop)
    /** The picture as shown. */
    Q_PROPERTY(platform::Picture pImageMain MEMBER pImageMain)
    /** The picture as loaded. */
    Q_PROPERTY(platform::Picture pImageMainOrig MEMBER pImageMainOrig)
    Q_PROPERTY(platform::Picture pImageCrop MEMBER pImageCrop)
    /** Setting another frame tells cropBoundsDidChangeNotification() of it, once awakeFromNib() has run. */
    Q_PROPERTY(QRectF frame READ frame WRITE setFrame)

public:
    /** Starts without a picture and in fitted mode, and heeds changes of the frame from now on. */
    Q_INVOKABLE void awakeFromNib();
    /** Shows the picture at @p path; one that cannot be read shows nothing. */
    Q_INVOKABLE void setImageWithPath(const QString &path);
    /** The same as setImageWithPath(). */
    Q_INVOKABLE void setImageWithPath2(const QString &path);
    /** Shows @p image, which becomes pImageMainOrig too. */
    Q_INVOKABLE void setImage(const platform::Picture &image);
    /** Fitted mode. Without a picture nothing changes, not even the mode; so too setImageToFullSize(). */
    Q_INVOKABLE void setImageToFit();
    /** The other mode; the picture is fitted all the same. */
    Q_INVOKABLE void setImageToFullSize();
    /** Takes the content size of the enclosing scroll view, where there is one, and sets the drawing scale and pScale. */
    Q_INVOKABLE void adjustFrameToFit();
    /** Keeps the angle. The picture is not turned. */
    Q_INVOKABLE void rotateByDegrees(double degrees);
    Q_INVOKABLE void cropBoundsDidChangeNotification(platform::Sender notification);
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
    platform::Picture displayed() const { return pImageMain; }
    /** Puts a real widget behind the view, which must outlive it or be taken away with null. */
    void attach(views::ViewHost *host) { m_stage.attach(host); }
    /** Draws the view with its corner at the painter's origin. */
    void draw(QPainter &painter, views::Medium medium) const;

private:
    void applyMode();
    void fitOriginal();

    QPointer<QObject> simulationMode;
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
    bool pImageLoadedCrop = false;
    bool pImageToFitCrop = true;
    platform::Picture pImageMain;
    platform::Picture pImageMainOrig;
    platform::Picture pImageCrop;
    views::Stage m_stage;
};
