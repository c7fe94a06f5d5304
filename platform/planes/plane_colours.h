#pragma once

// Private to the platform.

#include <QtGlobal>

namespace platform {

/** Makes red, green and blue of brightness and JPEG's two colour differences, @p count of each; the same everywhere. */
void coloursOf(const uchar *brightness, const uchar *blueness, const uchar *redness, uchar *rgb, int count);

/** Adds an opaque alpha to RGB. */
void addAlpha(const uchar *rgb, uchar *rgba, int count);

} // namespace platform
