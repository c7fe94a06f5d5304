#pragma once

#include "platform/graphics/bitmap.h"

#include <QRect>

namespace platform {

/**
 * The part of @p size pixels, cut to the bitmap, that draws the eye most: skin, strong colours, edges. Fails with InvalidValue
 * for a null bitmap or an empty size, with TooLarge if memory fails.
 */
Result<QRect> attentionPart(const Bitmap &bitmap, QSize size);

} // namespace platform
