#include "views/stage.h"

#include "views/fit.h"

#include <QPainter>

namespace views {
namespace {

bool isSame(const QRectF &a, const QRectF &b)
{
    // QRectF's own comparison treats close values as equal.
    return a.x() == b.x() && a.y() == b.y() && a.width() == b.width() && a.height() == b.height();
}

} // namespace

void Stage::setFrame(const QRectF &frame)
{
    if (isSame(m_frame, frame))
        return;
    m_frame = frame;
    // A scroll view that answers each frame with another content size would never settle.
    constexpr int deepest = 4;
    if (!m_observer || m_told >= deepest)
        return;
    ++m_told;
    m_observer();
    --m_told;
}

double Stage::fillScrollView(QSizeF most)
{
    const std::optional<QSizeF> content = m_host ? m_host->scrollContentSize() : std::nullopt;
    if (content)
        setFrame(QRectF(QPointF(0, 0), *content));
    const double scale = drawingScale(content.value_or(m_frame.size()), most);
    redisplay();
    return scale;
}

void Stage::redisplay()
{
    if (m_host)
        m_host->requestRedisplay();
}

void Stage::layout()
{
    if (m_host)
        m_host->requestLayout();
}

const QImage &Stage::screenImage(const platform::Picture &picture) const
{
    if (m_screen.isNull() || !(m_drawn == picture)) {
        m_drawn = picture;
        m_screen = picture.bitmap().toScreenImage();
    }
    return m_screen;
}

void Stage::draw(QPainter &painter, Medium medium, const platform::Picture &picture, double scaleX, double scaleY) const
{
    if (medium == Medium::Paper || picture.isNull() || picture.size().isEmpty())
        return;
    const QSizeF bounds = boundsSize();
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setOpacity(1.0);
    painter.translate(bounds.width() / 2, bounds.height() / 2);
    painter.scale(scaleX, scaleY);
    painter.translate(-bounds.width() / 2, -bounds.height() / 2);
    const QSizeF size = picture.size();
    const QPointF corner(bounds.width() * 0.5 - size.width() * 0.5, bounds.height() * 0.5 - size.height() * 0.5);
    painter.drawImage(QRectF(corner, size), screenImage(picture));
    painter.restore();
}

} // namespace views
