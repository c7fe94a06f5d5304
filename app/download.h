#pragma once

#include "platform/foundation/result.h"

#include <QUrl>

namespace app {

struct DownloadLimits
{
    int timeoutMs = 3000; ///< for everything together, from the look-up of the host to the last byte
    int bytes = 65536;
    int redirects = 4;
};

/**
 * Fetches a small text and waits for it.
 *
 * @param address  http or https; no other scheme is followed, and no redirect from https to http
 * @return the text. Fails for any other address, where nobody answers in time, with a status other than success, where there
 *         are more bytes or redirects than the limits allow, and where the bytes are not UTF-8
 *
 * Main thread only. Windows are drawn meanwhile, and keys and clicks wait.
 */
platform::Result<QString> downloadedText(const QUrl &address, const DownloadLimits &limits = {});

} // namespace app
