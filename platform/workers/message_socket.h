#pragma once

#include "platform/workers/message.h"

#include <deque>
#include <optional>

struct msghdr;

namespace platform {

/**
 * One end of a pair of sockets by which two processes exchange messages. Each has a mark with the version of this format and the length
 * of its body in front; what does not begin so, or is larger than a message may be, ends the conversation.
 */
class MessageSocket
{
public:
    enum class Files { Taken, Refused }; ///< whether the other side may hand over open files
    enum class State { Open, Ended, Nonsense };

    MessageSocket(Descriptor socket, Files files) : m_socket(std::move(socket)), m_files(files) {}

    struct Pair
    {
        Descriptor one;
        Descriptor other;
    };
    /** Two sockets that are connected; closed ones where the system has none left. */
    static Pair makePair();

    int descriptor() const { return m_socket.number(); }
    State state() const { return m_state; }

    /** Sends; what the other side does not take yet waits where the socket does not block. */
    void send(Message message);
    /** Sends what waits, as far as the other side takes it. */
    void sendWaiting();
    bool hasWaiting() const { return !m_waiting.empty(); }

    /** Reads once what is there, or waits for it where the socket blocks. */
    void receive();
    /** The next message that is complete. */
    std::optional<Message> next();
    /** Waits for the next one; for a socket that blocks. Nothing at the end. */
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
