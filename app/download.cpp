#include "app/download.h"

#include "platform/foundation/utf8.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <QTimer>

#include <memory>

namespace app {
namespace {

using platform::ErrorCode;

bool isWebAddress(const QUrl &address)
{
    return address.isValid() && !address.host().isEmpty() &&
           (address.scheme() == QStringLiteral("http") || address.scheme() == QStringLiteral("https"));
}

QNetworkRequest requestFor(const QUrl &address, const DownloadLimits &limits)
{
    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setMaximumRedirectsAllowed(limits.redirects);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Quorlin/" QUORLIN_VERSION));
    return request;
}

/** Takes what has come; false once it is more than the limit. */
bool takeBytes(QNetworkReply &reply, QByteArray &bytes, const DownloadLimits &limits)
{
    // One byte more than is allowed shows that there is more, and no more than that is kept.
    bytes += reply.read(limits.bytes + 1 - bytes.size());
    return bytes.size() <= limits.bytes;
}

/** Waits for the end of the reply, or ends it where a limit is passed. */
platform::Result<QByteArray> awaited(QNetworkReply &reply, const DownloadLimits &limits)
{
    QByteArray bytes;
    QString problem;
    QEventLoop loop;
    const auto stop = [&](const QString &why) {
        if (problem.isNull())
            problem = why;
        reply.abort();
    };
    QTimer::singleShot(limits.timeoutMs, &loop, [&] { stop(QStringLiteral("no answer in time")); });
    QObject::connect(&reply, &QIODevice::readyRead, &loop, [&] {
        if (!takeBytes(reply, bytes, limits))
            stop(QStringLiteral("more than %1 bytes").arg(limits.bytes));
    });
    QObject::connect(&reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    if (!reply.isFinished())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (problem.isNull() && reply.error() != QNetworkReply::NoError)
        problem = reply.errorString();
    if (problem.isNull() && !takeBytes(reply, bytes, limits))
        problem = QStringLiteral("more than %1 bytes").arg(limits.bytes);
    if (!problem.isNull())
        return platform::failure(ErrorCode::NotFound, problem);
    return bytes;
}

} // namespace

platform::Result<QString> downloadedText(const QUrl &address, const DownloadLimits &limits)
{
    const QString name = address.toDisplayString();
    const auto failed = [&name](ErrorCode code, const QString &why) {
        return platform::failure(code, QStringLiteral("Cannot download %1: %2").arg(name, why));
    };
    if (!isWebAddress(address))
        return failed(ErrorCode::Unsupported, QStringLiteral("this is no web address"));
    QNetworkAccessManager network;
    network.setProxy(QNetworkProxy::NoProxy);
    const std::unique_ptr<QNetworkReply> reply(network.get(requestFor(address, limits)));
    reply->setReadBufferSize(limits.bytes + 1);
    const auto bytes = awaited(*reply, limits);
    if (!bytes)
        return failed(bytes.error().code, bytes.error().message);
    const auto text = platform::textFromUtf8(*bytes);
    if (!text)
        return failed(ErrorCode::Unreadable, QStringLiteral("it is not UTF-8"));
    return *text;
}

} // namespace app
