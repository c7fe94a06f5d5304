#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QUrl>

#include <atomic>

namespace app {

/** What a download may use; shared by all its requests. */
struct DownloadBudget
{
    QDeadlineTimer whole;
    int silenceMs = 0;                     ///< the longest wait for the next byte
    qint64 bytes = 0;                      ///< headers and bodies together
    std::atomic<bool> isConnected = false; ///< of any server so far
    std::atomic<bool> isGivenUp = false;
};

struct HttpAnswer
{
    int status = 0;
    QByteArray location; ///< where a redirect leads
    QByteArray body;
};

/**
 * Requests one address and waits for the whole answer, through the proxy of the environment. Follows no redirect.
 *
 * Blocks its thread and runs no event loop, so nothing else happens meanwhile. Fails if nothing arrives in time, if
 * more bytes arrive than the budget allows, also before the body, and for anything that is no HTTP answer.
 */
platform::Result<HttpAnswer> httpGet(const QUrl &address, DownloadBudget &budget);

} // namespace app
