#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/**
 * The bytes of one tag of an ICC profile, such as "desc", type first; empty if it has none. Never reads out of bounds.
 */
QByteArray iccTag(const QByteArray &profile, const char *name);

/**
 * True for an RGB profile that means sRGB, whatever its name and form: converting from it to sRGB would change no
 * component of any colour by more than one of 255 levels. A thousand colours are tried, including all greys. False for
 * an invalid profile. Takes half a millisecond, and next to nothing for the last profile asked about.
 */
bool isSrgb(const QByteArray &profile);

} // namespace platform
