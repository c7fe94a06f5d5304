#include "app/window/preview/crop_frame_editor.h"

#include "app/window/look/theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <array>

namespace window {
namespace {

constexpr int handlePx = 9;
constexpr double reachPx = 8;
const QColor frameColor(255, 59, 48);

/** An arrow key; with Ctrl they are those of the list. */
bool isForFrame(const QKeyEvent &event)
{
    const int key = event.key();
    return !(event.modifiers() & Qt::ControlModifier) &&
           (key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down);
}

void paintDashes(QPainter &painter, const QRectF &frame)
{
    QPen pen(frameColor, 2);
    pen.setDashPattern({4, 3});
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
}

void paintHandles(QPainter &painter, const QRectF &frame, const QColor &line)
{
    painter.setPen(QPen(line, 1.5));
    painter.setBrush(Qt::white);
    for (const Grip grip : {Grip::TopLeft, Grip::Top, Grip::TopRight, Grip::Right, Grip::BottomRight, Grip::Bottom,
                            Grip::BottomLeft, Grip::Left}) {
        QRectF square(0, 0, handlePx, handlePx);
        square.moveCenter(handleOf(frame, grip));
        painter.drawRoundedRect(square, 2, 2);
    }
}

} // namespace

CropFrameEditor::CropFrameEditor(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("cropFrame"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(tr("Crop frame"));
    hide();
}

void CropFrameEditor::setFrame(const QRect &frame, double ratio)
{
    m_frame = frame;
    m_ratio = ratio;
    setVisible(isShown());
    describe();
    update();
}

void CropFrameEditor::setOverlay(const QImage &overlay)
{
    m_overlay = overlay;
    m_isOverlayStale = false;
    update();
}

void CropFrameEditor::setPlace(const QRectF &picture, const QRect &area, QSize pixels)
{
    m_picture = picture;
    m_pixels = pixels;
    constexpr int around = handlePx + 1;
    setGeometry(picture.toAlignedRect().adjusted(-around, -around, around, around).intersected(area));
    update();
}

QRectF CropFrameEditor::shownFrame() const
{
    if (m_pixels.isEmpty())
        return {};
    const QRectF picture = shownPicture();
    const double across = picture.width() / m_pixels.width();
    const double down = picture.height() / m_pixels.height();
    return {picture.x() + m_frame.x() * across, picture.y() + m_frame.y() * down, m_frame.width() * across,
            m_frame.height() * down};
}

void CropFrameEditor::describe()
{
    setAccessibleDescription(tr("%1 × %2 pixels, %3 from the left, %4 from the top")
                                 .arg(m_frame.width())
                                 .arg(m_frame.height())
                                 .arg(m_frame.x())
                                 .arg(m_frame.y()));
}

void CropFrameEditor::paintEvent(QPaintEvent *)
{
    if (m_pixels.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF picture = shownPicture();
    const QRectF frame = shownFrame();
    QPainterPath outside;
    outside.addRect(picture);
    outside.addRect(frame.intersected(picture));
    painter.fillPath(outside, QColor(0, 0, 0, 120));
    if (m_overlay.isNull() || m_isOverlayStale)
        paintDashes(painter, frame);
    else
        painter.drawImage(picture, m_overlay);
    paintHandles(painter, frame, hasFocus() ? Theme::color(QStringLiteral("accent")) : frameColor);
}

double CropFrameEditor::ratioFor(Qt::KeyboardModifiers modifiers, const QRect &frame) const
{
    if (m_ratio > 0)
        return m_ratio;
    return modifiers & Qt::ShiftModifier ? double(frame.width()) / frame.height() : 0;
}

void CropFrameEditor::take(const QRect &frame)
{
    if (frame == m_frame)
        return;
    m_frame = frame;
    m_isOverlayStale = true;
    describe();
    update();
    Q_EMIT edited(frame);
}

void CropFrameEditor::mousePressEvent(QMouseEvent *event)
{
    m_held = event->button() == Qt::LeftButton ? gripAt(shownFrame(), event->position(), reachPx) : Grip::None;
    m_heldFrame = m_frame;
    m_heldAt = event->position();
    // A press outside the frame is one on the preview itself.
    if (m_held == Grip::None)
        event->ignore();
    else
        setFocus(Qt::MouseFocusReason);
}

void CropFrameEditor::mouseMoveEvent(QMouseEvent *event)
{
    if (m_held == Grip::None) {
        setCursor(cursorOf(gripAt(shownFrame(), event->position(), reachPx)));
        event->ignore();
        return;
    }
    const QPointF by = event->position() - m_heldAt;
    const QPoint pixels(qRound(by.x() * m_pixels.width() / m_picture.width()),
                        qRound(by.y() * m_pixels.height() / m_picture.height()));
    const double ratio = m_held == Grip::Inside ? 0 : ratioFor(event->modifiers(), m_heldFrame);
    take(sizedFrame(m_heldFrame, m_held, pixels, m_pixels, ratio));
}

void CropFrameEditor::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_held == Grip::None)
        event->ignore();
    m_held = Grip::None;
}

bool CropFrameEditor::event(QEvent *event)
{
    // The frame gets the arrow keys before any menu entry or shortcut does.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (isForFrame(*key)) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void CropFrameEditor::keyPressEvent(QKeyEvent *event)
{
    if (isForFrame(*event))
        take(keyedFrame(m_frame, event->key(), event->modifiers(), m_pixels, m_ratio));
    else if (event->key() == Qt::Key_Escape)
        parentWidget()->setFocus(Qt::OtherFocusReason);
    else
        QWidget::keyPressEvent(event);
}

void CropFrameEditor::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void CropFrameEditor::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

} // namespace window
