#include "app/window/preview/compare_preview.h"

#include "app/window/look/theme.h"
#include "app/window/preview/preview_host.h"
#include "app/window/preview/preview_paint.h"

#include <QPainter>

namespace window {

namespace {
constexpr int marginPx = 32;
} // namespace

const QPixmap &ComparePreview::scaledResult(QSize devicePixels) const
{
    if (m_scaledResult.size() != devicePixels) {
        const QImage scaled = m_resultImage.size() == devicePixels
                                  ? m_resultImage
                                  : m_resultImage.scaled(devicePixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_scaledResult = QPixmap::fromImage(scaled);
    }
    m_scaledResult.setDevicePixelRatio(devicePixelRatioF());
    return m_scaledResult;
}

void ComparePreview::paintEvent(QPaintEvent *)
{
    if (m_screen && m_screen != screen())
        m_settled.start(0); // another screen has other colours
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_isSingle) {
        showsResultAlone() ? paintResult(painter) : paintOriginal(painter, originalArea());
        return;
    }
    paintOriginal(painter, originalArea());
    if (m_showsResult)
        m_isFlipped ? paintOriginal(painter, resultArea()) : paintResult(painter);
}

void ComparePreview::paintOriginal(QPainter &painter, const QRect &area) const
{
    painter.save();
    painter.setClipRect(area);
    painter.fillRect(area, Theme::color(QStringLiteral("surround")));
    if (m_base.isNull())
        paintMessage(painter, area, m_givenProblem.isEmpty() ? m_problem : m_givenProblem);
    else if (m_zoom.isOn())
        paintZoomed(painter, {zoomedPlace(m_full, m_zoom.scale(), m_zoom.center(), area), area}, m_baseImage, m_part);
    else
        paintFitted(painter, area);
    const bool isFocused = hasFocus() && area == originalArea();
    const int below = paintBadge(painter, area, Qt::TopLeftCorner, 0, titled(m_originalTitle, m_zoom.scale()),
                                 isFocused ? BadgeLook::Focused : BadgeLook::Plain);
    paintBadge(painter, area, Qt::TopLeftCorner, below, m_zoom.isOn() ? m_partProblem : QString());
    paintBadge(painter, area, Qt::BottomRightCorner, 0, m_originalCaption);
    painter.restore();
}

void ComparePreview::paintFitted(QPainter &painter, const QRect &area) const
{
    const QRectF place = m_fill ? QRectF(area) : pictureRect(m_full, area);
    paintShadow(painter, place);
    if (m_base.hasAlpha())
        paintCheckerboard(painter, place);
    painter.save();
    painter.translate(place.topLeft());
    painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    m_mainView.draw(painter, views::Medium::Screen);
    painter.restore();
}

void ComparePreview::paintResult(QPainter &painter) const
{
    const QRect area = resultArea();
    painter.save();
    painter.setClipRect(area);
    painter.fillRect(area, Theme::color(QStringLiteral("surroundResult")));
    if (!hasResult()) {
        paintMessage(painter, area, m_problem.isEmpty() ? m_resultProblem : QString());
    } else if (m_zoom.isOn()) {
        paintZoomed(painter, {resultPlace(), area}, m_resultImage, m_resultPart);
    } else if (m_cropFrame->isShown()) {
        paintCropped(painter);
    } else {
        const QRectF place = pictureRect(m_wanted.size, area);
        paintShadow(painter, place);
        if (m_resultImage.hasAlphaChannel())
            paintCheckerboard(painter, place);
        painter.drawPixmap(place.topLeft(), scaledResult(wholePixels(place.size() * devicePixelRatioF())));
    }
    const bool isFocused = hasFocus() && m_isSingle;
    paintBadge(painter, area, Qt::TopLeftCorner, 0, titled(m_resultTitle, m_zoom.isOn() ? resultScale() : 0),
               isFocused ? BadgeLook::Focused : BadgeLook::Plain);
    const int above = paintBadge(painter, area, Qt::BottomRightCorner, 0, m_notes);
    paintBadge(painter, area, Qt::BottomRightCorner, above, m_resultCaption);
    painter.restore();
}

/** A part with its full pixels, and around it, while that part is viewed, what is available of the whole. */
void ComparePreview::paintZoomed(QPainter &painter, const ZoomedPlace &place, const QImage &whole,
                                 const Part &part) const
{
    const qreal ratio = devicePixelRatioF();
    const QSizeF size = place.picture.size();
    const QRectF target(place.picture.left() + part.place.left() * size.width(),
                        place.picture.top() + part.place.top() * size.height(), part.place.width() * size.width(),
                        part.place.height() * size.height());
    const QRectF seen = place.picture.intersected(place.area);
    constexpr double hair = 0.5;
    const bool isCovered = !part.image.isNull() && target.adjusted(-hair, -hair, hair, hair).contains(seen);
    paintShadow(painter, place.picture);
    if (whole.hasAlphaChannel() || part.image.hasAlphaChannel())
        paintCheckerboard(painter, seen);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!isCovered && !whole.isNull())
        painter.drawImage(place.picture, whole);
    if (part.image.isNull())
        return;
    const QSize pixels = wholePixels(target.size() * ratio);
    if (pixels == part.image.size()) {
        // Its pixels match those of the screen: no scaling may come between.
        QImage image = part.image;
        image.setDevicePixelRatio(ratio);
        painter.drawImage(QPointF(qRound(target.left() * ratio) / ratio, qRound(target.top() * ratio) / ratio), image);
        return;
    }
    constexpr int squares = 2; // from here on individual pixels are visible
    painter.setRenderHint(QPainter::SmoothPixmapTransform, pixels.width() < squares * part.image.width());
    painter.drawImage(target, part.image);
}

void ComparePreview::paintMessage(QPainter &painter, const QRect &area, const QString &message) const
{
    painter.setPen(Theme::color(QStringLiteral("badgeText")));
    painter.drawText(area.adjusted(marginPx, 0, -marginPx, 0), Qt::AlignCenter | Qt::TextWordWrap, message);
}

} // namespace window
