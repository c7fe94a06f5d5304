#pragma once

#include "platform/graphics/bitmap.h"

#include <QColor>
#include <QRectF>

#include <optional>

namespace image {

/** What a picture is cut to. */
enum class CornerShape {
    Rectangle, ///< the whole picture with round corners
    Circle,    ///< in the square of the shorter side at the picture's bottom left corner
    Ellipse,   ///< as large as the picture
};

/** What is outside the shape. */
struct CornerBackground
{
    QColor color;         ///< sRGB; taken as opaque
    double bandWidth = 0; ///< pixels of it inside the picture's edge; the picture is covered there, not reduced
};

struct CornerOptions
{
    CornerShape shape = CornerShape::Rectangle;
    double radius = 0; ///< Rectangle: pixels, from 0; at most half of a side counts
    /** None leaves it transparent. */
    std::optional<CornerBackground> background;
};

/** The options as lengths on one picture: pixels, origin top left, any scale. */
struct RoundedShape
{
    QRect part;     ///< of the picture that is kept: the canvas
    QRectF outline; ///< of the shape on the canvas; not positive if the band has left nothing
    double xRadius = 0;
    double yRadius = 0;
    std::optional<QColor> background;
};

/** The meaning of the options for a picture of @p size pixels. The band does not reduce the radii. */
RoundedShape roundedShape(const CornerOptions &options, QSize size);

/**
 * The same shape for a smaller or larger rendition of that picture: a preview draws
 * roundCorners(small, fitted(roundedShape(options, full), full, small.size())).
 */
RoundedShape fitted(const RoundedShape &shape, QSize full, QSize rendition);

/**
 * The picture cut to the shape, pixel for pixel, with antialiased edges; depth, profile and resolution stay.
 *
 * Without a background the result has alpha, and what was cut off is lost: its colours are 0 too. With one it is
 * opaque, and the colour is converted from sRGB to the picture's colour space; a grey picture becomes RGB for a colour
 * that is not grey. CMYK and Lab become sRGB. A shape that leaves every pixel unchanged gives a plain copy.
 *
 * Fails with InvalidValue for a null bitmap, with TooLarge if memory fails.
 */
platform::Result<platform::Bitmap> roundCorners(const platform::Bitmap &bitmap, const RoundedShape &shape);
platform::Result<platform::Bitmap> roundCorners(const platform::Bitmap &bitmap, const CornerOptions &options);

} // namespace image
