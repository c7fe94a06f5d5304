#pragma once

// Inside platform/ only.

namespace platform {

struct XmpName;

/**
 * True for properties about other data of the same file, which is not copied into another one: gain maps, motion,
 * further pictures, depth, sound, the rest of an oversized packet, and credentials.
 */
bool announcesOtherData(const XmpName &name);

/** Which of them is about a gain map or about motion. */
bool announcesGainMap(const XmpName &name);
bool announcesMotion(const XmpName &name);

} // namespace platform
