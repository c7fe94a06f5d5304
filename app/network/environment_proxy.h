#pragma once

#include <QNetworkProxy>
#include <QUrl>

namespace app {

/**
 * The proxy that the environment names for an address: http_proxy or https_proxy, else all_proxy, in lower or upper
 * case, unless no_proxy has the host, the end of its name, or "*". No proxy where none of them is set.
 */
QNetworkProxy environmentProxy(const QUrl &address);

} // namespace app
