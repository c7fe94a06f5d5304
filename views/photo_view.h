#pragma once

#include "platform/values/sender.h"
#include "views/stage.h"

#include <QObject>

namespace views {

/** What scripts find on both preview views. Fields without a comment exist for scripts only. */
class PhotoView : public QObject
{
    Q_OBJECT
    /** The last angle given to rotateByDegrees(), in degrees. */
    Q_PROPERTY(double pAngle MEMBER pAngle)
    Q_PROPERTY(QSizeF pImageSize MEMBER pImageSize)
    /** The frame size at which the drawing scale is 1; zero until it is set. */
    Q_PROPERTY(QSizeF pMaxFrameSize MEMBER pMaxFrameSize)
    /** The scale applied when drawing; both equal and at most 1. */
    Q_PROPERTY(double pDrawScaleX MEMBER pDrawScaleX)
    Q_PROPERTY(double pDrawScaleY MEMBER pDrawScaleY)
    Q_PROPERTY(double tNewFrameX MEMBER tNewFrameX)
    Q_PROPERTY(double tNewFrameY MEMBER tNewFrameY)
    Q_PROPERTY(double tNewFrameW MEMBER tNewFrameW)
    Q_PROPERTY(double tNewFrameH MEMBER tNewFrameH)
    /** Setting another frame triggers the view's notification, once awakeFromNib() has run. */
    Q_PROPERTY(QRectF frame READ frame WRITE setFrame)

public:
    /** Stores the angle. The picture is not rotated. */
    Q_INVOKABLE void rotateByDegrees(double degrees);
    /** A new picture of exactly @p size points with all of @p image in it, empty if there is none. */
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
    /** Puts a real widget behind the view, which must outlive it or be removed with null. */
    void attach(ViewHost *host) { m_stage.attach(host); }

protected:
    PhotoView() = default;
    /** Adopts the content size of the enclosing scroll view, if there is one, and sets the drawing scale. */
    void fillScrollView();

    double pAngle = 0;
    QSizeF pImageSize = QSizeF(0, 0);
    QSizeF pMaxFrameSize = QSizeF(0, 0);
    double pDrawScaleX = 0;
    double pDrawScaleY = 0;
    double tNewFrameX = 0;
    double tNewFrameY = 0;
    double tNewFrameW = 0;
    double tNewFrameH = 0;
    Stage m_stage;
};

} // namespace views
