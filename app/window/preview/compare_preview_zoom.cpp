#include "app/window/preview/compare_preview.h"

#include "app/window/look/screen_look.h"
#include "app/window/preview/preview_host.h"

#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>

// The zoom of both pictures, and the mouse and keys for it.
namespace window {

namespace {
constexpr int movedMs = 30;
constexpr double keyStep = 0.125; // of what is seen

bool isArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

QPointF inside(QPointF point)
{
    return {std::clamp(point.x(), 0.0, 1.0), std::clamp(point.y(), 0.0, 1.0)};
}
} // namespace

bool ComparePreview::hasResult() const
{
    return !m_resultImage.isNull() || !m_resultPart.image.isNull();
}

bool ComparePreview::showsResultAlone() const
{
    return m_isSingle && m_showsResult && !m_isFlipped && hasResult();
}

ComparePreview::Pane ComparePreview::paneAt(QPointF point) const
{
    const bool isResult =
        m_isSingle ? showsResultAlone() : m_showsResult && hasResult() && QRectF(resultArea()).contains(point);
    return isResult ? Pane::Result : Pane::Original;
}

QRect ComparePreview::areaOf(Pane pane) const
{
    return pane == Pane::Result ? resultArea() : originalArea();
}

/** The scale of the original at which it is as large as its area allows. */
double ComparePreview::fittedScale() const
{
    return m_full.isEmpty() ? 1 : shownSize(m_full, originalArea()).width() * devicePixelRatioF() / m_full.width();
}

/** A result smaller than its original is not shown smaller than its area allows, either. */
double ComparePreview::resultScale() const
{
    const QSize pixels = m_wanted.size;
    if (m_cropFrame->isShown() || pixels.isEmpty())
        return m_zoom.scale();
    const double fitted = shownSize(pixels, resultArea()).width() * devicePixelRatioF() / pixels.width();
    return std::max(m_zoom.scale(), fitted);
}

/** The frame of a crop, clipped to the picture. */
QRectF ComparePreview::framedPart() const
{
    const QRectF part = m_cropFrame->isShown() ? QRectF(m_cropFrame->frame()) : QRectF();
    return part.intersected(QRectF(QPointF(0, 0), m_full));
}

/** The point of the result that corresponds to a point of the original. */
QPointF ComparePreview::toResult(QPointF point) const
{
    const QRectF part = framedPart();
    if (part.isEmpty())
        return point;
    return {(point.x() * m_full.width() - part.left()) / part.width(),
            (point.y() * m_full.height() - part.top()) / part.height()};
}

QPointF ComparePreview::toOriginal(QPointF point) const
{
    const QRectF part = framedPart();
    if (part.isEmpty())
        return point;
    return {(part.left() + point.x() * part.width()) / m_full.width(),
            (part.top() + point.y() * part.height()) / m_full.height()};
}

/** The whole picture, in whole pixels of the screen. */
QRectF ComparePreview::zoomedPlace(QSize pixels, double scale, QPointF center, const QRect &area) const
{
    const qreal ratio = devicePixelRatioF();
    const QSizeF shown = QSizeF(wholePixels(QSizeF(pixels) * scale)) / ratio;
    const QRectF place = placeAround(center, shown, area);
    return {QPointF(qRound(place.left() * ratio) / ratio, qRound(place.top() * ratio) / ratio), shown};
}

QRectF ComparePreview::originalPlace() const
{
    const QRect area = originalArea();
    return m_zoom.isOn() ? zoomedPlace(m_full, m_zoom.scale(), m_zoom.center(), area) : pictureRect(m_full, area);
}

QRectF ComparePreview::resultPlace() const
{
    const QRect area = resultArea();
    if (m_zoom.isOn())
        return zoomedPlace(m_wanted.size, resultScale(), toResult(m_zoom.center()), area);
    return m_cropFrame->isShown() ? croppedRect() : pictureRect(m_wanted.size, area);
}

QRectF ComparePreview::placeOf(Pane pane) const
{
    return pane == Pane::Result ? resultPlace() : originalPlace();
}

ShownRoom ComparePreview::partRoom() const
{
    return {QSizeF(originalArea().size()) * devicePixelRatioF(), false, m_zoom.scale(), m_zoom.center()};
}

ShownRoom ComparePreview::resultRoom() const
{
    return {QSizeF(resultArea().size()) * devicePixelRatioF(), false, resultScale(), toResult(m_zoom.center())};
}

void ComparePreview::askForPart()
{
    if (m_zoom.isOn() && !m_base.isNull() && m_shownPath == m_path)
        m_ahead.get(m_path, partRoom(), [this](const ShownPicture &picture) { takePart(picture); });
}

void ComparePreview::askForParts()
{
    askForPart();
    if (wantsResult())
        askForResult();
}

void ComparePreview::takePart(const ShownPicture &picture)
{
    m_part = {ScreenLook::ofProcess().shown(picture.image, screen()), picture.part};
    m_partProblem = picture.image.isNull() ? problemWith(picture) : QString();
    update();
    if (!picture.image.isNull())
        Q_EMIT partShown();
}

void ComparePreview::setZoom(double zoom)
{
    setZoomAt(zoom, QRectF(originalArea()).center(), Pane::Original);
}

/** The point that is shown there stays there. */
void ComparePreview::setZoomAt(double scale, QPointF at, Pane pane)
{
    const QRectF before = m_full.isEmpty() ? QRectF() : placeOf(pane);
    const QRectF area = areaOf(pane);
    const double last = m_zoom.scale();
    m_zoom.setScale(scale);
    // The middle stays exact, whatever positions are rounded to.
    if (!before.isEmpty() && m_zoom.isOn() && at != area.center()) {
        const QPointF away = at - before.topLeft();
        const QPointF point = inside({away.x() / before.width(), away.y() / before.height()});
        const QPointF center = centerFor(point, at, placeOf(pane).size(), area);
        m_zoom.setCenter(inside(pane == Pane::Result ? toOriginal(center) : center));
    }
    if (last == m_zoom.scale())
        return;
    if (!m_zoom.isOn()) {
        m_part = {};
        m_resultPart = {};
        m_zoom.setCenter({0.5, 0.5});
    }
    lookElsewhere();
    describe();
    Q_EMIT zoomChanged();
}

void ComparePreview::stepZoom(int steps, QPointF at, Pane pane)
{
    if (!m_base.isNull())
        setZoomAt(m_zoom.steppedBy(steps, fittedScale()), at, pane);
}

void ComparePreview::moveBy(QPointF distance, Pane pane)
{
    const QRectF place = placeOf(pane);
    if (!m_zoom.isOn() || place.isEmpty())
        return;
    const QPointF center = centerOf(place.translated(distance), areaOf(pane));
    m_zoom.setCenter(inside(pane == Pane::Result ? toOriginal(center) : center));
    lookElsewhere();
}

void ComparePreview::lookElsewhere()
{
    placeCropFrame();
    setCursor(m_heldAt ? Qt::ClosedHandCursor : m_zoom.isOn() ? Qt::OpenHandCursor : Qt::ArrowCursor);
    m_moved.start(movedMs);
    update();
}

void ComparePreview::flip(bool on)
{
    const bool isFlipped = on && m_showsResult && !m_base.isNull();
    if (isFlipped == m_isFlipped)
        return;
    m_isFlipped = isFlipped;
    update();
}

/** A title, followed by the zoom. */
QString ComparePreview::titled(const QString &title, double scale) const
{
    if (!(scale > 0))
        return title;
    constexpr int hundred = 100;
    const QString share = tr("%1%").arg(QLocale().toString(qRound(scale * hundred)));
    return title.isEmpty() ? share : title + QStringLiteral(" · ") + share;
}

void ComparePreview::wheelEvent(QWheelEvent *event)
{
    constexpr int stepUnits = QWheelEvent::DefaultDeltasPerStep;
    m_turned += event->angleDelta().y();
    const int steps = m_turned / stepUnits;
    m_turned -= steps * stepUnits;
    if (steps != 0)
        stepZoom(steps, event->position(), paneAt(event->position()));
    event->accept();
}

void ComparePreview::mousePressEvent(QMouseEvent *event)
{
    setFocus(Qt::MouseFocusReason);
    if (m_zoom.isOn() && event->button() != Qt::RightButton) {
        m_heldAt = event->position();
        m_heldPane = paneAt(event->position());
        setCursor(Qt::ClosedHandCursor);
        return;
    }
    QWidget::mousePressEvent(event);
}

void ComparePreview::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_heldAt) {
        QWidget::mouseMoveEvent(event);
        return;
    }
    const QPointF distance = event->position() - *m_heldAt;
    m_heldAt = event->position();
    moveBy(distance, m_heldPane);
}

