#pragma once

#include "platform/imageio/source/picture.h"

#include <QColor>

/**
 * Pictures composed on something. Pixels, depth, profile and resolution stay; where the picture is transparent, the
 * background is converted from its own colours into the picture's. A picture without transparency is returned
 * unchanged.
 */
namespace image {

/**
 * The picture on a colour, opaque. @p color is sRGB and treated as opaque; a grey picture becomes RGB for a colour that
 * is not grey; CMYK and Lab with alpha become sRGB. Fails with InvalidValue for a null bitmap, with TooLarge if memory
 * fails.
 */
platform::Result<platform::Bitmap> laidOnColor(const platform::Bitmap &bitmap, const QColor &color);

/**
 * The picture on a repeated @p tile, starting in the top left corner, pixel for pixel. Where the tile is transparent
 * too, so is the result. For a preview scale the tile like the picture. Fails like laidOnColor().
 */
platform::Result<platform::Bitmap> laidOnPattern(const platform::Bitmap &bitmap, const platform::Bitmap &tile);

/**
 * A white picture 20 points larger than @p picture has pixels, one pixel a point, with the picture drawn at its size in
 * points 10 from the left and 10 from the bottom, clipped to the canvas. At 72 dots per inch that is a frame of 10 all
 * round. A null picture if there is none or memory fails.
 */
platform::Picture withWhiteFrame(const platform::Picture &picture);

} // namespace image
