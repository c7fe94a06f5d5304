#pragma once

#include "platform/imageio/source/picture.h"

#include <QColor>

/**
 * Pictures laid on something. Pixels, depth, profile and resolution stay; where the picture is transparent, what it is
 * laid on is converted from its own colours into the picture's. A picture without transparency comes back as it is.
 */
namespace image {

/**
 * The picture on a colour, opaque. @p color is sRGB and taken as opaque; a grey picture becomes RGB for a colour that is
 * no grey; CMYK and Lab with alpha become sRGB. Fails with InvalidValue for a null bitmap, with TooLarge if memory fails.
 */
platform::Result<platform::Bitmap> laidOnColor(const platform::Bitmap &bitmap, const QColor &color);

/**
 * The picture on copies of @p tile, the first in the top left corner, pixel for pixel. Where the tile is transparent too
 * the result stays so. For a preview scale the tile as much as the picture. Fails as laidOnColor() does.
 */
platform::Result<platform::Bitmap> laidOnPattern(const platform::Bitmap &bitmap, const platform::Bitmap &tile);

/**
 * A white picture 20 points larger than @p picture has pixels, one pixel a point, with the picture drawn at its size in
 * points 10 from the left and 10 from the bottom, cut to what fits. At 72 dots per inch that is a frame of 10 all round.
 * A null picture where there is none or memory fails.
 */
platform::Picture withWhiteFrame(const platform::Picture &picture);

} // namespace image
