#pragma once

// Inside platform/ only.

namespace platform {

struct XmpName;

/**
 * True for properties that are about other data of the same file, which does not come along into another one: gain maps, motion,
 * further pictures, depth, sound, the rest of a packet that was too long, and credentials.
 */
bool announcesOtherData(const XmpName &name);

/** Which of them is about a gain map or about motion. */
bool announcesGainMap(const XmpName &name);
bool announcesMotion(const XmpName &name);

} // namespace platform
