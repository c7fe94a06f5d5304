#pragma once

#include "platform/foundation/result.h"

#include <QString>

namespace app {

/** The folder of the pictures that come with the program; it need not exist. */
QString samplesFolder();

/**
 * Puts a copy of those pictures where the user may work on them: a folder "Quorlin Samples" among the user's pictures, which is
 * returned. An existing folder of that name is used as it is. Fails as platform::copyItem() does.
 */
platform::Result<QString> copySamples();

} // namespace app
