#pragma once

#include "platform/graphics/bitmap.h"

namespace platform {

/** Colour spaces that are known by name. */
enum class ColourSpace { Srgb, DisplayP3, AdobeRgb, Gray };

/** The ICC profile of such a space; empty for Gray, which is grey of the curve of sRGB. */
QByteArray iccProfileFor(ColourSpace space);

/** True if both mean the same colours: equal, or both sRGB. An empty one means sRGB. */
bool meansSameColours(const QByteArray &iccProfile, const QByteArray &other);

/** True for an ICC profile that colours can be converted to: RGB, grey or CMYK. */
bool canConvertTo(const QByteArray &iccProfile);

/**
 * The bitmap with its colours converted to a profile, which it then has; relative colorimetric with black point compensation.
 * Depth, transparency and resolution stay. An empty profile is grey. Fails with InvalidValue for a null bitmap or a profile that
 * cannot be used, with TooLarge if memory fails.
 */
Result<Bitmap> convertedTo(const Bitmap &bitmap, const QByteArray &iccProfile);

} // namespace platform
