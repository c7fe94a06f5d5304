#include "views/my2ndPhotoView.h"

#include "views/bounds_text.h"

using platform::Picture;

void my2ndPhotoView::awakeFromNib()
{
    pImageLoadedCrop = false;
    pImageToFitCrop = true;
    m_stage.observeFrame([this] { cropBoundsDidChangeNotification({}); });
}

void my2ndPhotoView::setImageWithPath(const QString &path)
{
    setImage(Picture::opened(path));
}

void my2ndPhotoView::setImageWithPath2(const QString &path)
{
    setImageWithPath(path);
}

void my2ndPhotoView::setImage(const Picture &image)
{
    pImageMain = image;
    pImageMainOrig = image;
    pImageLoadedCrop = true;
    applyMode();
}

void my2ndPhotoView::setImageToFit()
{
    if (!pImageLoadedCrop)
        return;
    fitOriginal();
    pImageToFitCrop = true;
    adjustFrameToFit();
    m_stage.layout();
}

void my2ndPhotoView::setImageToFullSize()
{
    if (!pImageLoadedCrop)
        return;
    fitOriginal();
    pImageToFitCrop = false;
    adjustFrameToFit();
    m_stage.layout();
}

void my2ndPhotoView::adjustFrameToFit()
{
    fillScrollView();
    pScale = pDrawScaleX;
}

void my2ndPhotoView::cropBoundsDidChangeNotification(platform::Sender notification)
{
    Q_UNUSED(notification)
    applyMode();
    m_stage.layout();
}

void my2ndPhotoView::draw(QPainter &painter, views::Medium medium) const
{
    if (pImageLoadedCrop)
        m_stage.draw(painter, medium, pImageMain, pDrawScaleX, pDrawScaleY);
}

void my2ndPhotoView::applyMode()
{
    if (pImageToFitCrop)
        setImageToFit();
    else
        setImageToFullSize();
}

void my2ndPhotoView::fitOriginal()
{
    pImageMain = resizeImageAspectRatioFit(pImageMainOrig, views::publishedBounds());
}
