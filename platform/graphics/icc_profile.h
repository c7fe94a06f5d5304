#pragma once

// Inside platform/ only.

#include <QByteArray>

namespace platform {

/** The bytes of one tag of an ICC profile, such as "desc", type first; empty where it has none. Never reads outside. */
QByteArray iccTag(const QByteArray &profile, const char *name);

/**
 * True for an RGB profile that means sRGB, whatever its name: converting from it to sRGB would move no component of any
 * colour by more than one of 255 levels. It is worked out from the colorants and curves; a profile that goes by tables
 * is none.
 */
bool isSrgb(const QByteArray &profile);

} // namespace platform
