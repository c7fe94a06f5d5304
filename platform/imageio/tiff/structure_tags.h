#pragma once

// Inside platform/ only.

#include <QtGlobal>

namespace platform {

/** True for a tag of the first directory that describes how a file stores its pixels, not what they show. */
bool describesStructure(quint16 tag);

/** True for tags of the first directory whose data is carried in another way, or that belong to raw files only. */
bool describesOtherData(quint16 tag);

} // namespace platform
