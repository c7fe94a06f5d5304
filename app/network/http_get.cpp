#include "app/network/http_get.h"

#include "app/network/environment_proxy.h"

#include <QSslSocket>

#include <algorithm>
#include <optional>

namespace app {
namespace {

using platform::ErrorCode;

constexpr int sliceMs = 200; // how soon an abandoned download ends

auto failed(const QString &why)
{
    return platform::failure(ErrorCode::NotFound, why);
}

/** The header of an answer: its status line and its fields, whose names are in lower case. */
class Head
{
public:
    explicit Head(const QByteArray &text) : m_lines(QByteArray(text).replace('\r', "").split('\n')) {}

    /** 0 if this is no HTTP answer. */
    int status() const
    {
        const QByteArrayList words = m_lines.value(0).split(' ');
        return words.value(0).startsWith("HTTP/1.") ? words.value(1).toInt() : 0;
    }

    QByteArray field(const QByteArray &name) const
    {
        for (const QByteArray &line : m_lines)
            if (const qsizetype colon = line.indexOf(':'); line.left(colon).toLower() == name)
                return line.mid(colon + 1).trimmed();
        return {};
    }

private:
    QByteArrayList m_lines;
};

/** A body in chunks; nothing if the last one is missing. */
std::optional<QByteArray> unchunked(const QByteArray &bytes)
{
    QByteArray body;
    for (qsizetype at = 0;;) {
        const qsizetype lineEnd = bytes.indexOf('\n', at);
        bool isNumber = false;
        const QByteArray number = lineEnd < 0 ? QByteArray() : bytes.mid(at, lineEnd - at).split(';').first().trimmed();
        const qint64 size = number.toLongLong(&isNumber, 16);
        if (!isNumber || size < 0 || size > bytes.size() - lineEnd - 1)
            return std::nullopt;
        if (size == 0)
            return body;
        body += bytes.mid(lineEnd + 1, size);
        const qsizetype behind = bytes.indexOf('\n', lineEnd + 1 + size);
        if (behind < 0)
            return std::nullopt;
        at = behind + 1;
    }
}

/** One request over one connection. */
class Exchange
{
public:
    Exchange(const QUrl &address, DownloadBudget &budget)
        : m_address(address), m_proxy(environmentProxy(address)), m_budget(budget),
          m_isEncrypted(address.scheme() == QStringLiteral("https"))
    {
    }

    platform::Result<HttpAnswer> run()
    {
        if (!connect())
            return failed(m_problem);
        m_budget.isConnected = true;
        m_socket.write(request());
        for (;;) {
            if (auto answer = wholeAnswer())
                return *answer;
            if (!m_problem.isEmpty() || !readMore())
                return failed(m_problem.isEmpty() ? QStringLiteral("the answer is cut short") : m_problem);
        }
    }

private:
    /** Plain requests ask the proxy for the whole address; everything else uses a tunnel that the proxy opens. */
    bool asksProxy() const { return !m_isEncrypted && m_proxy.type() == QNetworkProxy::HttpProxy; }

    /** Waits in slices until @p condition holds, at most for the longest allowed silence. */
    template<typename Condition, typename Wait> bool waited(Condition condition, Wait wait)
    {
        QDeadlineTimer silence(m_budget.silenceMs);
        while (!condition()) {
            const qint64 left = std::min(silence.remainingTime(), m_budget.whole.remainingTime());
            if (left <= 0 || m_budget.isGivenUp) {
                m_problem = QStringLiteral("no answer in time");
                return false;
            }
            const bool isDone = wait(int(std::min<qint64>(left, sliceMs)));
            if (!isDone && m_socket.error() != QAbstractSocket::SocketTimeoutError &&
                m_socket.state() != QAbstractSocket::ConnectedState) {
                m_isClosed = true;
                return condition();
            }
        }
        return true;
    }

