#pragma once

#include "app/preview/crop_frame.h"

#include <QImage>
#include <QWidget>

namespace window {

/**
 * The frame of a crop over the picture being cropped: shown, moved and sized with the mouse and, when it has the focus,
 * with the arrow keys.
 */
class CropFrameEditor : public QWidget
{
    Q_OBJECT

public:
    explicit CropFrameEditor(QWidget *parent);

    /** The rectangle and the ratio to keep (0: free), in pixels of the picture; null sides hide the frame. */
    void setFrame(const QRect &frame, double ratio);
    QRect frame() const { return m_frame; }
    bool isShown() const { return !m_frame.isEmpty(); }
    /** Drawn over the whole picture instead of this widget's own frame; null for none. */
    void setOverlay(const QImage &overlay);
    /** Where the picture of @p pixels is on the parent, and which part of that is visible. */
    void setPlace(const QRectF &picture, const QRect &area, QSize pixels);

    /** The frame on this widget. */
    QRectF shownFrame() const;

Q_SIGNALS:
    /** The user moved or sized the frame. */
    void edited(const QRect &frame);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QRectF shownPicture() const { return m_picture.translated(-geometry().topLeft()); }
    double ratioFor(Qt::KeyboardModifiers modifiers, const QRect &frame) const;
    void take(const QRect &frame);
    void describe();

    QRect m_frame;
    double m_ratio = 0;
    QRectF m_picture; ///< on the parent
    QSize m_pixels;
    QImage m_overlay;
    bool m_isOverlayStale = false; ///< the frame was moved since
    Grip m_held = Grip::None;
    QRect m_heldFrame;
    QPointF m_heldAt;
};

} // namespace window
