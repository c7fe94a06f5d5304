#pragma once

#include "platform/imageio/source/picture.h"

#include <QRectF>

/**
 * How a picture is laid into a size. Sizes and rectangles are in points; the origin of a source rectangle is the
 * picture's bottom left corner, and it may reach outside the picture.
 */
namespace views {

/** How the shape of the picture and that of its place come together. */
enum class Fit {
    Whole, ///< all of the picture, with empty bands on two sides
    Fill,  ///< all of the place, the picture cut off on two sides
};

/**
 * The part of a picture that is drawn into the whole of @p target.
 *
 * The ratios are rounded to single precision and sides and origin are floored, so that a side may come out one point
 * short of the exact one. Without a picture or a target the sides are no numbers or zero.
 */
QRectF sourceFor(QSizeF picture, QSizeF target, Fit fit);

/**
 * A new picture of exactly @p target with @p picture laid into it; where there is nothing to lay, an empty one.
 * Its pixels are the points of @p target, rounded up. Null only where no picture of that size can be made.
 */
platform::Picture laidInto(const platform::Picture &picture, QSizeF target, Fit fit);

/** The smaller of the two quotients of @p content and @p most, at most 1; 1 where @p most is zero. */
double drawingScale(QSizeF content, QSizeF most);

} // namespace views
