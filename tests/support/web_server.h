#pragma once

#include <QHostAddress>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <functional>

/** A server of this process that answers every request as the test says. */
class WebServer : public QTcpServer
{
public:
    using Answer = std::function<void(QTcpSocket &)>;

    explicit WebServer(Answer answer) : m_answer(std::move(answer))
    {
        if (!listen(QHostAddress::LocalHost))
            qFatal("no port is free");
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = nextPendingConnection())
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] { take(*socket); });
        });
    }

    QString host() const { return QStringLiteral("http://127.0.0.1:%1").arg(serverPort()); }
    /** The request lines and headers that came, in order. */
    QByteArrayList requests;

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
            connect(timer, &QTimer::timeout, &socket, [&socket, piece] { socket.write(piece); });
            timer->start(everyMs);
        };
    }

    static Answer silence()
    {
        return [](QTcpSocket &) {};
    }

private:
    void take(QTcpSocket &socket)
    {
        const QByteArray request = socket.readAll();
        if (!request.startsWith("GET "))
            return;
        requests.append(request);
        socket.setProperty("path", request.mid(4, request.indexOf(' ', 4) - 4));
        m_answer(socket);
    }

    Answer m_answer;
};
