#include "platform/workers/message_socket.h"

#include <QtEndian>

#include <array>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/socket.h>

namespace platform {
namespace {

/** The header of a body: the mark with the version, the kind, the number of files, the length. */
constexpr std::array<char, 4> mark = {'Q', 'w', 'm', 1};
constexpr qsizetype kindAt = 4;
constexpr qsizetype filesAt = 6;
constexpr qsizetype lengthAt = 8;
constexpr qsizetype headBytes = 12;

QByteArray framed(const Message &message)
{
    QByteArray bytes(headBytes, '\0');
    std::memcpy(bytes.data(), mark.data(), mark.size());
    qToLittleEndian(message.kind, bytes.data() + kindAt);
    qToLittleEndian(quint16(message.files.size()), bytes.data() + filesAt);
    qToLittleEndian(quint32(message.body.size()), bytes.data() + lengthAt);
    return bytes + message.body;
}

constexpr size_t roomForFiles = CMSG_SPACE(mostFiles * sizeof(int));

} // namespace

MessageSocket::Pair MessageSocket::makePair()
{
    std::array<int, 2> ends = {-1, -1};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return {};
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

void MessageSocket::send(Message message)
{
    if (message.body.size() > largestBody || message.files.size() > mostFiles) {
        m_state = State::Nonsense;
        return;
    }
    m_waiting.push_back({framed(message), 0, std::move(message.files)});
    sendWaiting();
}

void MessageSocket::sendWaiting()
{
    while (m_state == State::Open && !m_waiting.empty() && sendSome(m_waiting.front()))
        if (m_waiting.front().sent == m_waiting.front().bytes.size())
            m_waiting.pop_front();
}

/** False if nothing more is accepted now. The files go with the first byte, and no longer belong to this process. */
bool MessageSocket::sendSome(Waiting &waiting)
{
    iovec part = {waiting.bytes.data() + waiting.sent, size_t(waiting.bytes.size() - waiting.sent)};
    msghdr header = {};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    alignas(cmsghdr) std::array<char, roomForFiles> control = {};
    if (!waiting.files.empty()) {
        std::vector<int> numbers;
        for (const Descriptor &file : waiting.files)
            numbers.push_back(file.number());
        header.msg_control = control.data();
        header.msg_controllen = CMSG_SPACE(numbers.size() * sizeof(int));
        auto *attached = reinterpret_cast<cmsghdr *>(control.data());
        attached->cmsg_level = SOL_SOCKET;
        attached->cmsg_type = SCM_RIGHTS;
        attached->cmsg_len = CMSG_LEN(numbers.size() * sizeof(int));
        std::memcpy(CMSG_DATA(attached), numbers.data(), numbers.size() * sizeof(int));
    }
    const ssize_t sent = ::sendmsg(m_socket.number(), &header, MSG_NOSIGNAL);
    if (sent < 0) {
        const bool comesAgain = errno == EINTR;
        if (!comesAgain && errno != EAGAIN && errno != EWOULDBLOCK)
            m_state = State::Ended;
        return comesAgain;
    }
    waiting.sent += sent;
    waiting.files.clear();
    return true;
}

void MessageSocket::takeFiles(msghdr &header)
{
    for (cmsghdr *attached = CMSG_FIRSTHDR(&header); attached; attached = CMSG_NXTHDR(&header, attached)) {
        if (attached->cmsg_level != SOL_SOCKET || attached->cmsg_type != SCM_RIGHTS)
            continue;
        const size_t count = (attached->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (size_t i = 0; i < count; ++i) {
            int number = -1;
            std::memcpy(&number, CMSG_DATA(attached) + i * sizeof(int), sizeof number);
            m_receivedFiles.emplace_back(number);
        }
    }
    // No files are pending except those of the current message, and of what was sent with it.
    if (m_receivedFiles.size() > 2 * mostFiles)
        m_state = State::Nonsense;
    if ((header.msg_flags & MSG_CTRUNC) != 0) // more than a message may have, or any if none are accepted
        m_state = State::Nonsense;
}

void MessageSocket::receive()
{
    constexpr size_t atOnce = 64 << 10;
    std::array<char, atOnce> bytes; // NOLINT: filled below
    iovec part = {bytes.data(), bytes.size()};
    msghdr header = {};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    alignas(cmsghdr) std::array<char, roomForFiles> control = {};
    if (m_files == Files::Taken) {
        header.msg_control = control.data();
        header.msg_controllen = control.size();
    }
    ssize_t count = -1;
    do {
        count = ::recvmsg(m_socket.number(), &header, MSG_CMSG_CLOEXEC);
    } while (count < 0 && errno == EINTR);
    if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
        return;
    if (count <= 0) {
        m_state = State::Ended;
        return;
    }
    takeFiles(header);
    m_received.append(bytes.data(), count);
}

std::optional<Message> MessageSocket::next()
{
    if (m_state == State::Nonsense || m_received.size() < headBytes)
        return std::nullopt;
    const char *head = m_received.constData();
    const auto length = qint64(qFromLittleEndian<quint32>(head + lengthAt));
    const size_t files = qFromLittleEndian<quint16>(head + filesAt);
    const bool isMarked = std::memcmp(head, mark.data(), mark.size()) == 0;
    if (!isMarked || length > largestBody || files > (m_files == Files::Taken ? mostFiles : 0)) {
        m_state = State::Nonsense;
        return std::nullopt;
    }
    if (m_received.size() < headBytes + length)
        return std::nullopt;
    if (m_receivedFiles.size() < files) {
        m_state = State::Nonsense;
        return std::nullopt;
    }
    Message message;
    message.kind = qFromLittleEndian<quint16>(head + kindAt);
    message.body = m_received.mid(headBytes, length);
    for (size_t i = 0; i < files; ++i) {
        message.files.push_back(std::move(m_receivedFiles.front()));
        m_receivedFiles.pop_front();
    }
    m_received.remove(0, headBytes + length);
    return message;
}

std::optional<Message> MessageSocket::wait()
{
    for (;;) {
        if (std::optional<Message> message = next())
            return message;
        if (m_state != State::Open)
            return std::nullopt;
        receive();
    }
}

} // namespace platform
