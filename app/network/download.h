#pragma once

#include "platform/foundation/result.h"

#include <QUrl>

#include <functional>

class QObject;

namespace app {

struct DownloadLimits
{
    int silenceMs = 15'000;         ///< for each single wait on the server: connection, first byte, next byte
    int wholeMs = 60'000;           ///< for everything together, from the host name lookup to the last byte
    qint64 bytes = 4 * 1024 * 1024; ///< of all answers with their headers
    int redirects = 4;
};

/** The limits of this process; tests make them shorter. */
DownloadLimits &usualDownloadLimits();

/**
 * Fetches a small text and waits for it.
 *
 * @param address  http or https; no other scheme is followed, and no redirect from https to http
 * @return the text. Fails for any other address, if nobody answers in time, for a status other than success, if there
 *         are more bytes or redirects than the limits allow, and if the bytes are not UTF-8
 *
 * The proxy is that of the environment. Blocks the main thread: no event is handled and no script runs until the answer
 * is there.
 */
platform::Result<QString> downloadedText(const QUrl &address, const DownloadLimits &limits = usualDownloadLimits());

/**
 * The same without blocking: @p taken gets the answer from the event loop, unless @p receiver has been destroyed by
 * then.
 */
void downloadText(const QUrl &address, QObject *receiver, std::function<void(const platform::Result<QString> &)> taken,
                  const DownloadLimits &limits = usualDownloadLimits());

} // namespace app
