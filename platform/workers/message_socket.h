#pragma once

#include "platform/workers/message.h"

#include <deque>
#include <optional>

struct msghdr;

namespace platform {

/**
 * One end of a pair of sockets through which two processes exchange messages. Each is preceded by a mark with the
 * version of this format and the length of its body; anything that does not begin so, or is larger than allowed, ends
 * the connection.
 */
class MessageSocket
{
public:
    enum class Files { Taken, Refused }; ///< whether the other side may pass open files
    enum class State { Open, Ended, Nonsense };

    MessageSocket(Descriptor socket, Files files) : m_socket(std::move(socket)), m_files(files) {}

    struct Pair
    {
        Descriptor one;
        Descriptor other;
    };
    /** Two connected sockets; closed ones if the system has none left. */
    static Pair makePair();

    int descriptor() const { return m_socket.number(); }
    State state() const { return m_state; }

    /** Sends; what the other side does not accept yet is queued if the socket does not block. */
    void send(Message message);
    /** Sends queued data, as far as the other side accepts it. */
    void sendWaiting();
    bool hasWaiting() const { return !m_waiting.empty(); }

    /** Reads once what is available, or waits for it if the socket blocks. */
    void receive();
    /** The next complete message. */
    std::optional<Message> next();
    /** Waits for the next one; for a blocking socket. Nothing at the end. */
    std::optional<Message> wait();

private:
    struct Waiting
    {
        QByteArray bytes;
        qsizetype sent = 0;
        std::vector<Descriptor> files;
    };
    bool sendSome(Waiting &waiting);
    void takeFiles(msghdr &header);

    Descriptor m_socket;
    Files m_files;
    State m_state = State::Open;
    std::deque<Waiting> m_waiting;
    QByteArray m_received;
    std::deque<Descriptor> m_receivedFiles;
};

} // namespace platform
