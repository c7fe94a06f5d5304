#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

namespace window {

/**
 * How close a picture is looked at: as large as its place allows, or at a scale, with one of its points in the middle. Points of a picture
 * are counted from 0 to 1 on both sides, so that they mean the same in pictures of any size.
 */
class ViewZoom
{
public:
    /** False where the picture is as large as its place allows. */
    bool isOn() const { return m_scale > 0; }
    /** Pixels of the screen for one of the picture, 1/32 to 8; 0 where it is as large as its place allows. */
    double scale() const { return m_scale; }
    void setScale(double scale);
    QPointF center() const { return m_center; }
    void setCenter(QPointF center) { m_center = center; }

    /**
     * The next larger or smaller step, from @p fitted where none is chosen; 0 for what is no larger than that.
     *
     * @param fitted  the scale of the picture that is as large as its place allows
     */
    double steppedBy(int steps, double fitted) const;

private:
    double m_scale = 0;
    QPointF m_center = {0.5, 0.5};
};

/**
 * Where a picture lies, whole, of which a point is in the middle of @p area: moved so that nothing of the area stays empty that the picture
 * could fill.
 *
 * @param shown  its size there
 */
QRectF placeAround(QPointF center, QSizeF shown, const QRectF &area);

/** The point that lies in the middle of the area then. */
QPointF centerOf(const QRectF &place, const QRectF &area);

/** The point that has to be in the middle so that @p point of the picture lies at @p at of the area. */
QPointF centerFor(QPointF point, QPointF at, QSizeF shown, const QRectF &area);

} // namespace window