    bool connect()
    {
        m_socket.setReadBufferSize(1 << 16);
        m_socket.setProxy(asksProxy() ? QNetworkProxy(QNetworkProxy::NoProxy) : m_proxy);
        const QString host = asksProxy() ? m_proxy.hostName() : m_address.host();
        const auto port = quint16(asksProxy() ? m_proxy.port() : m_address.port(m_isEncrypted ? 443 : 80));
        const int most = int(std::min<qint64>(m_budget.silenceMs, m_budget.whole.remainingTime()));
        if (m_isEncrypted)
            m_socket.connectToHostEncrypted(host, port);
        else
            m_socket.connectToHost(host, port);
        const bool isDone = m_isEncrypted ? m_socket.waitForEncrypted(most) : m_socket.waitForConnected(most);
        if (!isDone)
            m_problem = m_socket.errorString();
        return isDone;
    }

    QByteArray request() const
    {
        constexpr auto pathOnly = QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment;
        QByteArray target = m_address.toEncoded(pathOnly);
        if (!target.startsWith('/'))
            target.prepend('/');
        QByteArray host = m_address.host(QUrl::FullyEncoded).toLatin1();
        if (host.contains(':'))
            host = '[' + host + ']';
        if (m_address.port() >= 0)
            host += ':' + QByteArray::number(m_address.port());
        if (asksProxy())
            target.prepend("http://" + host);
        QByteArray text = "GET " + target + " HTTP/1.1\r\nHost: " + host +
                          "\r\nUser-Agent: Quorlin/" QUORLIN_VERSION "\r\nAccept: text/plain, */*\r\n"
                          "Accept-Encoding: identity\r\nConnection: close\r\n";
        if (asksProxy() && !m_proxy.user().isEmpty())
            text += "Proxy-Authorization: Basic " + (m_proxy.user() + u':' + m_proxy.password()).toUtf8().toBase64() +
                    "\r\n";
        return text + "\r\n";
    }

    bool readMore()
    {
        const bool hasBytes = waited([this] { return m_socket.bytesAvailable() > 0; },
                                     [this](int ms) { return m_socket.waitForReadyRead(ms); });
        if (!hasBytes)
            return false;
        const QByteArray piece = m_socket.readAll();
        m_budget.bytes -= piece.size();
        if (m_budget.bytes < 0) {
            m_problem = QStringLiteral("the answer is too long");
            return false;
        }
        m_bytes += piece;
        return true;
    }

    /** Just behind the empty line that ends the header; -1 before it has arrived. */
    qsizetype bodyStart() const
    {
        const qsizetype at = m_bytes.indexOf("\r\n\r\n");
        return at < 0 ? -1 : at + 4;
    }

    std::optional<HttpAnswer> wholeAnswer()
    {
        if (m_isClosed && m_bytes.isEmpty())
            return std::nullopt;
        const qsizetype start = bodyStart();
        if (start < 0)
            return std::nullopt;
        const Head head(m_bytes.left(start));
        HttpAnswer answer{head.status(), head.field("location"), {}};
        if (answer.status == 0) {
            m_problem = QStringLiteral("this is no web server");
            return std::nullopt;
        }
        if (answer.status < 200) { // an interim answer
            m_bytes.remove(0, start);
            return wholeAnswer();
        }
        const std::optional<QByteArray> body = wholeBody(head, m_bytes.mid(start));
        if (body)
            answer.body = *body;
        return body ? std::optional(answer) : std::nullopt;
    }

    std::optional<QByteArray> wholeBody(const Head &head, const QByteArray &bytes)
    {
        if (head.field("transfer-encoding").toLower().contains("chunked"))
            return bytes.endsWith("\r\n\r\n") || bytes.endsWith("0\r\n") || m_isClosed ? unchunked(bytes)
                                                                                       : std::nullopt;
        bool hasLength = false;
        const qint64 length = head.field("content-length").toLongLong(&hasLength);
        if (hasLength)
            return bytes.size() >= length ? std::optional(bytes.left(length)) : std::nullopt;
        // The body ends with the connection.
        while (readMore()) {
        }
        return m_problem.isEmpty() ? std::optional(m_bytes.mid(bodyStart())) : std::nullopt;
    }

    const QUrl m_address;
    const QNetworkProxy m_proxy;
    DownloadBudget &m_budget;
    const bool m_isEncrypted;
    QSslSocket m_socket;
    QByteArray m_bytes;
    QString m_problem;
    bool m_isClosed = false;
};

} // namespace

platform::Result<HttpAnswer> httpGet(const QUrl &address, DownloadBudget &budget)
{
    return Exchange(address, budget).run();
}

} // namespace app
