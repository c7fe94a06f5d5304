#pragma once

#include <QSize>
#include <QString>

#include <optional>

/** Lengths as pixels. Which steps are in single and which in double precision belongs to the results. */
namespace image {

enum class LengthUnit { Pixel, Millimetre, Centimetre, Inch, Pica, Point };

/** "mm", "cm", "inch", "pica", "punt"; Pixel for any other text. */
LengthUnit lengthUnit(const QString &name);

/**
 * A length in whole pixels: cut off toward zero, from picas rounded with halves away from zero. 0 where there is no
 * finite result, the nearest number of 32 bits where it does not fit. @p dpi is not looked at for Pixel.
 */
qint32 inPixels(float value, LengthUnit unit, float dpi);

/** The horizontal resolution of a picture of so many pixels and points, in dots per inch, rounded up. */
float resolutionOf(QSize pixels, QSizeF points);

} // namespace image
