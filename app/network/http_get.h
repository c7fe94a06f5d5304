#pragma once

#include "platform/foundation/result.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QUrl>

#include <atomic>

namespace app {

/** What a download may cost; it runs out over several requests. */
struct DownloadBudget
{
    QDeadlineTimer whole;
    int silenceMs = 0;                     ///< the longest wait for the next byte
    qint64 bytes = 0;                      ///< heads and bodies together
    std::atomic<bool> isConnected = false; ///< to any server yet
    std::atomic<bool> isGivenUp = false;
};

struct HttpAnswer
{
    int status = 0;
    QByteArray location; ///< where a redirect leads
    QByteArray body;
};

/**
 * Asks for one address and waits for the whole answer, through the proxy of the environment. Follows no redirect.
 *
 * It blocks its thread and runs no event loop, so that nothing else happens meanwhile. Fails where nothing comes in time,
 * where more bytes come than the budget has left, also in front of the body, and for anything that is no such answer.
 */
platform::Result<HttpAnswer> httpGet(const QUrl &address, DownloadBudget &budget);

} // namespace app
