#include "app/window/preview/compare_preview.h"
#include "app/window/preview/preview_host.h"
#include "app/window/preview/preview_paint.h"

#include "platform/graphics/resample.h"
#include "platform/values/fields.h"
#include "views/bounds_text.h"

#include <QPainter>

namespace window {

void ComparePreview::setCropFrame(const QVariantMap &frame)
{
    const platform::Fields fields(frame, QStringLiteral("frame"),
                                  {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"),
                                   QStringLiteral("height"), QStringLiteral("ratio"), QStringLiteral("isFound")});
    // No picture is larger, and the sum of two such sizes still fits an int.
    static constexpr double most = 1'000'000'000;
    const auto whole = [&fields](const char *name) { return qRound(qBound(-most, fields.number(name, 0), most)); };
    const bool wasShown = m_cropFrame->isShown();
    m_frameRatio = fields.number("ratio", 0);
    m_isFrameFound = fields.truth("isFound", false);
    // The frame stays where it was until the result arrives.
    if (!m_isFrameFound)
        m_cropFrame->setFrame(QRect(whole("x"), whole("y"), whole("width"), whole("height")), m_frameRatio);
    if (wasShown != m_cropFrame->isShown())
        m_asked.start(0);
}

/** Where a worker has placed the frame. */
void ComparePreview::takeFoundFrame(const jobs::ReadResult &result)
{
    const auto whole = [&result](const char *key) { return result.value(key).toInt(); };
    const QRect part(whole("partX"), whole("partY"), whole("partWidth"), whole("partHeight"));
    if (m_isFrameFound && !part.isEmpty())
        m_cropFrame->setFrame(part, m_frameRatio);
}

void ComparePreview::setOverlay(const platform::Picture &picture)
{
    m_overlay = picture;
    prepareOverlay();
}

void ComparePreview::placeCropFrame()
{
    m_cropFrame->setPlace(originalPlace(), originalArea(), m_base.isNull() ? QSize() : m_full);
    prepareOverlay();
}

void ComparePreview::prepareOverlay()
{
    QImage image;
    if (!m_overlay.isNull() && !m_base.isNull())
        image =
            platform::resampleRoughly(m_overlay.bitmap(), m_base.size()).value_or(platform::Bitmap()).toScreenImage();
    m_cropFrame->setOverlay(image);
}

/**
 * Hands the result to the crop preview view, which shows it at the scale of the original: in the middle of an empty picture
 * of the original's size, fitted into the bounds published by the original's view.
 */
void ComparePreview::showCropped()
{
    const QSizeF bounds = m_mainView.frame().size();
    if (views::publishedBounds() != bounds)
        m_mainView.boundsDidChangeNotification({});
    m_cropHost->content = QSizeF(resultArea().size()) * devicePixelRatioF();
    const auto result = platform::Bitmap::fromImage(m_resultImage);
    const QSize canvas = m_base.size().expandedTo(result.size());
    const QSize margin = (canvas - result.size()) / 2;
    const auto placed = platform::placed(result, QPoint(margin.width(), margin.height()), canvas);
    m_cropView.setImage(platform::Picture(placed.value_or(platform::Bitmap()), QSizeF(m_full)));
}

/** Where the result is on the screen: at the scale of the original. */
QRectF ComparePreview::croppedRect() const
{
    const qreal ratio = devicePixelRatioF();
    const QRectF bounds = pictureRect(m_full, resultArea());
    const double scale = bounds.width() / m_full.width();
    const QSizeF shown = QSizeF(wholePixels(QSizeF(m_resultFull) * scale * ratio)) / ratio;
    QRectF place(QPointF(0, 0), shown);
    place.moveCenter(QRectF(resultArea()).center());
    return place;
}

void ComparePreview::paintCropped(QPainter &painter) const
{
    const QRectF place = croppedRect();
    paintShadow(painter, place);
    if (m_resultImage.hasAlphaChannel())
        paintCheckerboard(painter, place);
    painter.save();
    painter.translate(resultArea().topLeft());
    painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    m_cropView.draw(painter, views::Medium::Screen);
    painter.restore();
}

} // namespace window
