#pragma once

#include <QHostAddress>
#include <QMutex>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QTimer>

#include <functional>
#include <memory>

/**
 * A server in this process that answers every request as the test says, from a separate thread: the client may block
 * while it waits.
 */
class WebServer
{
public:
    using Answer = std::function<void(QTcpSocket &)>;

    explicit WebServer(Answer answer) : m_answer(std::move(answer))
    {
        m_thread.start();
        onThread([this] { listen(); });
    }

    ~WebServer()
    {
        onThread([this] { m_server.reset(); });
        m_thread.quit();
        m_thread.wait();
    }

    WebServer(const WebServer &) = delete;
    WebServer &operator=(const WebServer &) = delete;

    quint16 port() const { return m_port; }
    QString host() const { return QStringLiteral("http://127.0.0.1:%1").arg(m_port); }
    /** The request lines and headers that came, in order. */
    QByteArrayList requests() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_requests;
    }

    static Answer page(const QByteArray &body, const QByteArray &status = "200 OK", const QByteArray &headers = {})
    {
        return [=](QTcpSocket &socket) {
            socket.write("HTTP/1.1 " + status + "\r\nConnection: close\r\nContent-Length: " +
                         QByteArray::number(body.size()) + "\r\n" + headers + "\r\n" + body);
            socket.disconnectFromHost();
        };
    }

    static Answer redirect(const QByteArray &target) { return page({}, "302 Found", "Location: " + target + "\r\n"); }

    /**
     * Redirects with another address each time, so that no loop is noticed, and then gives the page. The address says how
     * many are left: a request that is sent again, as clients may, gets the same answer.
     */
    static Answer redirects(int count, const QByteArray &body)
    {
        return [=](QTcpSocket &socket) {
            const QByteArray path = socket.property("path").toByteArray();
            const int left = path.startsWith("/left") ? path.mid(5).toInt() : count;
            (left > 0 ? redirect("/left" + QByteArray::number(left - 1)) : page(body))(socket);
        };
    }

    /** Without a length, piece after piece, until the other side has enough. */
    static Answer endless(const QByteArray &piece, int everyMs)
    {
        return [=](QTcpSocket &socket) {
            socket.write("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n");
            auto *timer = new QTimer(&socket);
            QObject::connect(timer, &QTimer::timeout, &socket, [&socket, piece] { socket.write(piece); });
            timer->start(everyMs);
        };
    }

    static Answer silence()
    {
        return [](QTcpSocket &) {};
    }

    /** Field after field of a head that never ends. */
    static Answer endlessHead(const QByteArray &field, int everyMs)
    {
        return [=](QTcpSocket &socket) {
            socket.write("HTTP/1.1 200 OK\r\n");
            auto *timer = new QTimer(&socket);
            QObject::connect(timer, &QTimer::timeout, &socket, [&socket, field] { socket.write(field + "\r\n"); });
            timer->start(everyMs);
        };
    }

private:
    template<typename Body> void onThread(Body body)
    {
        QObject context;
        context.moveToThread(&m_thread);
        QMetaObject::invokeMethod(&context, body, Qt::BlockingQueuedConnection);
    }

    void listen()
    {
        m_server = std::make_unique<QTcpServer>();
        if (!m_server->listen(QHostAddress::LocalHost))
            qFatal("no port is free");
        m_port = m_server->serverPort();
        QObject::connect(m_server.get(), &QTcpServer::newConnection, m_server.get(), [this] {
            while (QTcpSocket *socket = m_server->nextPendingConnection())
                QObject::connect(socket, &QTcpSocket::readyRead, m_server.get(), [this, socket] { take(*socket); });
        });
    }

    void take(QTcpSocket &socket)
    {
        const QByteArray request = socket.readAll();
        if (!request.startsWith("GET "))
            return;
        {
            const QMutexLocker lock(&m_mutex);
            m_requests.append(request);
        }
        socket.setProperty("path", request.mid(4, request.indexOf(' ', 4) - 4));
        m_answer(socket);
    }

    Answer m_answer;
    QThread m_thread;
    std::unique_ptr<QTcpServer> m_server; ///< lives on the thread
    quint16 m_port = 0;
    mutable QMutex m_mutex;
    QByteArrayList m_requests;
};
