#pragma once

#include "platform/foundation/result.h"

#include <QUrl>

#include <functional>

class QObject;

namespace app {

struct DownloadLimits
{
    int silenceMs = 15'000;         ///< for every wait on the server: the connection, the first byte, the next one
    int wholeMs = 60'000;           ///< for everything together, from the look-up of the host to the last byte
    qint64 bytes = 4 * 1024 * 1024; ///< of all answers with their heads
    int redirects = 4;
};

/** The limits of this process; tests make them shorter. */
DownloadLimits &usualDownloadLimits();

/**
 * Fetches a small text and waits for it.
 *
 * @param address  http or https; no other scheme is followed, and no redirect from https to http
 * @return the text. Fails for any other address, where nobody answers in time, with a status other than success, where there
 *         are more bytes or redirects than the limits allow, and where the bytes are not UTF-8
 *
 * The proxy is that of the environment. Main thread only, which stands still: no event is handled, no script runs, before the
 * answer is there.
 */
platform::Result<QString> downloadedText(const QUrl &address, const DownloadLimits &limits = usualDownloadLimits());

/**
 * The same without waiting: @p taken gets the answer from the event loop, unless @p receiver is gone by then.
 */
void downloadText(const QUrl &address, QObject *receiver, std::function<void(const platform::Result<QString> &)> taken,
                  const DownloadLimits &limits = usualDownloadLimits());

} // namespace app
