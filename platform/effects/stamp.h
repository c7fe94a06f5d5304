#pragma once

#include "platform/graphics/bitmap.h"

#include <QList>
#include <QPoint>

namespace platform {

/** A small picture that is put over another one. */
struct Stamp
{
    Bitmap bitmap;        ///< grey or RGB, usually with alpha; its colours are converted to those of the picture below
    QList<QPoint> places; ///< of its top left corner; it may be partly or wholly outside
    double opacity = 1;   ///< 0 to 1, multiplied with its own alpha
};

/**
 * The bitmap with the stamp over it; its depth, profile, resolution and size stay, and where it is transparent only the
 * stamp is visible. CMYK and Lab become sRGB, and a grey picture RGB under a coloured stamp.
 *
 * Fails with InvalidValue for a null bitmap or stamp, with TooLarge if memory fails.
 */
Result<Bitmap> stamped(const Bitmap &bitmap, const Stamp &stamp);

} // namespace platform
