#include "views/photo_view.h"

#include "views/fit.h"

namespace views {

void PhotoView::rotateByDegrees(double degrees)
{
    pAngle = degrees;
    m_stage.redisplay();
}

platform::Picture PhotoView::resizeImageAspectRatioFit(const platform::Picture &image, const QSizeF &size)
{
    return laidInto(image, size, Fit::Whole);
}

platform::Picture PhotoView::resizeImageAspectRatioFitFullFrame(const platform::Picture &image, const QSizeF &size)
{
    return laidInto(image, size, Fit::Fill);
}

void PhotoView::viewWillDraw() {}

void PhotoView::drawRect(const QRectF &dirtyRect)
{
    Q_UNUSED(dirtyRect)
}

void PhotoView::fillScrollView()
{
    pDrawScaleX = m_stage.fillScrollView(pMaxFrameSize);
    pDrawScaleY = pDrawScaleX;
}

} // namespace views
