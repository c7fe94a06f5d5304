#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/** The bytes of one tag of an ICC profile, such as "desc", type first; empty where it has none. Never reads outside. */
QByteArray iccTag(const QByteArray &profile, const char *name);

/**
 * True for an RGB profile that means sRGB, whatever its name and however it says so: converting from it to sRGB would move no
 * component of any colour by more than one of 255 levels. A thousand colours are tried, all greys among them. False for what is
 * no profile. Takes half a millisecond, and next to nothing for the profile that was asked about last.
 */
bool isSrgb(const QByteArray &profile);

} // namespace platform
