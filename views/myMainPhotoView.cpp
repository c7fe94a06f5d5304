#include "views/myMainPhotoView.h"

#include "platform/foundation/log.h"
#include "views/bounds_text.h"

using platform::Picture;

void myMainPhotoView::awakeFromNib()
{
    platform::logLine(QStringLiteral("awakeFromNib"));
    pImageLoaded = false;
    pImageToFit = true;
    m_stage.observeFrame([this] { boundsDidChangeNotification({}); });
}

void myMainPhotoView::setImageWithPath(const QString &path)
{
    pImage = Picture::opened(path);
    pImageOrig = pImage;
    views::publishBounds(m_stage.boundsSize());
    fitOriginal();
    pImageLoaded = true;
    applyMode();
}

void myMainPhotoView::setImageWithPath2(const QString &path)
{
    pImage = Picture::opened(path);
    pImageOrig = pImage;
    views::publishBounds(m_stage.boundsSize());
    pImageLoaded = true;
    applyMode();
}

void myMainPhotoView::setImage(const Picture &image)
{
    pImage = image;
    pImageLoaded = true;
    views::publishBounds(m_stage.boundsSize());
    applyMode();
}

void myMainPhotoView::setImageCropPreview(const QString &path, platform::Sender unused)
{
    Q_UNUSED(unused)
    pImage = Picture::opened(path);
    fitOriginal();
    pImageLoaded = true;
    applyMode();
}

void myMainPhotoView::setImageToFit()
{
    if (!pImageLoaded)
        return;
    fitOriginal();
    pImageToFit = true;
    adjustFrameToFit();
}

void myMainPhotoView::setImageToFullSize()
{
    if (!pImageLoaded)
        return;
    pImage = resizeImageAspectRatioFitFullFrame(pImageOrig, m_stage.boundsSize());
    pImageToFit = false;
    adjustFrameToFit();
    m_stage.layout();
}

void myMainPhotoView::adjustFrameToFit()
{
    fillScrollView();
}

void myMainPhotoView::boundsDidChangeNotification(platform::Sender notification)
{
    Q_UNUSED(notification)
    fitOriginal();
    views::publishBounds(m_stage.boundsSize());
    applyMode();
}

void myMainPhotoView::draw(QPainter &painter, views::Medium medium) const
{
    if (pImageLoaded)
        m_stage.draw(painter, medium, pImage, pDrawScaleX, pDrawScaleY);
}

void myMainPhotoView::applyMode()
{
    if (pImageToFit)
        setImageToFit();
    else
        setImageToFullSize();
}

void myMainPhotoView::fitOriginal()
{
    pImage = resizeImageAspectRatioFit(pImageOrig, m_stage.boundsSize());
}
