#pragma once

#include "platform/foundation/result.h"
#include "platform/imageio/source/picture.h"

namespace platform {

/**
 * Makes a picture the icon of the file or folder at @p path, for every program that shows custom icons.
 *
 * A folder gets a small hidden copy of the picture and a ".directory" file whose Icon entry names it; the rest of such
 * a file stays as it is. A file gets the attribute metadata::custom-icon, which points to a small copy in the user's
 * data folder; it is stored with the file and reported to the desktop if there is one. The picture is shrunk to 256
 * pixels at most. Fails with NotFound, with InvalidValue for a null picture, and with WriteFailed; the item itself is
 * never changed.
 */
Result<void> setCustomIcon(const QString &path, const Picture &icon);

} // namespace platform
