#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>

namespace window {

/**
 * How closely a picture is viewed: as large as its view allows, or at a scale with one of its points in the middle.
 * Points are given as 0 to 1 in both directions, so that they mean the same in pictures of any size.
 */
class ViewZoom
{
public:
    /** False if the picture is as large as its view allows. */
    bool isOn() const { return m_scale > 0; }
    /** Screen pixels per picture pixel, 1/32 to 8; 0 if it is as large as its view allows. */
    double scale() const { return m_scale; }
    void setScale(double scale);
    QPointF center() const { return m_center; }
    void setCenter(QPointF center) { m_center = center; }

    /**
     * The next larger or smaller step, starting at @p fitted if none is chosen; 0 for a step no larger than that.
     *
     * @param fitted  the scale at which the picture is as large as its view allows
     */
    double steppedBy(int steps, double fitted) const;

private:
    double m_scale = 0;
    QPointF m_center = {0.5, 0.5};
};

/**
 * The rectangle of the whole picture when one of its points is in the middle of @p area; moved so that no part of the
 * area stays empty that the picture could fill.
 *
 * @param shown  its size there
 */
QRectF placeAround(QPointF center, QSizeF shown, const QRectF &area);

/** The point that is in the middle of the area then. */
QPointF centerOf(const QRectF &place, const QRectF &area);

/** The point that must be in the middle so that @p point of the picture appears at @p at of the area. */
QPointF centerFor(QPointF point, QPointF at, QSizeF shown, const QRectF &area);

} // namespace window