void ComparePreview::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_heldAt) {
        m_heldAt.reset();
        lookElsewhere();
    }
    QWidget::mouseReleaseEvent(event);
}

void ComparePreview::mouseDoubleClickEvent(QMouseEvent *)
{
    Q_EMIT largePreviewRequested();
}

/** False for a key with another meaning. */
bool ComparePreview::takeZoomKey(const QKeyEvent &event)
{
    const QRect area = originalArea();
    const QPointF middle = QRectF(area).center();
    if (isArrow(event.key()) && event.modifiers() & Qt::ShiftModifier && m_zoom.isOn()) {
        const int right = event.key() == Qt::Key_Right ? -1 : event.key() == Qt::Key_Left ? 1 : 0;
        const int down = event.key() == Qt::Key_Down ? -1 : event.key() == Qt::Key_Up ? 1 : 0;
        moveBy(QPointF(right * area.width(), down * area.height()) * keyStep, Pane::Original);
    } else if (event.key() == Qt::Key_Plus) {
        stepZoom(1, middle, Pane::Original);
    } else if (event.key() == Qt::Key_Minus) {
        stepZoom(-1, middle, Pane::Original);
    } else if (event.key() == Qt::Key_F && event.modifiers() == Qt::NoModifier && m_showsResult) {
        flip(true);
    } else {
        return false;
    }
    return true;
}

void ComparePreview::keyPressEvent(QKeyEvent *event)
{
    if (takeZoomKey(*event))
        return;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        Q_EMIT stepRequested(-1);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        Q_EMIT stepRequested(1);
        break;
    case Qt::Key_Space:
        Q_EMIT largePreviewRequested();
        break;
    case Qt::Key_Escape:
        Q_EMIT closeRequested();
        event->ignore();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ComparePreview::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F && !event->isAutoRepeat())
        flip(false);
    QWidget::keyReleaseEvent(event);
}

} // namespace window
