#include "app/network/environment_proxy.h"

#include <QStringList>

namespace app {
namespace {

QString variable(const QString &name)
{
    const QString small = qEnvironmentVariable(name.toLatin1().constData());
    return small.isEmpty() ? qEnvironmentVariable(name.toUpper().toLatin1().constData()) : small;
}

/** Whether an entry of no_proxy means the host: "example.org", ".example.org", "*.example.org", with or without a port. */
bool isMeant(const QString &host, const QString &entry)
{
    QString name = entry.trimmed().toLower();
    const qsizetype colon = name.lastIndexOf(u':');
    if (colon >= 0 && name.count(u':') == 1)
        name.truncate(colon);
    if (name == QStringLiteral("*"))
        return true;
    while (name.startsWith(u'*') || name.startsWith(u'.'))
        name.remove(0, 1);
    return !name.isEmpty() && (host == name || host.endsWith(u'.' + name));
}

bool isExempt(const QString &host)
{
    const QStringList entries = variable(QStringLiteral("no_proxy")).split(u',');
    return std::any_of(entries.begin(), entries.end(), [&host](const QString &entry) { return isMeant(host, entry); });
}

} // namespace

QNetworkProxy environmentProxy(const QUrl &address)
{
    QString named = variable(address.scheme() + QStringLiteral("_proxy"));
    if (named.isEmpty())
        named = variable(QStringLiteral("all_proxy"));
    if (named.isEmpty() || isExempt(address.host().toLower()))
        return QNetworkProxy(QNetworkProxy::NoProxy);
    const QUrl proxy(named.contains(QStringLiteral("://")) ? named : QStringLiteral("http://") + named);
    const bool isSocks = proxy.scheme().startsWith(QStringLiteral("socks"));
    constexpr int usualHttpPort = 80;
    constexpr int usualSocksPort = 1080;
    return {isSocks ? QNetworkProxy::Socks5Proxy : QNetworkProxy::HttpProxy, proxy.host(),
            quint16(proxy.port(isSocks ? usualSocksPort : usualHttpPort)), proxy.userName(QUrl::FullyDecoded),
            proxy.password(QUrl::FullyDecoded)};
}

} // namespace app
