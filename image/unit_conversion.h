#pragma once

#include <QSize>
#include <QString>

#include <optional>

/** Lengths as pixels. Which steps use single and which double precision affects the results. */
namespace image {

enum class LengthUnit { Pixel, Millimetre, Centimetre, Inch, Pica, Point };

/** "mm", "cm", "inch", "pica", "punt"; Pixel for any other text. */
LengthUnit lengthUnit(const QString &name);

/**
 * A length in whole pixels: truncated toward zero, for picas rounded with halves away from zero. 0 if the result is not
 * finite, the nearest 32-bit number if it does not fit. @p dpi is ignored for Pixel.
 */
qint32 inPixels(float value, LengthUnit unit, float dpi);

/** The horizontal resolution of a picture of so many pixels and points, in dots per inch, rounded up. */
float resolutionOf(QSize pixels, QSizeF points);

} // namespace image
