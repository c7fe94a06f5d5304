#pragma once

#include "platform/imageio/source/picture.h"
#include "views/ViewHost.h"

#include <QImage>
#include <QRectF>

#include <functional>

class QPainter;

namespace views {

/** What a view is drawn to. */
enum class Medium { Screen, Paper };

/**
 * What the preview views share: a frame that reports changes, the widget behind it if there is one, and the drawing of
 * a picture in its middle.
 */
class Stage
{
public:
    QRectF frame() const { return m_frame; }
    QSizeF boundsSize() const { return m_frame.size(); }
    /** Notifies the observer if the frame differs; the same frame again ends the recursion. */
    void setFrame(const QRectF &frame);
    /** Called after each change of the frame; there is one observer. */
    void observeFrame(std::function<void()> observer) { m_observer = std::move(observer); }

    /** The widget, which must outlive the view or be removed with null. */
    void attach(ViewHost *host) { m_host = host; }
    /**
     * Gives the view the content size of its scroll view, at origin 0, and answers the drawing scale for @p most. Without
     * a scroll view the frame stays and is used as that content.
     */
    double fillScrollView(QSizeF most);
    void redisplay();
    void layout();

    /**
     * Draws @p picture in the middle of the bounds, whose corner is the painter's origin, scaled by @p scaleX and
     * @p scaleY about that middle. On paper nothing is drawn.
     */
    void draw(QPainter &painter, Medium medium, const platform::Picture &picture, double scaleX, double scaleY) const;

private:
    const QImage &screenImage(const platform::Picture &picture) const;

    QRectF m_frame = QRectF(0, 0, 0, 0);
    ViewHost *m_host = nullptr;
    std::function<void()> m_observer;
    int m_told = 0;
    mutable platform::Picture m_drawn;
    mutable QImage m_screen;
};

} // namespace views
