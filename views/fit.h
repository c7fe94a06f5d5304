#pragma once

#include "platform/imageio/source/picture.h"

#include <QRectF>

/**
 * How a picture is fitted to a size. Sizes and rectangles are in points; the origin of a source rectangle is the
 * picture's bottom left corner, and it may extend outside the picture.
 */
namespace views {

/** How the shapes of the picture and of its area are reconciled. */
enum class Fit {
    Whole, ///< all of the picture, with empty bands on two sides
    Fill,  ///< the area is covered, the picture cropped on two sides
};

/**
 * The part of a picture that is drawn into the whole of @p target.
 *
 * The ratios are rounded to single precision and sides and origin are floored, so that a side may be one point shorter
 * than the exact one. Without a picture or a target the sides are NaN or zero.
 */
QRectF sourceFor(QSizeF picture, QSizeF target, Fit fit);

/**
 * A new picture of exactly @p target with @p picture fitted to it; empty if there is nothing to draw. Its pixels are
 * the points of @p target, rounded up. Null only if no picture of that size can be made.
 */
platform::Picture laidInto(const platform::Picture &picture, QSizeF target, Fit fit);

/** The smaller of the two quotients of @p content and @p most, at most 1; 1 if @p most is zero. */
double drawingScale(QSizeF content, QSizeF most);

} // namespace views
